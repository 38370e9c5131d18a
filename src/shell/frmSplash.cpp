#include "frmSplash.h"

#include "Clock.h"
#include "Desktop.h"
#include "Error.h"
#include "Globals.h"
#include "PictureFiles.h"
#include "Programs.h"
#include "Sounds.h"
#include "paths.h"
#include "unpackImages.h"

#include <exception>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// Plays a wave file to its end, if sounds are wanted and the machine has a device for them. Never
/// fails.
void playSound(const fs::path& file, Sounds& sounds, const Globals& globals) {
    try {
        // The switch first: asking for devices is not quick.
        if (globals.g_bSounds && sounds.hasDevice()) {
            sounds.play(file);
        }
    } catch (const std::exception&) {
        // Nobody misses a sound so much as to be told.
    }
}

}  // namespace

frmSplash::frmSplash(StartUpServices services)
    : Form({.name = "frmSplash", .border = Border::None}), m_services(std::move(services)) {}

void frmSplash::Form_Load() {
    choosePicture();
    show();
    repaint();
    m_services.globals.readSettings(m_services.settings);
    checkScreen();
    unpackOnFirstRun();
    loadFormulaLibrary();
    checkCatalogue();
    setText("Loading SSD Maps....");
    Globals& globals = m_services.globals;
    globals.droppedMaps =
        scanMaps(m_services.appFolder, globals.g_colSSDMaps, globals.g_iLargestSSD,
                 [this](const std::string& text) { setText(text); });
    setText("Finished Loading SSD Maps....");
    Timer1.setEnabled(true);
    m_services.mainWindow().load();
}

void frmSplash::choosePicture() {
    const bool isEven = m_services.clock.tickCount() % 2 == 0;
    PictureBox& chosen = isEven ? Picture2 : Picture1;
    // The other one never shows, and large pictures take long to decode.
    chosen.setPicture(m_services.pictures.builtIn(isEven ? "splash-2.bmp" : "splash-1.gif"));
    Picture1.setVisible(false);
    Picture2.setVisible(false);
    setPicture(chosen.picture());
    resize(chosen.place().width, chosen.place().height + sbInfo.place().height);
}

void frmSplash::checkScreen() {
    // Larger windows shrink or scroll; on less than this nobody would see enough of them.
    constexpr int smallestWidth = 640, smallestHeight = 400;
    const Desktop::ScreenSize screen = m_services.desktop.screenSize();
    if (screen.width < smallestWidth || screen.height < smallestHeight) {
        fail("Need to have 800x600 resolution to run.", "Screen Size Error");
    }
}

void frmSplash::unpackOnFirstRun() {
    constexpr int longestWait = 10000;  // milliseconds
    const auto runArchive = [this](const fs::path& archive, const fs::path& folder) {
        const auto showProgress = [this, &folder] {
            setText("Unpacking the pictures... " + std::to_string(filesBelow(folder).size()));
            repaint();
        };
        showProgress();
        return m_services.programs.run(archive, "-o", folder, longestWait, showProgress);
    };
    try {
        unpackImages(m_services.appFolder, m_services.programFolder, runArchive);
    } catch (const FileError& error) {
        fail(complaint(error), "");
    }
}

void frmSplash::loadFormulaLibrary() {
    Globals& globals = m_services.globals;
    globals.g_hFormulaLib = m_services.programs.loadLibrary(m_services.programFolder / "w_dll.dll");
    if (globals.g_hFormulaLib != nullptr) {
        globals.formula = reinterpret_cast<FormulaFunction>(
            m_services.programs.function(globals.g_hFormulaLib, "formula_calculate"));
    }
    if (globals.formula == nullptr) {
        m_services.desktop.showMessage("Can't Open DLL " + shownText(m_services.appFolder.string()),
                                       "File Open Error", Buttons::Ok, Icon::Critical);
        unload();
        throw EndOfProgram();
    }
}

void frmSplash::checkCatalogue() {
    if (const std::string faults = m_services.catalogueFaults(); !faults.empty()) {
        fail(faults, "");
    }
}

void frmSplash::fail(const std::string& text, const std::string& title) {
    m_services.desktop.showMessage(text, title, Buttons::Ok, Icon::Critical);
    throw EndOfProgram();
}

void frmSplash::dismissSplash() {
    if (m_services.isMainWindowLoaded()) {
        m_services.mainWindow().show();
        unload();
    }
}

void frmSplash::Form_Unload(bool&) {
    // Whoever closes this window before its time does not mean the program.
    if (m_services.isMainWindowLoaded() && !m_services.mainWindow().isVisible()) {
        m_services.mainWindow().show();
    }
    Timer1.setEnabled(false);  // one more tick must not bring it to the front again
    const fs::path sound = m_services.appFolder / "blaster.wav";
    constexpr int pause = 500;  // milliseconds
    playSound(sound, m_services.sounds, m_services.globals);
    m_services.clock.sleep(pause);
    playSound(sound, m_services.sounds, m_services.globals);
}

}  // namespace fleetwright
