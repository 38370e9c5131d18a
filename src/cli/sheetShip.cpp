#include "sheetShip.h"

#include "frmMain.h"

namespace fleetwright {

SheetShip sheetShip(const frmMain& window) {
    return {.txtDP = window.txtDP.text(),
            .txtDCP = window.txtDCP.text(),
            .txtFireCon = window.txtFireCon.text(),
            .txtShipName = window.txtShipName.text(),
            .txtDesigner = window.txtDesigner.text(),
            .txtCost = window.txtCost.text(),
            .ship = *window.g_Ship};
}

}  // namespace fleetwright
