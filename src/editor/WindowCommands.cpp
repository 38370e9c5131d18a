#include "WindowCommands.h"

#include "Desktop.h"
#include "Globals.h"
#include "frmExtras.h"

namespace fleetwright {

WindowCommands::WindowCommands(const PanelContext& context, MenuEntry& mnuExtras,
                               MenuEntry& mnuHelpTop)
    : Panel(context), m_extras(mnuExtras), m_helpTop(mnuHelpTop) {}

void WindowCommands::show() {
    mnuSSD.setEnabled(ship().mass() <= services().globals.g_iLargestSSD);
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
    services().desktop.showMessage("Sorry, help is not yet available", "Help");
}

}  // namespace fleetwright
