#pragma once

#include "ScreenReader.h"

#include <filesystem>
#include <map>
#include <string>

namespace fleetwright {

/// A window of the program, by its title.
class Window {
public:
    /// Waits for the window, and for the keyboard to be its own.
    explicit Window(std::string title);

    /// Something in the window, or in a part of it if there is one named; waits for it.
    Element get(const std::string& role, const std::string& name,
                const std::string& part = {}) const;
    /// Clicks on something in the window once the keyboard is the window's: as long as a dialog is
    /// about to go, clicks on the window behind it are lost.
    void click(const std::string& role, const std::string& name) const;
    /// Waits until something in the window is in this state, or is not.
    void waitUntil(const std::string& role, const std::string& name, AtspiStateType state,
                   bool isSo = true) const;
    /// Waits until something in the window holds this text.
    void waitForText(const std::string& role, const std::string& name,
                     const std::string& text) const;
    /// Waits for the keyboard to be the window's again.
    void waitUntilActive() const;
    void waitUntilGone() const;
    /// Moves the keyboard to an element, with the keyboard.
    void tabTo(const std::string& role, const std::string& name) const;

protected:
    Element window() const;

private:
    std::string m_title;
};

/// What the window is meant to hold, as a ship file says it: "Thrust" = "4", "System: Gun" = "2".
/// The command line tool turns it into figures.
using Design = std::map<std::string, std::string>;

/// The design of a new ship.
Design newDesign();

/// All that a window shows of a ship, by what a screen reader calls it. The systems aboard have
/// names like "aboard: Gun".
using Shown = std::map<std::string, std::string>;

/// What the command line tool makes of a design, or of the one in a file.
Shown expectedOf(const Design& design, bool isAutoMass = false);
Shown expectedOf(const std::filesystem::path& shipFile, bool isAutoMass = false);

/// The main window of the program that runs.
class MainWindow : public Window {
public:
    static constexpr const char* title = "Fleet Wright";
    /// The title of the question before a ship that is not saved goes.
    static constexpr const char* notSaved = "Ship not saved!";

    MainWindow() : Window(title) {}

    /// Waits until the window shows what the tool says.
    void waitFor(const Shown& expected) const;
    /// Opens a ship file, and waits until it is shown.
    void load(const std::filesystem::path& file) const;
    /// Chooses an entry of a menu.
    void choose(const std::string& menu, const std::string& entry) const;

private:
    Shown shown() const;
};

}  // namespace fleetwright
