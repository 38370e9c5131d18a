#include "thumbnailPage.h"

#include "Error.h"
#include "damageTrackDrawing.h"
#include "scaledDrawing.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace fleetwright {

Page thumbnailPage(const std::vector<SheetRecord>& ships) {
    constexpr double margin = 2;
    const std::size_t count = std::min(ships.size(), mostInThumbnail);
    const std::size_t columns = count == 1 ? 1 : 2, rows = (count + 1) / 2;
    const double width = thumbnailSide / double(columns), height = thumbnailSide / double(rows);
    Page page;
    for (std::size_t ship = 0; ship < count; ++ship) {
        const std::size_t row = ship / columns;
        const double inRow = double(std::min(columns, count - row * columns));
        const double middleX =
            thumbnailSide / 2 + (double(ship % columns) - (inRow - 1) / 2) * width;
        const double middleY = (double(row) + 0.5) * height;
        const Box ink = inkOf(ships[ship]);
        const double scale =
            std::min((width - 2 * margin) / ink.width, (height - 2 * margin) / ink.height);
        putDrawing(page, ships[ship], ink, middleX - ink.width * scale / 2,
                   middleY - ink.height * scale / 2, scale);
    }
    return page;
}

SheetRecord trackRecord(std::int32_t points, std::int32_t rows) {
    constexpr PictureSize room{.width = 320, .height = 240};
    constexpr std::int32_t mostPoints = 10'000;
    Drawing track;
    if (points > 0 && points <= mostPoints && rows > 0 && rows <= room.height) {
        track = damageTrackDrawing(points, rows, room);
    }
    if (track.shapes.empty()) {
        throw Error("cannot be drawn: " + std::to_string(points) + " damage points");
    }
    SheetRecord record;
    record.outline.picture.drawing = std::make_shared<const Drawing>(std::move(track));
    record.outline.width = room.width;
    record.outline.height = room.height;
    return record;
}

}  // namespace fleetwright
