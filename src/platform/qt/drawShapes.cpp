#include "drawShapes.h"

#include "pageUnits.h"
#include "pathSteps.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include <optional>
#include <string_view>

namespace fleetwright {

namespace {

/// The path of a shape, with its points moved to where they lie on the page.
QPainterPath pathOnPage(std::string_view text, const Drawing& drawing, const Box& place) {
    const auto onPage = [scaleX = place.width / drawing.width,
                         scaleY = place.height / drawing.height, &place](PathStep::Point point) {
        return QPointF(toUnits(place.x + point.x * scaleX), toUnits(place.y + point.y * scaleY));
    };
    QPainterPath path;
    while (const std::optional<PathStep> step = takePathStep(text)) {
        const auto& points = step->points;
        if (step->command == 'M') {
            path.moveTo(onPage(points[0]));
        } else if (step->command == 'L') {
            path.lineTo(onPage(points[0]));
        } else if (step->command == 'C') {
            path.cubicTo(onPage(points[0]), onPage(points[1]), onPage(points[2]));
        } else {
            path.closeSubpath();
        }
    }
    return path;
}

Qt::PenCapStyle capStyle(DrawnShape::Cap cap) {
    switch (cap) {
    case DrawnShape::Cap::Round:
        return Qt::RoundCap;
    case DrawnShape::Cap::Square:
        return Qt::SquareCap;
    default:
        return Qt::FlatCap;
    }
}

Qt::PenJoinStyle joinStyle(DrawnShape::Join join) {
    switch (join) {
    case DrawnShape::Join::Round:
        return Qt::RoundJoin;
    case DrawnShape::Join::Bevel:
        return Qt::BevelJoin;
    default:
        return Qt::SvgMiterJoin;  // beyond its limit the other one is cut, not bevelled
    }
}

void drawShape(QPainter& painter, const DrawnShape& shape, double scale, QPainterPath path) {
    const auto colourOf = [&shape](std::uint32_t colour) {
        QColor shown = QColor::fromRgb(colour);
        shown.setAlphaF(static_cast<float>(shape.opacity));
        return shown;
    };
    path.setFillRule(shape.isEvenOdd ? Qt::OddEvenFill : Qt::WindingFill);
    painter.setBrush(shape.fill ? QBrush(colourOf(*shape.fill)) : QBrush());
    QPen pen(Qt::NoPen);
    if (shape.stroke) {
        pen = QPen(colourOf(*shape.stroke), shape.strokeWidth * scale * pageUnits, Qt::SolidLine,
                   capStyle(shape.cap), joinStyle(shape.join));
        pen.setMiterLimit(4);  // that of SVG
    }
    painter.setPen(pen);
    painter.drawPath(path);
}

}  // namespace

void drawShapes(QPainter& painter, const Drawing& drawing, const Box& place) {
    const double scale = place.width / drawing.width;
    for (const DrawnShape& shape : drawing.shapes) {
        drawShape(painter, shape, scale, pathOnPage(shape.path, drawing, place));
    }
}

}  // namespace fleetwright
