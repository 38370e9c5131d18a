#include "fleetRows.h"

#include "Error.h"
#include "ShipOnScreen.h"
#include "fingerprint.h"
#include "fleetFile.h"
#include "readShip.h"

namespace fleetwright {

FleetRow fleetRow(ShipOnScreen& screen, const std::string& ship) {
    FleetRow row;
    if (ship.empty()) {
        return row;  // whoever has read the fleet has said so
    }
    try {
        const std::string text = readShip(ship).text;
        if (isFleet(text)) {
            row.faults.push_back({0, fleetIsNoShip});
            return row;
        }
        row.fingerprint = fingerprint(text);
    } catch (const Error&) {
        // The load fails likewise, and says why.
    }
    if (const auto fault = screen.load(ship)) {
        row.faults.push_back(*fault);
        return row;
    }
    row.figures = shipFigures(screen.ship());
    for (const RefusedLine& line : screen.ship().refusedLines()) {
        row.faults.push_back(line.fault);
    }
    return row;
}

}  // namespace fleetwright
