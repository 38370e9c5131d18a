#pragma once

#include "Fault.h"

#include <optional>
#include <string_view>
#include <vector>

namespace fleetwright {

class ShipClass;

/// Everything that is wrong with the text of a ship file, by line; what is wrong with the ship as
/// a whole comes last. `ship` is the loaded file; where it does not load, `loadFault` says why, and
/// of `ship` only the catalogue and the lines that it refused count.
std::vector<Fault> checkShipFile(std::string_view text, const ShipClass& ship,
                                 const std::optional<Fault>& loadFault);

}  // namespace fleetwright
