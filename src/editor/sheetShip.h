#pragma once

#include "drawSSD.h"

namespace fleetwright {

class frmMain;

/// The ship of the main window and its figures as they stand there, for a sheet.
SheetShip sheetShip(const frmMain& window);

}  // namespace fleetwright
