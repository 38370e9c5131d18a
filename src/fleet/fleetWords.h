#pragma once

// What a fleet's figures are in words.

#include "FleetSum.h"

#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// What is left of a limit, in words.
struct LimitWords {
    std::string text;  ///< "Capital: 3 of 2 ships, 1 too many", "Points: 900 of 1500, 600 left"
    bool isBroken = false;
};

/// The points limit, if there is one, and the others in the order of the fleet.
std::vector<LimitWords> limitWords(const Fleet& fleet, const FleetSum& sum);

/// "Escort, Scout": the class and the designation of a ship.
std::string sizeWords(const ShipFigures& ship);

/// The number of a thrust drive, or "-".
std::string thrustWord(const ShipFigures& ship);

/// "FTL", "Tug" or "-".
std::string_view driveWord(const ShipFigures& ship);

}  // namespace fleetwright
