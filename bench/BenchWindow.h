#pragma once

#include "Desktop.h"
#include "Globals.h"
#include "QtPictureFiles.h"
#include "StartUpProgress.h"
#include "frmMain.h"

#include <filesystem>

namespace fleetwright {

/// An application folder of this run's own: the delivered catalogue, or one with so many records,
/// and the pictures, unpacked.
std::filesystem::path benchApplication(int records = 0);

/// A loaded main window on a desktop where nothing is shown or chosen. Whoever wants it drawn
/// attaches a FormWindow. Needs no application, but pictures that QImage can read.
class BenchWindow {
public:
    explicit BenchWindow(std::filesystem::path appFolder);

    frmMain& form() { return m_form; }

private:
    class SilentDesktop : public Desktop {
    public:
        Answer showMessage(const std::string&, const std::string&, Buttons, Icon) override {
            return Answer::Ok;
        }
        std::optional<std::string> chooseFileToOpen(const FileDialog&) override { return {}; }
        std::optional<std::string> chooseFileToSave(const FileDialog&) override { return {}; }
        void popUp(MenuEntry&) override {}
        void showModal(Form&, Form&) override {}
        void unloadAllForms() override {}
        ScreenSize screenSize() override { return {}; }
    };

    SilentDesktop m_desktop;
    QtPictureFiles m_pictures;
    NoProgress m_progress;
    Globals m_globals;
    frmMain m_form;
};

/// Makes the one QApplication of this process, without a screen.
void needQt();

}  // namespace fleetwright
