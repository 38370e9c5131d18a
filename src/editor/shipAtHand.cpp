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
    const bool isChanged = !ship.g_bSaved || !window.recovery.isSafe();
    // Nothing is ever saved into a sheet.
    const bool isInFile = !ship.origin.empty() && !(isChanged && ship.g_sSaveName.empty());
    return {.name = ship.g_sShipName,
            .file = isInFile ? ship.origin : std::string(),
            .code = isInFile ? std::string() : designCode(ship.shipFile()),
            .isChanged = isChanged};
}

}  // namespace fleetwright
