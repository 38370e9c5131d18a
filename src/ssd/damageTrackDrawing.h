#pragma once

#include "DamageTrack.h"
#include "Drawing.h"

namespace fleetwright {

/// A damage track as lines, on paper as large as its room: what the picture of the track shows, or
/// would show where there is none.
Drawing damageTrackDrawing(std::int32_t points, std::int32_t rows, PictureSize room);

}  // namespace fleetwright
