#pragma once

#include "Desktop.h"
#include "Globals.h"
#include "Printer.h"
#include "SettingsStore.h"
#include "StartUpProgress.h"
#include "frmMain.h"

namespace fleetwright {

/// The world around a main window that nobody looks at: nothing is shown, chosen, stored or
/// printed.
class SilentServices {
public:
    SilentServices() : m_desktop(m_noDesktop) {}
    /// With this desktop, which outlives the services, in place of one where nothing is shown.
    explicit SilentServices(Desktop& desktop) : m_desktop(desktop) {}

    /// The services of a window in this application folder. Whoever has more of the world than
    /// this puts it in their place.
    MainWindowServices services(const std::filesystem::path& appFolder, PictureFiles& pictures,
                                FormulaFunction formula = formula_calculate) {
        globals.formula = formula;
        return {.appFolder = appFolder,
                .eventLoopTurn = {},
                .freeFormulaLibrary = [] {},
                .desktop = m_desktop,
                .pictures = pictures,
                .progress = m_progress,
                .globals = globals,
                .settings = m_settings,
                .printer = m_printer,
                .extras = {},
                .showAbout = {},
                .showMapper = {},
                .showViewer = {},
                .showMapCreator = {}};
    }

    Globals globals;

private:
    class NoSettings : public SettingsStore {
    public:
        std::string read(const std::string&, const std::string&,
                         const std::string& otherwise) const override {
            return otherwise;
        }
        void write(const std::string&, const std::string&, const std::string&) override {}
    };

    class NoPrinter : public Printer {
    public:
        void setTitle(const std::string&) override {}
        std::optional<int> choose() override { return {}; }
        std::string fontName() const override { return {}; }
        void setFontName(const std::string&) override {}
        int fontSize() const override { return 0; }
        void setFontSize(int) override {}
        void printLine(std::string_view) override {}
        void endDocument() override {}
    };

    NoDesktop m_noDesktop;
    Desktop& m_desktop;
    NoProgress m_progress;
    NoSettings m_settings;
    NoPrinter m_printer;
};

}  // namespace fleetwright
