#include "playFleet.h"

#include "Error.h"

#include <cstddef>
#include <string>
#include <utility>

namespace fleetwright {

void checkCanBePlayed(const Fleet& fleet) {
    std::size_t count = 0;
    for (const FleetShip& ship : fleet.ships) {
        count += std::size_t(ship.count);
    }
    if (count > mostPlayShips) {
        throw Error("a page to play with serves " + std::to_string(mostPlayShips) +
                    " ships at the most, and the fleet has " + std::to_string(count));
    }
}

PlayFleet playFleet(const Fleet& fleet, std::vector<std::optional<VectorSheet>> sheets) {
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
        play.sheets.push_back(std::move(*sheets[i]));
    }
    return play;
}

}  // namespace fleetwright
