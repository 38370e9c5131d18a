#include "shipAtHand.h"

#include "Error.h"
#include "frmMain.h"

namespace fleetwright {

ShipAtHand shipAtHand(const frmMain& window) {
    if (!window.g_Ship) {
        throw Error("There is no ship at hand");
    }
    const ShipClass& ship = *window.g_Ship;
    if (ship.origin.empty()) {
        throw Error("The ship at hand is in no file yet: save it first, in the main window");
    }
    return {.name = ship.g_sShipName, .file = ship.origin, .code = {}, .isChanged = !ship.g_bSaved};
}

}  // namespace fleetwright
