#pragma once

#include "SheetPictures.h"

#include <cstdint>
#include <vector>

namespace fleetwright {

/// The upper left corner of a box, in pixels from that of the track.
struct TrackBox {
    int x = 0;
    int y = 0;
};

/// How a damage track looks, whoever draws it.
struct DamageTrack {
    int side = 0;  ///< of a box, both lines included, which are one pixel wide
    std::vector<TrackBox> boxes;
};

/// A box for each damage point, as large as the room lets them be but no larger than the picture
/// of a system. There is at least one row; rows differ by one box at the most, the longer ones on
/// top. Neighbours share their sides, rows stand apart: the end of a row is what players wait for.
/// A room that is too small for boxes with white inside has none.
DamageTrack damageTrack(std::int32_t points, std::int32_t rows, PictureSize room);

}  // namespace fleetwright
