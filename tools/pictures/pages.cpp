#include "pages.h"

#include "Artwork.h"
#include "Lettering.h"
#include "OutlineMarks.h"
#include "SheetPictures.h"
#include "drawing.h"
#include "mapMarks.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

namespace fleetwright {

namespace {

constexpr QRgb ground = qRgb(225, 228, 232);

/// A text in the program's own letters: how many of their units fit into a box, and how it is
/// drawn.
struct Writing {
    QSize box;  ///< pixels
    int units;  ///< of width
    int above;  ///< units above the base line
    const char* pen;
    double spacing;
};

void write(QPainter& painter, QPoint place, const std::string& text, const Lettering& lettering,
           const Writing& how) {
    const std::string svg = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 -)" +
                            std::to_string(how.above) + ' ' + std::to_string(how.units) +
                            R"( 32"><path fill="none" )" + how.pen + R"( d=")" +
                            lettering.outline(text, how.spacing) + R"("/></svg>)";
    painter.drawImage(place, drawColours(QByteArray::fromStdString(svg), how.box));
}

constexpr int pageWidth = 1800, cellGap = 10, nameHeight = 22, enlargement = 4;

/// The largest picture that is shown enlarged; splash pictures are large enough.
constexpr int widestEnlarged = 150;

struct Cell {
    const std::string* name;
    QImage image;
    QSize size;
};

Cell cellOf(const std::string& name, const QImage& image) {
    const bool isSmall = image.width() <= widestEnlarged;
    const int width = isSmall ? image.width() * (enlargement + 1) + cellGap : image.width();
    const int height = isSmall ? image.height() * enlargement : image.height();
    return {&name, image, {std::max(width, 210) + 2 * cellGap, height + nameHeight + cellGap}};
}

void drawCell(QPainter& painter, QPoint place, const Cell& cell, const Lettering& lettering) {
    write(painter, place, *cell.name, lettering,
          {{320, 16}, 640, 24, R"(stroke="#235" stroke-width="2")", 3});
    const QPoint at = place + QPoint(0, nameHeight);
    painter.drawImage(at, cell.image);
    if (cell.image.width() <= widestEnlarged) {
        painter.drawImage(at + QPoint(cell.image.width() + cellGap, 0),
                          cell.image.scaled(cell.image.size() * enlargement));
    }
}

constexpr const char* shownOutline = "Escort Warship - Kestrel";
constexpr int zoom = 6, margin = 12;

/// The parts of the outline that are shown: fore weapons with the fire control, and the track.
constexpr std::array<QRect, 2> parts = {{{134, 104, 92, 88}, {134, 442, 92, 46}}};

/// The lines that a mark makes in a map, in pieces that fit into its box.
std::vector<std::string> linesOf(const OutlineMark& mark) {
    std::string place = '(' + std::to_string(mark.box.x()) + ',' + std::to_string(mark.box.y());
    place += mark.arc == 0 ? ")" : std::string(",") + mark.arc + ')';
    std::vector<std::string> lines = {std::string(mapWord(mark.keyword)) + ": " + place};
    if (const TrackLength* const length = trackLength(mark)) {
        lines.push_back(std::string(mapWord(MapKeyword::Size)) + ": " +
                        std::to_string(length->size));
    }
    return lines;
}

}  // namespace

QImage contactSheet(const PictureSet& pictures, const Lettering& lettering) {
    std::vector<std::pair<QPoint, Cell>> cells;
    QPoint place(cellGap, cellGap);
    int rowHeight = 0;
    for (const auto& [name, file] : pictures) {
        const QImage image = QImage::fromData(QByteArray::fromStdString(file.bytes));
        const Cell cell = cellOf(name, image);
        if (place.x() > cellGap && place.x() + cell.size.width() > pageWidth) {
            place = {cellGap, place.y() + rowHeight};
            rowHeight = 0;
        }
        cells.emplace_back(place, cell);
        place.rx() += cell.size.width();
        rowHeight = std::max(rowHeight, cell.size.height());
    }
    QImage page(pageWidth, place.y() + rowHeight, QImage::Format_RGB32);
    page.fill(ground);
    QPainter painter(&page);
    for (const auto& [at, cell] : cells) {
        drawCell(painter, at, cell, lettering);
    }
    return page;
}

QImage marksPicture(const Artwork& artwork) {
    const std::string bytes = outlinePictures(artwork).at(std::string(shownOutline) + ".gif").bytes;
    const QImage outline = QImage::fromData(QByteArray::fromStdString(bytes));
    const OutlineLayout layout =
        readOutlineLayout(artwork.file(std::string("outlines/") + shownOutline + ".svg"));
    int height = margin;
    for (const QRect& part : parts) {
        height += part.height() * zoom + margin;
    }
    QImage page(parts[0].width() * zoom + 2 * margin, height, QImage::Format_RGB32);
    page.fill(ground);
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
                write(painter, line, text, artwork.lettering(),
                      {{300, 20}, 480, 26, R"(stroke="#147" stroke-width="2.4")", 4});
                line.ry() += 30;
            }
        }
        top += part.height() * zoom + margin;
    }
    return page;
}

}  // namespace fleetwright
