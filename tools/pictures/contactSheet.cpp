#include "contactSheet.h"

#include "Lettering.h"
#include "drawing.h"

#include <QPainter>

#include <algorithm>

namespace fleetwright {

namespace {

constexpr int pageWidth = 1800, cellGap = 10, nameHeight = 22, enlargement = 4;

/// The largest picture that is shown enlarged; splash pictures are large enough.
constexpr int widestEnlarged = 150;

void drawName(QPainter& painter, QPoint place, const std::string& name,
              const Lettering& lettering) {
    const std::string svg = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 -24 640 32">)"
                            R"(<path fill="none" stroke="#235" stroke-width="2" d=")" +
                            lettering.outline(name, 3) + R"("/></svg>)";
    painter.drawImage(place, drawColours(QByteArray::fromStdString(svg), {320, 16}));
}

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
    drawName(painter, place, *cell.name, lettering);
    const QPoint at = place + QPoint(0, nameHeight);
    painter.drawImage(at, cell.image);
    if (cell.image.width() <= widestEnlarged) {
        painter.drawImage(at + QPoint(cell.image.width() + cellGap, 0),
                          cell.image.scaled(cell.image.size() * enlargement));
    }
}

}  // namespace

QImage contactSheet(const PictureSet& pictures, const Lettering& lettering) {
    std::vector<std::pair<QPoint, Cell>> cells;
    QPoint place(cellGap, cellGap);
    int rowHeight = 0;
    for (const auto& [name, bytes] : pictures) {
        const QImage image = QImage::fromData(QByteArray::fromStdString(bytes));
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
    page.fill(QColor(225, 228, 232));
    QPainter painter(&page);
    for (const auto& [at, cell] : cells) {
        drawCell(painter, at, cell, lettering);
    }
    return page;
}

}  // namespace fleetwright
