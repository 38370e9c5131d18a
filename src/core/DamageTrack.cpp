#include "DamageTrack.h"

#include <algorithm>

namespace fleetwright {

DamageTrack damageTrack(std::int32_t points, std::int32_t rows, PictureSize room) {
    constexpr int rowsThatCrowd = 9;
    const int gap = rows < rowsThatCrowd ? 2 : 1;
    const int longest = std::max((points + rows - 1) / rows, 1);
    const int side = std::min({(room.width - 1) / longest + 1,
                               (room.height - (rows - 1) * gap) / rows, systemPictureSize});
    constexpr int leastSide = 3;
    if (side < leastSide) {
        return {};
    }
    DamageTrack track{.side = side, .boxes = {}};
    track.boxes.reserve(static_cast<std::size_t>(std::max(points, 0)));
    for (int row = 0; row < rows; ++row) {
        const int boxes = points / rows + (row < points % rows ? 1 : 0);
        for (int box = 0; box < boxes; ++box) {
            track.boxes.push_back({box * (side - 1), row * (side + gap)});
        }
    }
    return track;
}

}  // namespace fleetwright
