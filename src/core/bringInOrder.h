#pragma once

namespace fleetwright {

class ShipClass;

/// Brings in order what AutoMass or a file has brought out of it, as the main window does that
/// loads the ship: a base does not move, and no mass is below the smallest. Throws OverflowError
/// where a figure does not fit.
void bringInOrder(ShipClass& ship);

}  // namespace fleetwright
