#pragma once

#include "compareShips.h"
#include "figuresJson.h"

namespace fleetwright {

/// What a ship has, with the keys of `figures`; null for a system that it does not have.
Json cellJson(const ComparedLine::Cell& cell, ComparedLine::About about);

}  // namespace fleetwright
