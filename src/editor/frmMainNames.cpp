// The two names of the ship in the main window. A double-click, or F2, opens a box; the Enter key
// or another double-click commits what it holds. Names are written past the recalculation.

#include "frmMain.h"

namespace fleetwright {

void frmMain::nameShip(const std::string& designer, const std::string& shipName) {
    g_Ship->g_sDesignerName = designer;
    g_Ship->g_sShipName = shipName;
}

void frmMain::openName(TextBox& box, bool& isEditing) {
    box.setLocked(false);
    isEditing = true;
}

void frmMain::commitName(TextBox& box, bool& isEditing, std::string& name) {
    box.setLocked(true);
    name = box.text();
    isEditing = false;
    tmrRecovery.restart();
}

void frmMain::txtShipName_DblClick() {
    if (bShipNameEditing) {
        commitName(txtShipName, bShipNameEditing, g_Ship->g_sShipName);
    } else {
        openName(txtShipName, bShipNameEditing);
    }
}

void frmMain::txtDesigner_DblClick() {
    if (bDesignerEditing) {
        commitName(txtDesigner, bDesignerEditing, g_Ship->g_sDesignerName);
    } else {
        openName(txtDesigner, bDesignerEditing);
    }
}

bool frmMain::txtShipName_KeyPress(int KeyAscii) {
    if (KeyAscii == EnterKey && bShipNameEditing) {
        commitName(txtShipName, bShipNameEditing, g_Ship->g_sShipName);
    }
    return false;
}

bool frmMain::txtDesigner_KeyPress(int KeyAscii) {
    if (KeyAscii == EnterKey && bDesignerEditing) {
        commitName(txtDesigner, bDesignerEditing, g_Ship->g_sDesignerName);
    }
    return false;
}

}  // namespace fleetwright
