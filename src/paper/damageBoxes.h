#pragma once

#include "Drawing.h"

#include <vector>

namespace fleetwright {

struct VectorSheet;

/// Where the boxes of a sheet's damage track are, in pixels of the outline and in the order in
/// which they are crossed off: one for each damage point. None if the sheet shows no track, or one
/// that is none of ours.
std::vector<Box> damageBoxes(const VectorSheet& sheet);

/// The side of such a box with its lines, in pixels of the outline; 0 for a ship without damage
/// points.
int damageBoxSide(const VectorSheet& sheet);

}  // namespace fleetwright
