#pragma once

#include "CatalogueFile.h"

#include <filesystem>
#include <functional>
#include <string>

namespace fleetwright {

class Clipboard;
class Clock;
class Desktop;
class FleetWindow;
class PictureFiles;
class Printer;
class RecoveryFolder;
class SettingsStore;
class SheetOutput;
class StartUpProgress;
class frmExtras;
class frmPutAside;
struct Globals;

/// What the main window needs of the world around it. All of it outlives the window.
struct MainWindowServices {
    std::filesystem::path appFolder;
    std::filesystem::path guide = {};  ///< the first page of the player's guide
    CatalogueFile catalogueFile{appFolder / "weaps.dat"};
    std::function<void()> eventLoopTurn;  ///< lets pending events run
    std::function<void()> freeFormulaLibrary;
    /// What keeps the catalogue from being used, as a text to show; empty if nothing does.
    std::function<std::string()> catalogueFaults = [] { return std::string(); };
    Desktop& desktop;
    PictureFiles& pictures;
    StartUpProgress& progress;
    Globals& globals;
    SettingsStore& settings;
    Printer& printer;
    /// The windows that the menus open; the first one is shown above this window.
    std::function<frmExtras&()> extras;
    std::function<void()> showAbout;
    std::function<void()> showMapper;
    std::function<void()> showViewer;
    std::function<void()> showMapCreator;
    /// Where designs are put aside; null if they are not. Then nobody looks for them.
    RecoveryFolder* recovery = nullptr;
    std::function<frmPutAside&()> putAside = {};  ///< is shown above this window, too
    /// What shows, prints and exports sheets; null if nothing does.
    std::function<const SheetOutput*()> sheets = [] { return nullptr; };
    Clipboard* clipboard = nullptr;  ///< null where nobody copies or pastes
    /// The window of fleets; null if there is none.
    std::function<FleetWindow*()> fleet = [] { return nullptr; };
    /// Whether nothing of the start is on the screen any more.
    std::function<bool()> isStartOver = [] { return true; };
    /// By it the moments of a held arrow are one step; null if each is one of its own.
    Clock* clock = nullptr;
    /// Without a screen nobody sees the tree, and it is not built.
    bool hasScreen = true;
};

}  // namespace fleetwright
