#pragma once

#include "ShipClass.h"

#include <string>

namespace fleetwright {

class TemporaryFolder;

/// A copy of the delivered catalogue, without the comments, which would only take time; its path.
std::string deliveredCatalogue(const TemporaryFolder& folder);

/// The six figures that a ship shows.
std::string figuresOf(const ShipClass& ship);

/// All that a ship holds but its files, so that two states can be compared as texts. Amounts
/// below 0, which no file keeps, are left out on demand.
std::string describe(const ShipClass& ship, bool withDebts = true);

/// Each figure of a ship is the sum of the terms that explain it.
void requireSums(ShipClass& ship);

/// A hull as the window brings it in order: no mass below the smallest, no moving base.
HullDesign inOrder(HullDesign hull);

/// Whether the ship carries what the cloak rule would have refused: a design can come to it by a
/// change of its hull, and its file then does not give all of it back.
bool breaksCloakRule(const ShipClass& ship);

/// Whether the first few of a ship's systems leave 32 bits, where all of them together do not. A
/// file with this ship is refused at the line of the last of those few.
bool overflowsOnTheWay(const ShipClass& ship, const ShipServices& services);

}  // namespace fleetwright
