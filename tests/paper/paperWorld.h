#pragma once

#include "ListView.h"
#include "PageDocument.h"
#include "sheetDocument.h"

#include <string>
#include <vector>

namespace fleetwright {

/// What the main window shows of a ship.
SheetShip shownShip(ShipClass& ship);
std::vector<ListView::Row> rowsOf(const ShipClass& ship);

/// Fails a test for each item that leaves the margins.
void expectInsideMargins(const PageDocument& document);

/// Where everything is, in tenths of a millimetre, and what it says.
std::string describedPages(const std::vector<Page>& pages);

}  // namespace fleetwright
