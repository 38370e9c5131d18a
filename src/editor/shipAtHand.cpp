#include "shipAtHand.h"

#include "Error.h"
#include "designCode.h"
#include "frmMain.h"

namespace fleetwright {

ShipAtHand shipAtHand(const frmMain& window) {
    if (!window.g_Ship) {
        throw Error("There is no ship at hand");
    }
    const ShipClass& ship = *window.g_Ship;
    return {.name = ship.g_sShipName,
            .file = ship.origin,
            .code = ship.origin.empty() ? designCode(ship.shipFile()) : std::string(),
            .isChanged = !ship.g_bSaved};
}

}  // namespace fleetwright
