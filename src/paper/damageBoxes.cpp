#include "damageBoxes.h"

#include "HullRules.h"
#include "damageTrackDrawing.h"
#include "sheetDocument.h"

#include <algorithm>

namespace fleetwright {

namespace {

bool haveSamePaths(const Drawing& a, const Drawing& b) {
    return std::ranges::equal(a.shapes, b.shapes, {}, &DrawnShape::path, &DrawnShape::path);
}

std::int32_t rowsOfTrack(const VectorSheet& sheet) {
    return sheet.mapMass > capitalMass
               ? sheet.facts.damageRows
               : trackRows(trackSize(sheet.mapMass), sheet.facts.damagePoints);
}

}  // namespace

int damageBoxSide(const VectorSheet& sheet) {
    const std::int32_t points = sheet.facts.damagePoints;
    return points <= 0 ? 0 : damageTrack(points, rowsOfTrack(sheet), trackRoom(sheet.mapMass)).side;
}

std::vector<Box> damageBoxes(const VectorSheet& sheet) {
    const std::int32_t points = sheet.facts.damagePoints;
    if (sheet.record.pastes.empty() || points <= 0) {
        return {};
    }
    // The track is pasted before all others.
    const SheetRecord::Paste& paste = sheet.record.pastes.front();
    const std::int32_t rows = rowsOfTrack(sheet);
    const PictureSize room = trackRoom(sheet.mapMass);
    if (!paste.picture.drawing ||
        !haveSamePaths(*paste.picture.drawing, damageTrackDrawing(points, rows, room))) {
        return {};
    }
    const DamageTrack track = damageTrack(points, rows, room);
    std::vector<Box> boxes;
    for (const TrackBox& box : track.boxes) {
        boxes.push_back({double(paste.x + box.x), double(paste.y + box.y), double(track.side),
                         double(track.side)});
    }
    return boxes;
}

}  // namespace fleetwright
