#include "Artwork.h"
#include "HullRules.h"
#include "PictureSet.h"
#include "SheetPictures.h"
#include "damageTrackDrawing.h"
#include "drawing.h"
#include "pictureFiles.h"

namespace fleetwright {

namespace {

/// The outline of a box whose upper left corner is at (x, y).
void drawBox(QImage& image, int x, int y, int side) {
    for (int i = 0; i < side; ++i) {
        image.setPixel(x + i, y, 1);
        image.setPixel(x + i, y + side - 1, 1);
        image.setPixel(x, y + i, 1);
        image.setPixel(x + side - 1, y + i, 1);
    }
}

PictureFile drawTrack(TrackSize size, int points) {
    const PictureSize room = trackPictureSize(size);
    const std::int32_t rows = trackRows(size, points);
    const DamageTrack track = damageTrack(points, rows, room);
    QImage image = blankInk({room.width, room.height});
    for (const TrackBox& box : track.boxes) {
        drawBox(image, box.x, box.y, track.side);
    }
    return {gifFile(image), damageTrackDrawing(points, rows, room)};
}

PictureFile drawSheetSource(const Artwork& artwork, const std::string& name,
                            const Variant& variant = {}) {
    return inkPicture({artwork.svg("sheet/" + name, variant)}, systemSize);
}

}  // namespace

PictureSet sheetPictureFiles(const Artwork& artwork) {
    PictureSet pictures;
    pictures[std::string(fireControlPicture)] = drawSheetSource(artwork, "fire-control");
    pictures[std::string(unusedFireControlPicture)] = inkPicture({}, systemSize);
    pictures[drivePicture(NoDrive)] = inkPicture({}, systemSize);
    pictures[drivePicture(NormalDrive)] = drawSheetSource(artwork, "drive", {{"drive", "normal"}});
    pictures[drivePicture(TugDrive)] = drawSheetSource(artwork, "drive", {{"drive", "tug"}});
    for (int thrust = 0; thrust <= mostThrust; ++thrust) {
        pictures[thrustPicture(thrust)] =
            drawSheetSource(artwork, "thrust", {{"thrust", std::to_string(thrust)}});
    }
    for (const TrackSize size : trackSizes) {
        for (int points = 0; points <= mostDamagePoints(size); ++points) {
            pictures[damageTrackPicture(size, std::to_string(points))] = drawTrack(size, points);
        }
    }
    return pictures;
}

}  // namespace fleetwright
