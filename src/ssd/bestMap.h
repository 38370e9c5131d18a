#pragma once

#include "SSDMaps.h"

#include <cstdint>
#include <string>
#include <vector>

namespace fleetwright {

class ShipClass;

/// The map for a ship whose user names none; null if there is no room for it on any. The systems
/// are those aboard, a name for each piece (`SheetLists::lstShipWeap`).
///
/// Among those that fit it is the one of the smallest SIZE, then for the ship's own kind of hull,
/// then with the fewest places for systems, then the first by name. One with too few points for the
/// ship's damage control parties or fire controls, on which no sheet can be drawn, comes behind all
/// others.
SSDMaps::Map bestMap(const SSDMaps& maps, const ShipClass& ship,
                     const std::vector<std::string>& systems);

/// What all maps lack if a ship of this mass, with so many systems besides damage control parties,
/// fits on none of them. In small letters, as a fault is told.
std::string whyNoMap(const SSDMaps& maps, std::int32_t mass, std::int32_t iShipWeapCount);

}  // namespace fleetwright
