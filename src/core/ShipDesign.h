#pragma once

#include "HullRules.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace fleetwright {

/// What ship files are called.
inline constexpr const char* shipExtension = ".shp";

/// What a ship file tells of a ship.
struct ShipDesign {
    std::string shipName;
    std::string designerName;
    HullDesign hull;
    /// Name and amount of each system, in the order of the file.
    std::vector<std::pair<std::string, std::int32_t>> systems;
};

/// The design as a ship file. Of names nothing is checked.
std::string shipFileOf(const ShipDesign& design);

}  // namespace fleetwright
