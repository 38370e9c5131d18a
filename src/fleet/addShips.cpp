#include "addShips.h"

#include "Error.h"

#include <unordered_map>

namespace fleetwright {

std::size_t addShips(Fleet& fleet, const std::vector<std::string>& files) {
    std::unordered_map<std::string, std::size_t> places;
    for (std::size_t i = 0; i < fleet.ships.size(); ++i) {
        places.try_emplace(fleet.ships[i].file, i);
    }
    std::vector<std::int32_t> more(fleet.ships.size());  // of each design
    std::vector<std::string> designs;
    std::size_t last = 0;
    for (const std::string& file : files) {
        const auto [known, isNew] = places.try_emplace(file, more.size());
        last = known->second;
        if (isNew) {
            more.push_back(0);
            designs.push_back(file);
        }
        const std::int32_t before = last < fleet.ships.size() ? fleet.ships[last].count : 0;
        if (++more[last] > FleetShip::mostCount - before) {
            throw Error("A fleet has " + std::to_string(FleetShip::mostCount) +
                        " ships of a design at the most");
        }
    }
    if (more.size() > Fleet::mostDesigns) {
        throw Error("A fleet has " + std::to_string(Fleet::mostDesigns) + " designs at the most");
    }
    for (const std::string& file : designs) {
        fleet.ships.emplace_back().file = file;
        fleet.ships.back().count = 0;
    }
    for (std::size_t i = 0; i < more.size(); ++i) {
        fleet.ships[i].count += more[i];
    }
    return last;
}

}  // namespace fleetwright
