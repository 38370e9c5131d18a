#include "playFleet.h"

#include "Error.h"

#include <cstddef>
#include <string>
#include <utility>

namespace fleetwright {

PlayFleet playFleet(const Fleet& fleet, std::vector<std::optional<VectorSheet>> sheets) {
    PlayFleet play{fleet.name, fleet.player, fleet.notes, {}, {}};
    for (std::size_t i = 0; i < fleet.ships.size(); ++i) {
        if (!sheets[i]) {
            continue;
        }
        const FleetShip& ship = fleet.ships[i];
        const std::string& shipName = sheets[i]->facts.shipName;
        if (play.ships.size() + std::size_t(ship.count) > mostPlayShips) {
            throw Error("a page to play with serves " + std::to_string(mostPlayShips) +
                        " ships at the most");
        }
        for (std::size_t one = 0; one < std::size_t(ship.count); ++one) {
            const std::string number = ship.count > 1 ? ' ' + std::to_string(one + 1) : "";
            play.ships.push_back(
                {ownName(ship, one, shipName + number), ship.notes, play.sheets.size()});
        }
        play.sheets.push_back(std::move(*sheets[i]));
    }
    return play;
}

}  // namespace fleetwright
