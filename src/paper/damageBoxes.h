#pragma once

#include "Drawing.h"

#include <vector>

namespace fleetwright {

struct VectorSheet;

/// Where the boxes of a sheet's damage track are, in pixels of the outline and in the order in
/// which they are crossed off: one for each damage point. None if the sheet shows no track, or one
/// that is none of ours.
std::vector<Box> damageBoxes(const VectorSheet& sheet);

}  // namespace fleetwright
