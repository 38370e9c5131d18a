#include "Silhouette.h"

#include "Raster.h"
#include "pathSteps.h"
#include "scaledDrawing.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

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

/// Hands over points of a line: its ends, and where it goes from one row to the next, in both.
template <typename Take>
void walkLine(Point from, Point to, Take take) {
    constexpr double hair = 1e-6;
    constexpr double most = 1e5;  // rows; no picture has as many
    take(from);
    const auto rowOf = [most](double y) {
        return static_cast<int>(std::floor(std::clamp(y, -most, most)));
    };
    for (int y = rowOf(std::min(from.y, to.y)) + 1; y <= rowOf(std::max(from.y, to.y)); ++y) {
        const double x = onLine(from, to, (y - from.y) / (to.y - from.y)).x;
        take({x, y - hair});
        take({x, double(y)});
    }
    take(to);
}

/// Hands over points of a curve, two or more to each pixel of its way.
template <typename Take>
void walkCurve(const std::array<Point, 4>& curve, Take take) {
    constexpr double longest = 1e5;  // pixels; no picture is as large
    const double length =
        distance(curve[0], curve[1]) + distance(curve[1], curve[2]) + distance(curve[2], curve[3]);
    const int steps = static_cast<int>(std::ceil(2 * std::min(length, longest))) + 1;
    for (int i = 0; i <= steps; ++i) {
        const double part = double(i) / steps;
        const Point middle = onLine(curve[1], curve[2], part);
        take(onLine(onLine(onLine(curve[0], curve[1], part), middle, part),
                    onLine(middle, onLine(curve[2], curve[3], part), part), part));
    }
}

/// Hands over points along a path that is moved so far.
template <typename Take>
void walkPath(std::string_view path, Point moved, Take take) {
    Point start, here;
    while (const std::optional<PathStep> step = takePathStep(path)) {
        std::array<Point, 3> points;
        std::transform(step->points.begin(), step->points.end(), points.begin(),
                       [&](Point point) { return Point{point.x + moved.x, point.y + moved.y}; });
        Point there = points[0];
        if (step->command == 'M') {
            start = there;
        } else if (step->command == 'C') {
            there = points[2];
            walkCurve({here, points[0], points[1], there}, take);
        } else {
            there = step->command == 'Z' ? start : there;
            walkLine(here, there, take);
        }
        here = there;
    }
}

void unite(Silhouette::Extent& extent, double left, double right) {
    extent.left = std::min(extent.left, left);
    extent.right = std::max(extent.right, right);
}

bool areSame(const Box& a, const Box& b) {
    return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
}

}  // namespace

Silhouette::Silhouette(const SheetRecord& record, const Box& shown, Outlines* kept)
    : m_shown(shown), m_rows(static_cast<std::size_t>(std::ceil(shown.height)), nothing) {
    addOutline(record.outline, kept);
    for (const SheetRecord::Paste& paste : record.pastes) {
        Box ink = inkOf(paste.picture);
        ink.x += paste.x;
        ink.y += paste.y;
        addBox(ink);
    }
}

/// Kept are those of outlines that nothing leaves, as on most sheets: one for each of them.
void Silhouette::addOutline(const SheetRecord::Paste& outline, Outlines* kept) {
    const std::shared_ptr<const Drawing>& drawing = outline.picture.drawing;
    if (!drawing) {
        addPixels(outline);
        return;
    }
    const bool isKept = kept != nullptr && areSame(m_shown, drawing->ink);
    if (const auto known = isKept ? kept->of(drawing) : nullptr) {
        m_rows = *known;
        return;
    }
    addDrawing(*drawing, outline.x - m_shown.x, outline.y - m_shown.y);
    if (isKept) {
        kept->keep(drawing, m_rows);
    }
}

void Silhouette::addPixels(const SheetRecord::Paste& paste) {
    const Raster& raster = *paste.picture.raster;
    for (int y = 0; y < raster.height(); ++y) {
        Box ink = inkOfRow(raster, y);
        ink.x += paste.x;
        ink.y += paste.y;
        addBox(ink);
    }
}

/// Lines bound what they enclose, so that their points are enough. What is around them is added
/// once for all lines of a width: points are many.
void Silhouette::addDrawing(const Drawing& drawing, double x, double y) {
    std::map<double, std::vector<Extent>> ways;  // of lines, by what they cover on each side
    for (const DrawnShape& shape : drawing.shapes) {
        if (!hasInk(shape)) {
            continue;
        }
        const double around = shape.stroke ? std::max(shape.strokeWidth, 0.0) : 0;
        const auto further = static_cast<std::size_t>(std::ceil(around));
        const auto [way, isNew] = ways.try_emplace(around);
        std::vector<Extent>& rows = way->second;
        rows.resize(m_rows.size() + 2 * further, nothing);
        walkPath(shape.path, {x, y + double(further)}, [&rows](Point point) {
            if (point.y >= 0 && point.y < double(rows.size())) {
                unite(rows[static_cast<std::size_t>(point.y)], point.x, point.x);
            }
        });
    }
    for (const auto& [around, rows] : ways) {
        const std::size_t further = rows.size() - m_rows.size();
        for (std::size_t row = 0; row < rows.size(); ++row) {
            const std::size_t end = std::min(row + 1, m_rows.size());
            for (std::size_t near = row - std::min(row, further); near < end; ++near) {
                unite(m_rows[near], rows[row].left - around, rows[row].right + around);
            }
        }
    }
}

void Silhouette::addBox(const Box& box) {
    const double first = std::max(std::floor(box.y - m_shown.y), 0.0);
    const double end = std::min(std::floor(box.y + box.height - m_shown.y) + 1,
                                static_cast<double>(m_rows.size()));
    for (auto row = static_cast<std::size_t>(first); double(row) < end; ++row) {
        unite(m_rows[row], box.x - m_shown.x, box.x + box.width - m_shown.x);
    }
}

/// What so many rows, 2 to the power of the level, have together from each one on, so that the
/// extent of any number of rows is that of two unions of them.
const std::vector<Silhouette::Extent>& Silhouette::unions(std::size_t level) const {
    while (m_unions.size() < level) {
        const std::vector<Extent>& halves = m_unions.empty() ? m_rows : m_unions.back();
        const std::size_t half = std::size_t{1} << m_unions.size();
        std::vector<Extent> united = halves;
        for (std::size_t row = 0; row + half < united.size(); ++row) {
            const Extent &upper = halves[row], &lower = halves[row + half];
            united[row] = {std::min(upper.left, lower.left), std::max(upper.right, lower.right)};
        }
        m_unions.push_back(std::move(united));
    }
    return level == 0 ? m_rows : m_unions[level - 1];
}

Silhouette::Extent Silhouette::between(double top, double bottom) const {
    const double rows = static_cast<int>(m_rows.size());
    if (!(bottom >= 0 && top < rows && top <= bottom)) {
        return nothing;
    }
    const int first = static_cast<int>(std::max(top, 0.0));
    const int end = static_cast<int>(std::min(bottom, rows - 1)) + 1;
    const auto count = static_cast<unsigned>(end - first);
    const auto level = static_cast<std::size_t>(std::bit_width(count)) - 1;
    const Extent* const united = unions(level).data();
    const Extent &upper = united[first], &lower = united[end - static_cast<int>(1U << level)];
    return {std::min(upper.left, lower.left), std::max(upper.right, lower.right)};
}

}  // namespace fleetwright
