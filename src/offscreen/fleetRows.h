#pragma once

#include "FleetRow.h"

#include <string>

namespace fleetwright {

class ShipOnScreen;

/// Loads a ship of a fleet, by its path or code (`shipPath`), and says what has become of it. The
/// ship stays on the screen. Throws FileError when the catalogue cannot be used.
FleetRow fleetRow(ShipOnScreen& screen, const std::string& ship);

}  // namespace fleetwright
