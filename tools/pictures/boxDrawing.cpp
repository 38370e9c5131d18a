#include "boxDrawing.h"

#include "pathData.h"

#include <cstddef>

namespace fleetwright {

namespace {

/// The middle of the lines along the edges of a box.
QRectF middleOfLines(const QRect& box) {
    return QRectF(box).adjusted(.5, .5, -.5, -.5);
}

bool sharesSide(const QRect& box, const QRect& next) {
    return next.left() == box.right() && next.top() == box.top() && next.height() == box.height();
}

}  // namespace

Drawing boxDrawing(QSize size, const std::vector<QRect>& boxes) {
    QPainterPath lines;
    QRect ink;
    for (std::size_t i = 0; i < boxes.size();) {
        QRect row = boxes[i];
        QPainterPath sides;
        for (++i; i < boxes.size() && sharesSide(boxes[i - 1], boxes[i]); ++i) {
            const QRectF box = middleOfLines(boxes[i]);
            sides.moveTo(box.topLeft());
            sides.lineTo(box.bottomLeft());
            row |= boxes[i];
        }
        lines.addRect(middleOfLines(row));
        lines.addPath(sides);
        ink |= row;
    }
    Drawing drawing;
    drawing.width = size.width();
    drawing.height = size.height();
    if (!boxes.empty()) {
        const QRectF covered = ink;
        drawing.ink = {covered.x(), covered.y(), covered.width(), covered.height()};
        DrawnShape shape;
        shape.path = pathData(lines);
        shape.stroke = 0x000000;
        drawing.shapes.push_back(shape);
    }
    return drawing;
}

}  // namespace fleetwright
