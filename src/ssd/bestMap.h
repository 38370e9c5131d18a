#pragma once

#include "ListView.h"
#include "SSDMaps.h"

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

/// The same for a ship that has these systems aboard, as the main window lists them. Throws Error
/// where there is none, and says what all maps lack.
SSDMaps::Map bestMapOrWhyNone(const SSDMaps& maps, const ShipClass& ship,
                              const std::vector<ListView::Row>& lvCurrentWeapons);

}  // namespace fleetwright
