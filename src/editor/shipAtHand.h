#pragma once

#include "FleetWindow.h"

namespace fleetwright {

class frmMain;

/// The ship of the main window, for a fleet. Throws Error if there is no way to take it there.
ShipAtHand shipAtHand(const frmMain& window);

}  // namespace fleetwright
