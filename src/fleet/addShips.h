#pragma once

#include "Fleet.h"

#include <cstddef>
#include <string>
#include <vector>

namespace fleetwright {

/// Adds ships, by what the fleet calls their files: one more of a design that is there, else a
/// design behind all others. Returns the place of the last one. Throws Error, with the fleet as it
/// was, if that is more than a fleet can have.
std::size_t addShips(Fleet& fleet, const std::vector<std::string>& files);

}  // namespace fleetwright
