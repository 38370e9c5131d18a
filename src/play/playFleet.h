#pragma once

#include "Fleet.h"
#include "fleetDocument.h"
#include "playPage.h"

#include <cstddef>

namespace fleetwright {

/// The most ships of a fleet that a browser shows well.
inline constexpr int mostPlayShips = 500;

/// Throws Error for a fleet of more than that.
void checkCanBePlayed(const Fleet& fleet);

/// A fleet on the table: each of its ships as often as it has her, by her own name; those of one
/// design that have none are numbered. There is a sheet for each `FleetShip`, or null for one
/// that does not load and is left out. Throws Error for more than `mostPlayShips`.
PlayFleet playFleet(const Fleet& fleet, const FleetSheets& sheets);

}  // namespace fleetwright
