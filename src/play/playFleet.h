#pragma once

#include "Fleet.h"
#include "playPage.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace fleetwright {

/// The most ships of a fleet that a browser shows well.
inline constexpr std::size_t mostPlayShips = 500;

/// Throws Error for a fleet of more than that.
void checkCanBePlayed(const Fleet& fleet);

/// A fleet on the table: each of its ships as often as it has her, by her own name; those of one
/// design that have none are numbered. There is a sheet for each `FleetShip`, or nothing for one
/// that does not load and is left out. Throws Error for more than `mostPlayShips`.
PlayFleet playFleet(const Fleet& fleet, std::vector<std::optional<VectorSheet>> sheets);

}  // namespace fleetwright
