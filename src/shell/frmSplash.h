#pragma once

// The window of the start. Its load prepares the whole program, step by step; it then waits for the
// main window to be ready, shows it, and goes with a sound.

#include "Form.h"
#include "PictureBox.h"
#include "StartUpProgress.h"
#include "StatusBar.h"
#include "Timer.h"

#include <filesystem>
#include <functional>

namespace fleetwright {

class Clock;
class Desktop;
class PictureFiles;
class Programs;
class SettingsStore;
class Sounds;
struct Globals;

/// What the start needs of the world around it. All of it outlives the window.
struct StartUpServices {
    std::filesystem::path appFolder;
    /// That of the executable: whatever is run or loaded comes from there.
    std::filesystem::path programFolder;
    Desktop& desktop;
    SettingsStore& settings;
    Clock& clock;
    Sounds& sounds;
    PictureFiles& pictures;
    Programs& programs;
    Globals& globals;
    /// What is wrong with the catalogue, as one text to show; empty if nothing is.
    std::function<std::string()> catalogueFaults;
    std::function<Form&()> mainWindow;
    std::function<bool()> isMainWindowLoaded;
};

class frmSplash : public Form, public StartUpProgress {
public:
    explicit frmSplash(StartUpServices services);

    // StartUpProgress: what the main window says while it loads.
    // Some hundred steps in a second: whoever hears what is shown would be told for minutes.
    void setText(const std::string& text) override { sbInfo.setTextQuietly(text); }
    void repaint() override { Form::repaint(); }

    StatusBar sbInfo{*this, {.name = "sbInfo", .accessibleDescription = "Status"}};
    PictureBox Picture1{*this, {.name = "Picture1"}};
    PictureBox Picture2{*this, {.name = "Picture2"}};
    Timer Timer1{*this, "Timer1", 100, false, [this] { Timer1_Timer(); }};

protected:
    /// Throws EndOfProgram where the start has failed and has said so.
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_KeyPress() override { dismissSplash(); }

private:
    void choosePicture();
    void checkScreen();
    void unpackOnFirstRun();
    void loadFormulaLibrary();
    void checkCatalogue();
    void Timer1_Timer() { dismissSplash(); }
    void dismissSplash();
    /// Says that the start has failed, and ends it.
    [[noreturn]] void fail(const std::string& text, const std::string& title);

    StartUpServices m_services;
};

}  // namespace fleetwright
