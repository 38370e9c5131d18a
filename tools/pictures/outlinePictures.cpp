#include "Artwork.h"
#include "DrawingRecorder.h"
#include "OutlineMarks.h"
#include "PictureSet.h"
#include "SheetPictures.h"
#include "drawing.h"
#include "mapMarks.h"
#include "pictureFiles.h"

#include <algorithm>

namespace fleetwright {

namespace {

/// Outlines are drawn in shades of grey, which are so few that marks and shades fit a GIF file.
constexpr int shades = 32;

/// The colours of an outline: from white to black, then those of the marks.
QList<QRgb> outlineColours() {
    QList<QRgb> colours;
    for (int i = 0; i < shades; ++i) {
        const int grey = 255 - 255 * i / (shades - 1);
        colours.append(qRgb(grey, grey, grey));
    }
    for (const MapMark& mark : mapMarks) {
        colours.append(0xFF000000U | mark.colour);
    }
    return colours;
}

unsigned indexOf(const QImage& image, std::uint32_t colour) {
    return static_cast<unsigned>(image.colorTable().indexOf(0xFF000000U | colour));
}

QImage drawShades(const QByteArray& svg, QSize size) {
    const QImage drawing = drawColours(svg, size);
    QImage image(size, QImage::Format_Indexed8);
    image.setColorTable(outlineColours());
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QRgb pixel = drawing.pixel(x, y);
            const int ink = (255 - qGray(pixel)) * qAlpha(pixel) / 255;
            image.setPixel(x, y, static_cast<unsigned>((ink * (shades - 1) + 127) / 255));
        }
    }
    return image;
}

/// Marks are single pixels, so they are set after all drawing. They lie in the upper left corner
/// of what will be pasted over them, and what belongs to them lies at their right. A track above
/// SIZE 100 gets none: nothing covers it on a bitmap sheet.
void setMark(QImage& image, const OutlineMark& mark) {
    const TrackLength* const length = trackLength(mark);
    if (mark.keyword == MapKeyword::DamRow && length == nullptr) {
        return;
    }
    const QPoint place = mark.box.topLeft();
    for (const MapMark& known : mapMarks) {
        if (known.keyword == mark.keyword) {
            image.setPixel(place, indexOf(image, known.colour));
        }
    }
    for (const ArcMark& arc : arcMarks) {
        if (arc.arc == mark.arc) {
            image.setPixel(place + QPoint(1, 0), indexOf(image, arc.colour));
        }
    }
    if (length != nullptr) {
        for (int i = 1; i <= length->blackPixels; ++i) {
            image.setPixel(place + QPoint(i, 0), indexOf(image, Black));
        }
    }
}

PictureFile drawOutline(const Artwork& artwork, const std::string& name) {
    const OutlineLayout layout = readOutlineLayout(artwork.file(name + ".svg"));
    const QByteArray svg = artwork.svg(name);
    QImage image = drawShades(svg, layout.size);
    for (const OutlineMark& mark : layout.marks) {
        setMark(image, mark);
    }
    return {gifFile(image), recordDrawing({svg}, layout.size)};
}

}  // namespace

PictureSet outlinePictures(const Artwork& artwork) {
    PictureSet pictures;
    for (const auto& entry : std::filesystem::directory_iterator(artwork.file("outlines"))) {
        const std::string name = entry.path().stem().string();
        pictures[name + ".gif"] = drawOutline(artwork, "outlines/" + name);
    }
    return pictures;
}

}  // namespace fleetwright
