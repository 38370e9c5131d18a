#include "FleetRow.h"

#include "ShipClass.h"
#include "designWords.h"

namespace fleetwright {

ShipFigures shipFigures(const ShipClass& ship) {
    return {.name = ship.g_sShipName,
            .designer = ship.g_sDesignerName,
            .hull = std::string(hullWord(ship.Hull())),
            .shipClass = ship.Class(),
            .designation = ship.relSize(),
            .mass = ship.mass(),
            .points = ship.g_lCost,
            .damagePoints = ship.g_iDP,
            .damageRows = ship.g_iDamRows,
            .thrust = ship.THRUST(),
            .ftl = ship.FTL(),
            .armor = ship.Armor(),
            .streamline = ship.Streamline(),
            .massLeft = ship.g_iMassLeft};
}

bool hasChanged(const FleetShip& ship, const FleetRow& row) {
    return !ship.fingerprint.empty() && !row.fingerprint.empty() &&
           ship.fingerprint != row.fingerprint;
}

}  // namespace fleetwright
