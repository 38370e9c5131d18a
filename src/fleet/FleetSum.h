#pragma once

#include "FleetRow.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace fleetwright {

/// What the ships of a fleet come to. Those that do not load count for nothing.
struct FleetSum {
    std::int64_t ships = 0;
    std::int64_t mass = 0;
    std::int64_t points = 0;
    std::int64_t damagePoints = 0;
    std::optional<std::int64_t> pointsLeft;  ///< of the points limit; negative when it is broken
    std::vector<std::int64_t> limitsLeft;    ///< the same of each other limit, in the fleet's order
    std::size_t notLoaded = 0;               ///< designs without figures
    std::size_t changed = 0;                 ///< designs that are others than when it was written

    bool breaksLimit() const;

    friend bool operator==(const FleetSum&, const FleetSum&) = default;
};

/// Adds a fleet up. Cheap, so that whoever has one new row just does it again.
FleetSum fleetSum(const Fleet& fleet, const FleetRows& rows);

/// Whether a limit is about ships like this one.
bool isAbout(const FleetLimit& limit, const ShipFigures& ship);

}  // namespace fleetwright
