#include "playFleet.h"

#include "Error.h"

#include <cstddef>
#include <string>

namespace fleetwright {

void checkCanBePlayed(const Fleet& fleet) {
    const std::int64_t count = shipCount(fleet);
    if (count > mostPlayShips) {
        throw Error("a page to play with serves " + std::to_string(mostPlayShips) +
                    " ships at the most, and the fleet has " + std::to_string(count));
    }
}

PlayFleet playFleet(const Fleet& fleet, const FleetSheets& sheets) {
    checkCanBePlayed(fleet);
    PlayFleet play{fleet.name, fleet.player, fleet.notes, {}, {}};
    for (std::size_t i = 0; i < fleet.ships.size(); ++i) {
        if (!sheets[i]) {
            continue;
        }
        const FleetShip& ship = fleet.ships[i];
        const std::string& shipName = sheets[i]->facts.shipName;
        for (std::size_t one = 0; one < std::size_t(ship.count); ++one) {
            play.ships.push_back({ownName(ship, one, shipName), ship.notes, play.sheets.size()});
        }
        play.sheets.push_back(*sheets[i]);
    }
    return play;
}

}  // namespace fleetwright
