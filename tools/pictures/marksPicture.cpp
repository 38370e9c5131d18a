#include "marksPicture.h"

#include "Artwork.h"
#include "OutlineMarks.h"
#include "PictureSet.h"
#include "SheetPictures.h"
#include "drawing.h"
#include "mapMarks.h"

#include <QPainter>

#include <array>

namespace fleetwright {

namespace {

constexpr const char* shownOutline = "Escort Warship - Kestrel";
constexpr int zoom = 6, margin = 12;

/// The parts of the outline that are shown: fore weapons with the fire control, and the track.
constexpr std::array<QRect, 2> parts = {{{134, 104, 92, 88}, {134, 442, 92, 46}}};

void writeLine(QPainter& painter, QPoint place, const std::string& text,
               const Lettering& lettering) {
    const std::string svg = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 -26 480 32">)"
                            R"(<path fill="none" stroke="#147" stroke-width="2.4" d=")" +
                            lettering.outline(text, 4) + R"("/></svg>)";
    painter.drawImage(place, drawColours(QByteArray::fromStdString(svg), {300, 20}));
}

/// The lines that a mark makes in a map, in pieces that fit into its box.
std::vector<std::string> linesOf(const OutlineMark& mark) {
    std::string place = '(' + std::to_string(mark.box.x()) + ',' + std::to_string(mark.box.y());
    place += mark.arc == 0 ? ")" : std::string(",") + mark.arc + ')';
    std::vector<std::string> lines = {std::string(mapWord(mark.keyword)) + ": " + place};
    for (const TrackLength& track : trackLengths) {
        if (mark.keyword == MapKeyword::DamRow && mark.box.width() == track.blackPixels + 1) {
            lines.push_back(std::string(mapWord(MapKeyword::Size)) + ": " +
                            std::to_string(track.size));
        }
    }
    return lines;
}

}  // namespace

QImage marksPicture(const Artwork& artwork) {
    const std::string bytes = outlinePictures(artwork).at(std::string(shownOutline) + ".gif");
    const QImage outline = QImage::fromData(QByteArray::fromStdString(bytes));
    const OutlineLayout layout =
        readOutlineLayout(artwork.file(std::string("outlines/") + shownOutline + ".svg"));
    int height = margin;
    for (const QRect& part : parts) {
        height += part.height() * zoom + margin;
    }
    QImage page(parts[0].width() * zoom + 2 * margin, height, QImage::Format_RGB32);
    page.fill(QColor(225, 228, 232));
    QPainter painter(&page);
    int top = margin;
    for (const QRect& part : parts) {
        painter.drawImage(margin, top, outline.copy(part).scaled(part.size() * zoom));
        for (const OutlineMark& mark : layout.marks) {
            if (!part.contains(mark.box)) {
                continue;
            }
            const QPoint corner =
                (mark.box.topLeft() - part.topLeft()) * zoom + QPoint(margin, top);
            painter.setPen(QPen(QColor(150, 170, 190), 1, Qt::DashLine));
            painter.drawRect(QRect(corner, mark.box.size() * zoom));
            QPoint line = corner + QPoint(10, 40);
            for (const std::string& text : linesOf(mark)) {
                writeLine(painter, line, text, artwork.lettering());
                line.ry() += 30;
            }
        }
        top += part.height() * zoom + margin;
    }
    return page;
}

}  // namespace fleetwright
