// The main window as an icon in the tray.

#include "frmMain.h"

#include "Desktop.h"
#include "Globals.h"

namespace fleetwright {

void frmMain::Form_Resize() {
    if (!g_Ship) {
        return;  // the window is closing
    }
    if (state() == WindowState::Minimized) {
        tray1.setOn(true);
        // Without a tray nobody would find the window again.
        if (m_services.globals.g_bHide && tray1.isAvailable()) {
            hide();
        }
        return;
    }
    tray1.setOn(false);
    if (m_services.globals.g_bHide) {
        show();
    }
}

/// Brings a hidden window back into the task bar when the tray has gone in which its icon was. One
/// that the tick has closed, because that was to wait for its end, stays closed.
void frmMain::keepFindable() {
    if (g_Ship && state() == WindowState::Minimized && !isVisible() && !tray1.isAvailable()) {
        show();
    }
}

void frmMain::tray1_RightClick() {
    m_services.desktop.popUp(mnuTaskBarFunctions);
}

void frmMain::restore() {
    setState(WindowState::Normal);
    show();
}

}  // namespace fleetwright
