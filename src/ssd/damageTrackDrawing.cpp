#include "damageTrackDrawing.h"

#include <algorithm>
#include <string>

namespace fleetwright {

namespace {

/// Lines are centred on the pixels that they fill.
std::string middleOf(int pixel) {
    return std::to_string(pixel) + ".5";
}

std::string boxPath(const TrackBox& box, int side) {
    const std::string left = middleOf(box.x), right = middleOf(box.x + side - 1);
    const std::string top = middleOf(box.y), bottom = middleOf(box.y + side - 1);
    return 'M' + left + ' ' + top + 'L' + right + ' ' + top + 'L' + right + ' ' + bottom + 'L' +
           left + ' ' + bottom + 'Z';
}

}  // namespace

Drawing damageTrackDrawing(std::int32_t points, std::int32_t rows, PictureSize room) {
    const DamageTrack track = damageTrack(points, rows, room);
    Drawing drawing{.width = room.width, .height = room.height, .ink = {}, .shapes = {}};
    DrawnShape boxes;
    boxes.stroke = 0x000000;
    for (const TrackBox& box : track.boxes) {
        boxes.path += boxPath(box, track.side);
        drawing.ink.width = std::max(drawing.ink.width, double(box.x + track.side));
        drawing.ink.height = std::max(drawing.ink.height, double(box.y + track.side));
    }
    if (!track.boxes.empty()) {
        drawing.shapes.push_back(std::move(boxes));
    }
    return drawing;
}

}  // namespace fleetwright
