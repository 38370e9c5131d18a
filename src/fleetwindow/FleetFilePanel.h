#pragma once

#include "FleetPart.h"
#include "Menu.h"

#include <filesystem>
#include <functional>
#include <string>

namespace fleetwright {

class FleetRecoveryPanel;

/// What replaces the fleet, what saves it, and what takes back what was done to it.
class FleetFilePanel : public FleetPart {
public:
    FleetFilePanel(const FleetContext& context, MenuEntry& mnuFleetFile, MenuEntry& mnuFleetEdit,
                   FleetRecoveryPanel& recovery);

    void show();
    /// Replaces the fleet by the one in a file, if the user lets it go.
    void open(const std::filesystem::path& file);
    /// The same for one that was put aside, which has no file then.
    void openPutAside(const std::filesystem::path& file);

private:
    MenuEntry& m_file;
    MenuEntry& m_edit;
    FleetRecoveryPanel& m_recovery;

public:
    MenuEntry mnuNewFleet{m_file,
                          {.name = "mnuNewFleet",
                           .caption = "New",
                           .toolTip = "Begins a fleet",
                           .shortcut = "Ctrl+N"},
                          [this] { mnuNewFleet_Click(); }};
    MenuEntry mnuOpenFleet{m_file,
                           {.name = "mnuOpenFleet",
                            .caption = "Open...",
                            .toolTip = "Opens the fleet in a file",
                            .shortcut = "Ctrl+O"},
                           [this] { mnuOpenFleet_Click(); }};
    MenuEntry mnuSaveFleet{m_file,
                           {.name = "mnuSaveFleet",
                            .caption = "Save",
                            .toolTip = "Saves the fleet into its file",
                            .shortcut = "Ctrl+S"},
                           [this] { mnuSaveFleet_Click(); }};
    MenuEntry mnuSaveFleetAs{m_file,
                             {.name = "mnuSaveFleetAs",
                              .caption = "Save As...",
                              .toolTip = "Saves the fleet into another file",
                              .shortcut = "Ctrl+Shift+S"},
                             [this] { mnuSaveFleetAs_Click(); }};
    MenuEntry mnuSepFleetFile{m_file, {.name = "mnuSepFleetFile", .caption = "-"}};

    MenuEntry mnuUndoFleet{m_edit,
                           {.name = "mnuUndoFleet",
                            .caption = "Undo",
                            .toolTip = "Takes the last step back",
                            .shortcut = "Ctrl+Z",
                            .isVerbatim = true},
                           [this] { mnuUndoFleet_Click(); }};
    MenuEntry mnuRedoFleet{m_edit,
                           {.name = "mnuRedoFleet",
                            .caption = "Redo",
                            .toolTip = "Does again what was taken back",
                            .shortcut = "Ctrl+Y",
                            .isVerbatim = true},
                           [this] { mnuRedoFleet_Click(); }};

private:
    void mnuNewFleet_Click();
    void mnuOpenFleet_Click();
    void mnuSaveFleet_Click();
    void mnuSaveFleetAs_Click();
    void mnuUndoFleet_Click();
    void mnuRedoFleet_Click();
    void replaceBy(const std::filesystem::path& file,
                   const std::function<std::string(Fleet)>& replace);
    void save(const std::filesystem::path& file);
};

}  // namespace fleetwright
