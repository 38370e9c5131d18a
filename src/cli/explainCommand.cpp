#include "commands.h"

#include "ShipOnScreen.h"
#include "explainShip.h"

namespace fleetwright {

int runExplain(const Options& options) {
    return forEachShip(options, RefusedLines::AsComplaints, [](std::size_t, ShipOnScreen& screen) {
        std::string text = screen.ship().g_sShipName + '\n';
        for (const Explanation& explanation : explainShip(screen.ship())) {
            text += textOf(explanation);
        }
        return text;
    });
}

}  // namespace fleetwright
