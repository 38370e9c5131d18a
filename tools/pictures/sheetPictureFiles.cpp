#include "Artwork.h"
#include "HullRules.h"
#include "PictureSet.h"
#include "SheetPictures.h"
#include "drawing.h"
#include "pictureFiles.h"

#include <algorithm>

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

/// A box for each damage point, in rows that differ by one box at the most, the longer ones on
/// top. Neighbours share their sides, rows stand apart: the end of a row is what players wait for.
QImage drawTrack(TrackSize size, int points) {
    const PictureSize room = trackPictureSize(size);
    QImage image = blankInk({room.width, room.height});
    const int rows = trackRows(size, points);
    const int longest = (points + rows - 1) / rows;
    const int rowHeight = room.height / rows;
    constexpr int gap = 2;
    const int step = std::min((room.width - 1) / std::max(longest, 1), rowHeight - gap - 1);
    for (int row = 0; row < rows; ++row) {
        const int boxes = points / rows + (row < points % rows ? 1 : 0);
        for (int box = 0; box < boxes; ++box) {
            drawBox(image, box * step, row * (step + 1 + gap), step + 1);
        }
    }
    return image;
}

std::string drawSheetSource(const Artwork& artwork, const std::string& name,
                            const Variant& variant = {}) {
    return gifFile(drawInk({artwork.svg("sheet/" + name, variant)}, systemSize));
}

}  // namespace

PictureSet sheetPictureFiles(const Artwork& artwork) {
    PictureSet pictures;
    pictures[std::string(fireControlPicture)] = drawSheetSource(artwork, "fire-control");
    pictures[std::string(unusedFireControlPicture)] = gifFile(blankInk(systemSize));
    pictures[drivePicture(NoDrive)] = gifFile(blankInk(systemSize));
    pictures[drivePicture(NormalDrive)] = drawSheetSource(artwork, "drive", {{"drive", "normal"}});
    pictures[drivePicture(TugDrive)] = drawSheetSource(artwork, "drive", {{"drive", "tug"}});
    for (int thrust = 0; thrust <= mostThrust; ++thrust) {
        pictures[thrustPicture(thrust)] =
            drawSheetSource(artwork, "thrust", {{"thrust", std::to_string(thrust)}});
    }
    for (const TrackSize size : trackSizes) {
        for (int points = 0; points <= mostDamagePoints(); ++points) {
            pictures[damageTrackPicture(size, std::to_string(points))] =
                gifFile(drawTrack(size, points));
        }
    }
    return pictures;
}

}  // namespace fleetwright
