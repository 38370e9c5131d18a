#include "sheetShip.h"

#include "frmMain.h"

namespace fleetwright {

SheetShip sheetShip(const frmMain& window) {
    return {.txtDP = window.figures.txtDP.text(),
            .txtDCP = window.figures.txtDCP.text(),
            .txtFireCon = window.figures.txtFireCon.text(),
            .txtShipName = window.names.txtShipName.text(),
            .txtDesigner = window.names.txtDesigner.text(),
            .txtCost = window.figures.txtCost.text(),
            .ship = *window.g_Ship};
}

}  // namespace fleetwright
