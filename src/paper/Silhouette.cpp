#include "Silhouette.h"

#include "Raster.h"
#include "pathSteps.h"
#include "scaledDrawing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <string_view>

namespace fleetwright {

namespace {

constexpr Silhouette::Extent nothing = {std::numeric_limits<double>::max(),
                                        std::numeric_limits<double>::lowest()};

bool hasInk(const DrawnShape& shape) {
    return (shape.fill && *shape.fill != Raster::white) ||
           (shape.stroke && *shape.stroke != Raster::white);
}

using Point = PathStep::Point;

double distance(Point a, Point b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

Point onLine(Point from, Point to, double part) {
    return {from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part};
}

/// Hands over points of a curve, two or more to each pixel of its way. A line is a curve whose
/// middle points lie on its ends.
template <typename Take>
void walkCurve(const std::array<Point, 4>& curve, Take take) {
    constexpr double longest = 1e5;  // pixels; no picture is as large
    const double length =
        distance(curve[0], curve[1]) + distance(curve[1], curve[2]) + distance(curve[2], curve[3]);
    const double steps = std::ceil(2 * std::min(length, longest)) + 1;
    for (double i = 0; i <= steps; ++i) {
        const double part = i / steps;
        const Point middle = onLine(curve[1], curve[2], part);
        take(onLine(onLine(onLine(curve[0], curve[1], part), middle, part),
                    onLine(middle, onLine(curve[2], curve[3], part), part), part));
    }
}

/// Hands over points along a path.
template <typename Take>
void walkPath(std::string_view path, Take take) {
    Point start, here;
    while (const std::optional<PathStep> step = takePathStep(path)) {
        const auto& points = step->points;
        Point there = points[0];
        if (step->command == 'M') {
            start = there;
        } else if (step->command == 'C') {
            there = points[2];
            walkCurve({here, points[0], points[1], there}, take);
        } else {
            there = step->command == 'Z' ? start : there;
            walkCurve({here, here, there, there}, take);
        }
        here = there;
    }
}

void unite(Silhouette::Extent& extent, double left, double right) {
    extent.left = std::min(extent.left, left);
    extent.right = std::max(extent.right, right);
}

}  // namespace

Silhouette::Silhouette(const SheetRecord& record, const Box& shown)
    : m_shown(shown), m_rows(static_cast<std::size_t>(std::ceil(shown.height)), nothing) {
    addPicture(record.outline);
    for (const SheetRecord::Paste& paste : record.pastes) {
        Box ink = inkOf(paste.picture);
        ink.x += paste.x;
        ink.y += paste.y;
        addBox(ink);
    }
}

/// The outline; of other pictures their boxes will do.
void Silhouette::addPicture(const SheetRecord::Paste& paste) {
    if (paste.picture.drawing) {
        for (const DrawnShape& shape : paste.picture.drawing->shapes) {
            if (hasInk(shape)) {
                addShape(shape, paste.x, paste.y);
            }
        }
        return;
    }
    const Raster& raster = *paste.picture.raster;
    for (int y = 0; y < raster.height(); ++y) {
        Box ink = inkOfRow(raster, y);
        ink.x += paste.x;
        ink.y += paste.y;
        addBox(ink);
    }
}

/// Lines bound what they enclose, so that their points are enough.
void Silhouette::addShape(const DrawnShape& shape, double x, double y) {
    const double around = shape.stroke ? std::max(shape.strokeWidth, 0.0) : 0;
    walkPath(shape.path, [&](Point point) {
        addBox({x + point.x - around, y + point.y - around, 2 * around, 2 * around});
    });
}

void Silhouette::addBox(const Box& box) {
    const double last = double(m_rows.size()) - 1;
    const double first = std::floor(box.y - m_shown.y);
    const double end = std::floor(box.y + box.height - m_shown.y);
    for (double row = std::max(first, 0.0); row <= std::min(end, last); ++row) {
        unite(m_rows[static_cast<std::size_t>(row)], box.x - m_shown.x,
              box.x + box.width - m_shown.x);
    }
}

Silhouette::Extent Silhouette::between(double top, double bottom) const {
    Extent extent = nothing;
    const double last = double(m_rows.size()) - 1;
    for (double row = std::max(std::floor(top), 0.0); row <= std::min(bottom, last); ++row) {
        const Extent& other = m_rows[static_cast<std::size_t>(row)];
        unite(extent, other.left, other.right);
    }
    return extent;
}

}  // namespace fleetwright
