#pragma once

#include "FleetPart.h"
#include "Menu.h"
#include "SheetOutput.h"

#include <string>

namespace fleetwright {

/// The whole fleet as pages, its roster and its sheets: on the screen, on paper, in a file; and as
/// a page to play from.
class FleetOutputPanel : public FleetPart {
public:
    FleetOutputPanel(const FleetContext& context, MenuEntry& mnuFleetFile)
        : FleetPart(context), m_file(mnuFleetFile) {}

    void show();

private:
    MenuEntry& m_file;

public:
    MenuEntry mnuPreviewFleet{m_file,
                              {.name = "mnuPreviewFleet",
                               .caption = "Preview...",
                               .toolTip = "Shows the roster and all sheets as they will be "
                                          "printed"},
                              [this] { send(&SheetOutput::preview); }};
    MenuEntry mnuPrintFleet{m_file,
                            {.name = "mnuPrintFleet",
                             .caption = "Print All...",
                             .toolTip = "Prints the roster and all sheets",
                             .shortcut = "Ctrl+P"},
                            [this] { send(&SheetOutput::print); }};
    MenuEntry mnuExportFleet{m_file,
                             {.name = "mnuExportFleet",
                              .caption = "Export PDF...",
                              .toolTip = "Saves the roster and all sheets as PDF or SVG",
                              .shortcut = "Ctrl+E"},
                             [this] { send(&SheetOutput::exportFile); }};
    MenuEntry mnuPlayFleet{m_file,
                           {.name = "mnuPlayFleet",
                            .caption = "Play in Browser...",
                            .toolTip = "Saves the fleet as a page to play from, also on a tablet, "
                                       "and opens it"},
                           [this] { mnuPlayFleet_Click(); }};
    MenuEntry mnuSepPlay{m_file, {.name = "mnuSepPlay", .caption = "-"}};
    MenuEntry mnuCloseFleet{m_file,
                            {.name = "mnuCloseFleet",
                             .caption = "Close",
                             .toolTip = "Closes this window",
                             .shortcut = "Ctrl+W"},
                            [this] { form().unload(); }};

private:
    void send(void (SheetOutput::*way)(const SheetOutput::Source&) const);
    void mnuPlayFleet_Click();
    /// Whether the sheets can be drawn now; says so if not.
    bool canDraw();
    /// Puts what was done on the status line, with the ships that could not take part.
    void sayDone(const std::string& done);
};

}  // namespace fleetwright
