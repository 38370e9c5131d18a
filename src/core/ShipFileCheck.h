#pragma once

#include "Fault.h"

#include <string_view>
#include <vector>

namespace fleetwright {

class ShipClass;

/// Everything that is wrong with the text of a ship file, by line; what is wrong with the ship as
/// a whole comes last. `ship` is that file after it was loaded, or as far as it could be.
std::vector<Fault> checkShipFile(std::string_view text, const ShipClass& ship);

}  // namespace fleetwright
