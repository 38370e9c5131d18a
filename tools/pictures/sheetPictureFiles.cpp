#include "Artwork.h"
#include "DamageTrack.h"
#include "HullRules.h"
#include "PictureSet.h"
#include "SheetPictures.h"
#include "boxDrawing.h"
#include "drawing.h"
#include "pictureFiles.h"

namespace fleetwright {

namespace {

/// The outline of a box.
void drawBox(QImage& image, const QRect& box) {
    for (int x = box.left(); x <= box.right(); ++x) {
        image.setPixel(x, box.top(), 1);
        image.setPixel(x, box.bottom(), 1);
    }
    for (int y = box.top(); y <= box.bottom(); ++y) {
        image.setPixel(box.left(), y, 1);
        image.setPixel(box.right(), y, 1);
    }
}

PictureFile drawTrack(TrackSize size, int points) {
    const PictureSize room = trackPictureSize(size);
    const DamageTrack track = damageTrack(points, trackRows(size, points), room);
    QImage image = blankInk({room.width, room.height});
    std::vector<QRect> boxes;
    for (const TrackBox& box : track.boxes) {
        boxes.emplace_back(box.x, box.y, track.side, track.side);
        drawBox(image, boxes.back());
    }
    return {gifFile(image), boxDrawing(image.size(), boxes)};
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
