#include "damageTrackDrawing.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

namespace fleetwright {

namespace {

/// Lines are centred on the pixels that they fill.
std::string middleOf(int pixel) {
    return std::to_string(pixel) + ".5";
}

/// Boxes side by side, from this column up to that one: all around them, then the sides between.
std::string rowPath(int first, int last, int y, int side) {
    const std::string left = middleOf(first), right = middleOf(last + side - 1);
    const std::string top = ' ' + middleOf(y), bottom = ' ' + middleOf(y + side - 1);
    std::string path =
        'M' + left + top + 'L' + right + top + 'L' + right + bottom + 'L' + left + bottom + 'Z';
    for (int x = first + side - 1; x <= last; x += side - 1) {
        path += 'M' + middleOf(x) + top + 'L' + middleOf(x) + bottom;
    }
    return path;
}

}  // namespace

Drawing damageTrackDrawing(std::int32_t points, std::int32_t rows, PictureSize room) {
    const DamageTrack track = damageTrack(points, rows, room);
    Drawing drawing{.width = room.width, .height = room.height, .ink = {}, .shapes = {}};
    DrawnShape boxes;
    boxes.stroke = 0x000000;
    for (auto box = track.boxes.begin(); box != track.boxes.end();) {
        const TrackBox first = *box;
        const auto next =
            std::find_if(box, track.boxes.end(), [&](TrackBox at) { return at.y != first.y; });
        const int last = std::prev(next)->x;
        boxes.path += rowPath(first.x, last, first.y, track.side);
        drawing.ink.width = std::max(drawing.ink.width, double(last + track.side));
        drawing.ink.height = std::max(drawing.ink.height, double(first.y + track.side));
        box = next;
    }
    if (!track.boxes.empty()) {
        drawing.shapes.push_back(std::move(boxes));
    }
    return drawing;
}

}  // namespace fleetwright
