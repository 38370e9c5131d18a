#pragma once

#include "sheetDocument.h"

namespace fleetwright {

/// What a sheet says of a ship and of its systems, whose pictures are found as those of the
/// drawing. Throws OverflowError for figures that do not fit.
SheetFacts sheetFacts(const SheetShip& ship, const std::vector<ListView::Row>& lvCurrentWeapons,
                      const SheetSources& sources);

}  // namespace fleetwright
