#include "FleetSum.h"

#include <algorithm>
#include <limits>

namespace fleetwright {

static_assert(std::numeric_limits<std::int64_t>::max() / std::int64_t{Fleet::mostDesigns} /
                      FleetShip::mostCount / 2 >
                  std::numeric_limits<std::int32_t>::max(),
              "sums of a fleet are not checked");

bool FleetSum::breaksLimit() const {
    return pointsLeft.value_or(0) < 0 ||
           std::any_of(
               limitsLeft.begin(), limitsLeft.end(), [](std::int64_t left) { return left < 0; });
}

bool isAbout(const FleetLimit& limit, const ShipFigures& ship) {
    return limit.kind == ship.hull || limit.kind == ship.shipClass ||
           limit.kind == ship.designation;
}

FleetSum fleetSum(const Fleet& fleet, const FleetRows& rows) {
    FleetSum sum;
    for (const FleetLimit& limit : fleet.limits) {
        sum.limitsLeft.push_back(limit.most);
    }
    for (std::size_t i = 0; i < fleet.ships.size() && i < rows.size(); ++i) {
        if (!rows[i]) {
            continue;
        }
        sum.changed += hasChanged(fleet.ships[i], *rows[i]) ? 1U : 0U;
        if (!rows[i]->figures) {
            ++sum.notLoaded;
            continue;
        }
        const ShipFigures& ship = *rows[i]->figures;
        const std::int64_t count = fleet.ships[i].count;
        sum.ships += count;
        sum.mass += count * ship.mass;
        sum.points += count * ship.points;
        sum.damagePoints += count * ship.damagePoints;
        for (std::size_t j = 0; j < fleet.limits.size(); ++j) {
            if (isAbout(fleet.limits[j], ship)) {
                const bool ofShips = fleet.limits[j].unit == FleetLimit::Unit::Ships;
                sum.limitsLeft[j] -= ofShips ? count : count * ship.points;
            }
        }
    }
    if (fleet.pointsLimit) {
        sum.pointsLeft = *fleet.pointsLimit - sum.points;
    }
    return sum;
}

}  // namespace fleetwright
