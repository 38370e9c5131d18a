#pragma once

#include "ListView.h"
#include "Menu.h"
#include "Panel.h"
#include "SheetOutput.h"

#include <functional>

namespace fleetwright {

/// The sheet of the ship at hand as pages: on the screen, on paper, in a file. The map is the one
/// that fits best.
class SheetPanel : public Panel {
public:
    /// `figures` hands out the ship as the window shows it.
    SheetPanel(const PanelContext& context, MenuEntry& mnuDesign, const ListView& lvCurrentWeapons,
               std::function<SheetShip()> figures);

private:
    MenuEntry& m_design;

public:
    MenuEntry mnuSheetPreview{m_design,
                              {.name = "mnuSheetPreview",
                               .caption = "Sheet Preview...",
                               .toolTip = "Shows the sheet as it will be printed"},
                              [this] { send(&SheetOutput::preview); }};
    MenuEntry mnuPrintSheet{m_design,
                            {.name = "mnuPrintSheet",
                             .caption = "Print Sheet...",
                             .toolTip = "Prints the sheet on the map that fits the ship best",
                             .shortcut = "Ctrl+Shift+P"},
                            [this] { send(&SheetOutput::print); }};
    MenuEntry mnuExportSheet{
        m_design,
        {.name = "mnuExportSheet",
         .caption = "Export Sheet...",
         .toolTip = "Saves the sheet as PDF, SVG or PNG, with the design in it",
         .shortcut = "Ctrl+E"},
        [this] { send(&SheetOutput::exportFile); }};
    MenuEntry mnuSepSheet{m_design, {.name = "mnuSepSheet", .caption = "-"}};

private:
    void send(void (SheetOutput::*way)(const SheetOutput::Source&) const);

    const ListView& m_aboard;
    std::function<SheetShip()> m_figures;
};

}  // namespace fleetwright
