#pragma once

#include "Desktop.h"
#include "Globals.h"
#include "PictureFiles.h"
#include "StartUpProgress.h"
#include "frmMain.h"
#include "testShip.h"

#include <memory>
#include <string>

namespace fleetwright {

/// A catalogue whose categories stand in the tree.
extern const std::string_view windowCatalogue;

/// The main window on a desktop that only writes down what it is asked to do.
class TestWindow {
public:
    explicit TestWindow(std::string_view catalogue = windowCatalogue);
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;
    ~TestWindow();

    frmMain& window() { return *m_window; }
    ShipClass& ship() { return *m_window->g_Ship; }
    /// Everything shown on the desktop since the last call: "box: text; " and the like.
    std::string takeLog();
    /// Selects the node of a system in the tree.
    void selectNode(std::string_view key);
    /// "name count, name count" of the list, with a * behind the selected row.
    std::string list();
    /// What the labels under tree and list show: "mass cost | mass cost".
    std::string previews();
    const TemporaryFolder& folder() const { return m_folder; }

    Globals globals;
    Answer answer = Answer::No;
    /// What the user does in the next dialog.
    std::function<void(Form&)> inDialog;

private:
    class Desk;
    class Pictures;
    class Progress;

    TemporaryFolder m_folder;
    std::string m_log;
    std::unique_ptr<Desk> m_desk;
    std::unique_ptr<Pictures> m_pictures;
    std::unique_ptr<Progress> m_progress;
    std::unique_ptr<frmMain> m_window;
};

}  // namespace fleetwright
