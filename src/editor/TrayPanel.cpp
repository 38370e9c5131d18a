#include "TrayPanel.h"

#include "Desktop.h"
#include "Globals.h"

namespace fleetwright {

TrayPanel::TrayPanel(const PanelContext& context, MenuEntry& mnuTaskBarFunctions)
    : Panel(context), m_taskBarFunctions(mnuTaskBarFunctions) {}

void TrayPanel::followState() {
    if (form().state() == WindowState::Minimized) {
        tray1.setOn(true);
        // Without a tray nobody would find the window again.
        if (services().globals.g_bHide && tray1.isAvailable()) {
            form().hide();
        }
        return;
    }
    tray1.setOn(false);
    if (services().globals.g_bHide) {
        form().show();
    }
}

void TrayPanel::keepFindable() {
    if (form().state() == WindowState::Minimized && !form().isVisible() && !tray1.isAvailable()) {
        form().show();
    }
}

void TrayPanel::tray1_RightClick() {
    services().desktop.popUp(m_taskBarFunctions);
}

void TrayPanel::mnuExitTask_Click() {
    form().unload();
}

void TrayPanel::restore() {
    form().setState(WindowState::Normal);
    form().show();
}

}  // namespace fleetwright
