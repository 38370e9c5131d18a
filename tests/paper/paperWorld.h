#pragma once

#include "ListView.h"
#include "PageDocument.h"
#include "sheetDocument.h"

#include <vector>

namespace fleetwright {

/// What the main window shows of a ship.
SheetShip shownShip(ShipClass& ship);
std::vector<ListView::Row> rowsOf(const ShipClass& ship);

/// Fails a test for each item that leaves the margins.
void expectInsideMargins(const PageDocument& document);

}  // namespace fleetwright
