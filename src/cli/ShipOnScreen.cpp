#include "ShipOnScreen.h"

#include "Globals.h"
#include "NoDesktop.h"
#include "PictureFiles.h"
#include "Printer.h"
#include "SettingsStore.h"
#include "StartUpProgress.h"
#include "frmMain.h"

namespace fleetwright {

namespace {

class NoPictures : public PictureFiles {
public:
    Raster load(const std::filesystem::path&) override { return {}; }
    Raster builtIn(const std::string&) override { return {}; }
};

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
    std::optional<int> choose() override { return {}; }
    std::string fontName() const override { return {}; }
    void setFontName(const std::string&) override {}
    int fontSize() const override { return 0; }
    void setFontSize(int) override {}
    void printLine(std::string_view) override {}
    void endDocument() override {}
};

}  // namespace

class ShipOnScreen::Program {
public:
    explicit Program(const std::filesystem::path& appFolder)
        : window({.appFolder = appFolder,
                  .eventLoopTurn = {},
                  .freeFormulaLibrary = [] {},
                  .desktop = m_desktop,
                  .pictures = m_pictures,
                  .progress = m_progress,
                  .globals = m_globals,
                  .settings = m_settings,
                  .printer = m_printer,
                  .extras = {},
                  .showAbout = {},
                  .showMapper = {},
                  .showViewer = {},
                  .showMapCreator = {},
                  .hasScreen = false}) {
        m_globals.formula = formula_calculate;
    }

private:
    NoDesktop m_desktop;
    NoPictures m_pictures;
    NoProgress m_progress;
    NoSettings m_settings;
    NoPrinter m_printer;
    Globals m_globals;

public:
    frmMain window;
};

ShipOnScreen::ShipOnScreen(const std::filesystem::path& appFolder) : m_appFolder(appFolder) {}

ShipOnScreen::~ShipOnScreen() = default;

std::optional<Fault> ShipOnScreen::load(const std::string& file) {
    m_program = std::make_unique<Program>(m_appFolder);
    frmMain& window = m_program->window;
    try {
        window.show();
    } catch (const EndOfProgram&) {
        Catalogue().loadWeaps(m_appFolder / "weaps.dat");  // throws what the window has not said
        throw;
    }
    if (!window.loadFile(file)) {
        return window.g_Ship->fileFault();
    }
    window.tmrRefreshScreen.tick();
    return std::nullopt;
}

void ShipOnScreen::switchAutoMassOn() {
    m_program->window.mnuAutoMass.choose();
}

ShipClass& ShipOnScreen::ship() {
    return *m_program->window.g_Ship;
}

const frmMain& ShipOnScreen::window() const {
    return m_program->window;
}

}  // namespace fleetwright
