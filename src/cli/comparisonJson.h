#pragma once

#include "compareShips.h"

#include <nlohmann/json.hpp>

namespace fleetwright {

/// An object whose keys keep their order.
using Json = nlohmann::ordered_json;

/// What a ship has, with the keys of `figures`; null for a system that it does not have.
Json cellJson(const ComparedLine::Cell& cell, ComparedLine::About about);

}  // namespace fleetwright
