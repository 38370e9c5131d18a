#pragma once

#include "PageDocument.h"

namespace fleetwright {

struct FirePower;
class FreeRoom;

/// Puts a ship's fire power as a rose, with the number of its weapons in each direction, into a
/// free place, which it takes. A ship without weapons has none, and neither has one without a
/// place.
void putFireRose(Page& page, const FirePower& power, FreeRoom& room);

}  // namespace fleetwright
