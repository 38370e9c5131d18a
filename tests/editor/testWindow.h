#pragma once

#include "Desktop.h"
#include "Globals.h"
#include "PictureCache.h"
#include "PictureFiles.h"
#include "Printer.h"
#include "RecoveryFolder.h"
#include "SheetImages.h"
#include "SheetOutput.h"
#include "StartUpProgress.h"
#include "fakeServices.h"
#include "frmExtras.h"
#include "frmFleet.h"
#include "frmMain.h"
#include "frmPutAside.h"
#include "testShip.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace fleetwright {

/// A catalogue whose categories stand in the tree.
extern const std::string_view windowCatalogue;

/// The pieces of a text between separators.
std::vector<std::string> partsOf(const std::string& text, const std::string& separator);

/// The main window on a desktop that only writes down what it is asked to do.
class TestWindow {
public:
    explicit TestWindow(std::string_view catalogue = windowCatalogue);
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;
    ~TestWindow();

    frmMain& window() { return *m_window; }
    frmFleet& fleet() { return *m_fleet; }
    ShipClass& ship() { return *m_window->g_Ship; }
    Desktop& desktop();
    const SheetOutput& sheets() const { return *m_output; }
    /// Everything shown on the desktop since the last call: "box: text; " and the like.
    std::string takeLog();
    /// Selects the node of a system in the tree.
    void selectNode(std::string_view key);
    const TemporaryFolder& folder() const { return m_folder; }

    /// Reads the maps in the folder, as the start does.
    void scanMaps();
    /// Waits until what has just been written does not count as fresh any more.
    static void letFilesGetOld();

    Globals globals;
    Answer answer = Answer::No;
    /// What happens in the next turn of the event loop, that of a message box included.
    std::function<void()> inTurn;
    /// What happens while a message box is open.
    std::function<void()> inMessage;
    /// What the user does in the next dialog.
    std::function<void(Form&)> inDialog;
    /// The same for file dialogs, for menus that pop up and for each turn that the window gives.
    std::function<void()> inFileDialog;
    std::function<void(MenuEntry&)> inPopUp;
    std::function<void()> inEachTurn;
    /// The program ends.
    std::function<void()> atEnd;
    /// A window without an owner is to be shown: "mapper", "viewer", "map creator" or "about".
    std::function<void(const std::string&)> showOther = [](const std::string&) {};
    /// What the user chooses in file dialogs, and how many copies in the print dialog; nothing is
    /// Cancel.
    std::optional<std::string> file;
    std::optional<int> copies;
    bool printerFails = false;
    bool hasTrash = true;
    bool isStartOver = true;
    std::string catalogueFaults;
    MemoryClipboard clipboard;
    SteppingClock clock;  ///< by which any two acts lie two seconds apart

private:
    class Desk;
    class Paper;
    class Pictures;
    class Progress;
    class Sheets;
    class Bin;

    void takeTurn();
    void openOther(const std::string& name);
    void makeFleet();
    std::unique_ptr<ShipClass> newShip() const;
    FleetRow readShip(const std::string& name) const;

    TemporaryFolder m_folder;
    std::string m_log;
    std::unique_ptr<Desk> m_desk;
    std::unique_ptr<Pictures> m_pictures;
    std::unique_ptr<Progress> m_progress;
    MemorySettings m_settings;
    std::unique_ptr<Paper> m_paper;
    std::unique_ptr<Sheets> m_sheets;
    frmExtras m_extras;
    int m_time = 0;
    std::unique_ptr<Bin> m_bin;
    RecoveryFolder m_recovery;
    frmPutAside m_putAside;
    std::unique_ptr<frmMain> m_window;
    std::unique_ptr<PictureCache> m_cached;
    SheetImages m_images;
    std::unique_ptr<SheetOutput> m_output;
    std::unique_ptr<frmFleet> m_fleet;
};

}  // namespace fleetwright
