#pragma once

#include "Window.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace fleetwright {

/// What the window is meant to hold: a design, which the command line tool turns into figures.
struct Design {
    int mass = 2;
    int thrust = 2;
    std::string type = "Warship";
    std::string streamlining = {};  ///< "Partial", "Full" or nothing
    std::string armor = {};         ///< "Level 1", "Level 2" or nothing
    std::string ftl = "Normal";
    std::map<std::string, int> systems = {};
    bool isAutoMass = false;
};

/// All that a window shows of a ship, by what a screen reader calls it. The systems aboard have
/// names like "aboard: Gun".
using Shown = std::map<std::string, std::string>;

/// What the command line tool makes of a design, or of the one in a file.
Shown expectedOf(const Design& design);
Shown expectedOf(const std::filesystem::path& shipFile, bool isAutoMass = false);

/// The main window of the program that runs.
class MainWindow : public Window {
public:
    static constexpr const char* title = "Fleet Wright";
    /// The title of the question before a ship that is not saved goes.
    static constexpr const char* notSaved = "Ship not saved!";

    MainWindow() : Window(title) {}

    /// Something in a part of the window; waits for it.
    Element getIn(const std::string& part, const std::string& role, const std::string& name) const;
    /// Waits until the window shows what the tool says about a design.
    void waitFor(const Design& design) const;
    void waitForShip(const std::filesystem::path& file) const;
    /// Opens a ship file, and waits until it is shown.
    void load(const std::filesystem::path& file) const;
    /// Waits until the status bar says something that begins like this; all that it says.
    std::string waitForStatus(const std::string& begin) const;
    /// Chooses an entry of a menu.
    void choose(const std::string& menu, const std::string& entry) const;

private:
    Shown shown() const;
    void waitUntilShown(const Shown& expected) const;
};

}  // namespace fleetwright
