#include "WindowCommands.h"

#include "Desktop.h"
#include "Globals.h"
#include "frmExtras.h"
#include "paths.h"
#include "text.h"

namespace fleetwright {

WindowCommands::WindowCommands(const PanelContext& context, MenuEntry& mnuExtras,
                               MenuEntry& mnuHelpTop)
    : Panel(context), m_extras(mnuExtras), m_helpTop(mnuHelpTop) {}

void WindowCommands::show() {
    const std::int16_t largest = services().globals.g_iLargestSSD;
    const bool isServed = getsSheet(ship().mass(), largest);
    mnuSSD.setEnabled(isServed);
    mnuSSD.setToolTip(isServed       ? "Draws the sheet as a bitmap"
                      : largest == 0 ? "There is no map to draw a sheet on"
                                     : "The ship is too heavy for a bitmap; see Design > Export "
                                       "Sheet...");
}

void WindowCommands::sayDroppedMaps() {
    const std::vector<DroppedMap>& dropped = services().globals.droppedMaps;
    if (dropped.empty()) {
        return;
    }
    const auto nameOf = [](const DroppedMap& map) { return pathText(map.file.filename()); };
    if (dropped.size() == 1) {
        const std::string name = nameOf(dropped.front());
        window().say((name == "maps" ? "No map can be used: " : "1 map cannot be used: ") +
                     complaint(name, dropped.front().fault));
        return;
    }
    std::string names;
    for (const DroppedMap& map : dropped) {
        names += (names.empty() ? "" : ", ") + nameOf(map);
    }
    window().say(std::to_string(dropped.size()) + " maps cannot be used: " + shownText(names));
}

void WindowCommands::mnuExtrasPage_Click() {
    frmExtras& page = services().extras();
    page.load();
    page.txtDesigner.setText(ship().g_sDesignerName);
    page.txtShipName.setText(ship().g_sShipName);
    services().desktop.showModal(page, form());
    act([this] { window().RefreshScreen(); });
}

void WindowCommands::mnuHelp_Click() {
    window().say("The player's guide is in the menu Design");
    services().desktop.showMessage("Sorry, help is not yet available", "Help");
}

}  // namespace fleetwright
