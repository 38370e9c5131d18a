#include "Silhouette.h"

#include "Raster.h"
#include "pathSteps.h"
#include "scaledDrawing.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

namespace fleetwright {

namespace {

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

using Extent = Silhouette::Extent;

/// The rows that a path goes through, from the first one on.
class RowsOfPath {
public:
    explicit RowsOfPath(std::vector<Extent>& rows)
        : m_rows(rows), m_count(static_cast<int>(rows.size())) {}

    /// Follows a path that is moved so far.
    void walk(std::string_view path, Point moved);

private:
    void reach(Point point) {
        if (point.y >= 0 && point.y < m_count) {
            reach(static_cast<int>(point.y), point.x);
        }
    }
    void reach(int row, double x) {
        Extent& extent = m_rows[static_cast<std::size_t>(row)];
        extent = Silhouette::united(extent, {x, x});
    }
    int rowOf(double y) const {
        return static_cast<int>(std::floor(std::clamp(y, -1.0, double(m_count) + 1)));
    }
    bool isCovered(const std::array<Point, 4>& points) const;
    void walkLine(Point from, Point to);
    void walkCurve(const std::array<Point, 4>& curve);

    std::vector<Extent>& m_rows;
    int m_count;
};

/// Whether what lies between these points lies between points that were reached before, as most of
/// what is drawn inside of a hull does.
bool RowsOfPath::isCovered(const std::array<Point, 4>& points) const {
    constexpr double hair = 1e-6;
    const auto [left, right] = std::ranges::minmax(points, {}, &Point::x);
    const auto [top, bottom] = std::ranges::minmax(points, {}, &Point::y);
    const int end = std::min(rowOf(bottom.y + hair) + 1, m_count);
    for (int row = std::max(rowOf(top.y - hair), 0); row < end; ++row) {
        const Extent& extent = m_rows[static_cast<std::size_t>(row)];
        if (!(extent.left <= left.x - hair && extent.right >= right.x + hair)) {
            return false;
        }
    }
    return true;
}

/// Its ends, and where it goes from one row to the next, in both.
void RowsOfPath::walkLine(Point from, Point to) {
    if (isCovered({from, from, to, to})) {
        return;
    }
    reach(from);
    const int end = std::min(rowOf(std::max(from.y, to.y)), m_count);
    for (int y = std::max(rowOf(std::min(from.y, to.y)) + 1, 0); y <= end; ++y) {
        const double x = onLine(from, to, (y - from.y) / (to.y - from.y)).x;
        if (y > 0) {
            reach(y - 1, x);
        }
        if (y < m_count) {
            reach(y, x);
        }
    }
    reach(to);
}

/// Two or more points to each pixel of its way.
void RowsOfPath::walkCurve(const std::array<Point, 4>& curve) {
    if (isCovered(curve)) {
        return;  // it stays between its points
    }
    constexpr double longest = 1e5;  // pixels; no picture is as large
    const double length =
        distance(curve[0], curve[1]) + distance(curve[1], curve[2]) + distance(curve[2], curve[3]);
    const int steps = static_cast<int>(std::ceil(2 * std::min(length, longest))) + 1;
    for (int i = 0; i <= steps; ++i) {
        const double part = double(i) / steps;
        const Point middle = onLine(curve[1], curve[2], part);
        reach(onLine(onLine(onLine(curve[0], curve[1], part), middle, part),
                     onLine(middle, onLine(curve[2], curve[3], part), part), part));
    }
}

void RowsOfPath::walk(std::string_view path, Point moved) {
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
            walkCurve({here, points[0], points[1], there});
        } else {
            there = step->command == 'Z' ? start : there;
            walkLine(here, there);
        }
        here = there;
    }
}

/// Hands over each row, of those of what is shown, that a box has a part of.
template <typename Rows, typename Take>
void eachRow(Rows& rows, const Box& box, const Box& shown, Take take) {
    const double first = std::max(std::floor(box.y - shown.y), 0.0);
    const double end =
        std::min(std::floor(box.y + box.height - shown.y) + 1, static_cast<double>(rows.size()));
    for (auto row = static_cast<std::size_t>(first); double(row) < end; ++row) {
        take(rows[row]);
    }
}

void addBox(std::vector<Extent>& rows, const Box& box, const Box& shown) {
    const Extent extent = {box.x - shown.x, box.x + box.width - shown.x};
    eachRow(rows, box, shown, [&extent](Extent& row) { row = Silhouette::united(row, extent); });
}

/// Whether adding a box would change nothing.
bool isCovered(const std::vector<Extent>& rows, const Box& box, const Box& shown) {
    const double left = box.x - shown.x, right = box.x + box.width - shown.x;
    bool isInside = true;
    eachRow(rows, box, shown, [&](const Extent& row) {
        isInside = isInside && row.left <= left && row.right >= right;
    });
    return isInside;
}

}  // namespace

Silhouette::Silhouette(const SheetRecord& record, const Box& shown, Outlines* kept)
    : m_shown(shown), m_count(static_cast<int>(std::ceil(shown.height))) {
    if (kept != nullptr) {
        m_outline = keptOutline(record.outline, *kept);
    }
    if (!m_outline) {
        m_levels = {rowsOf(record.outline)};
    }
    for (const SheetRecord::Paste& paste : record.pastes) {
        Box ink = inkOf(paste.picture);
        ink.x += paste.x;
        ink.y += paste.y;
        addPaste(ink);
    }
}

/// Kept are those of outlines that nothing leaves, as on most sheets: one for each of them.
std::shared_ptr<const Silhouette::Levels> Silhouette::keptOutline(const SheetRecord::Paste& outline,
                                                                  Outlines& kept) const {
    const std::shared_ptr<const Drawing>& drawing = outline.picture.drawing;
    if (!drawing || m_shown != drawing->ink) {
        return nullptr;
    }
    if (auto known = kept.of(drawing)) {
        return known;
    }
    Levels levels = {rowsOf(outline)};
    addLevels(levels, static_cast<std::size_t>(std::bit_width(levels.front().size())));
    return kept.keep(drawing, std::move(levels));
}

std::vector<Silhouette::Extent> Silhouette::rowsOf(const SheetRecord::Paste& outline) const {
    const SheetRecord::Picture& picture = outline.picture;
    return picture.drawing ? rowsOf(*picture.drawing, outline.x - m_shown.x, outline.y - m_shown.y)
                           : rowsOf(*picture.raster, outline.x, outline.y);
}

std::vector<Silhouette::Extent> Silhouette::rowsOf(const Raster& raster, int x, int y) const {
    std::vector<Extent> rows(static_cast<std::size_t>(m_count), Silhouette::nothing);
    for (int row = 0; row < raster.height(); ++row) {
        Box ink = inkOfRow(raster, row);
        ink.x += x;
        ink.y += y;
        addBox(rows, ink, m_shown);
    }
    return rows;
}

/// Lines bound what they enclose, so that their points are enough. What is around them is added
/// once for all lines of a width: points are many.
std::vector<Silhouette::Extent> Silhouette::rowsOf(const Drawing& drawing, double x,
                                                   double y) const {
    std::vector<Extent> all(static_cast<std::size_t>(m_count), Silhouette::nothing);
    std::map<double, std::vector<Extent>> ways;  // of lines, by what they cover on each side
    for (const DrawnShape& shape : drawing.shapes) {
        if (!hasInk(shape)) {
            continue;
        }
        const double around = shape.stroke ? std::max(shape.strokeWidth, 0.0) : 0;
        const auto further = static_cast<std::size_t>(std::ceil(around));
        std::vector<Extent>& rows = ways.try_emplace(around).first->second;
        rows.resize(all.size() + 2 * further, Silhouette::nothing);
        RowsOfPath(rows).walk(shape.path, {x, y + double(further)});
    }
    for (const auto& [around, rows] : ways) {
        const std::size_t further = rows.size() - all.size();
        for (std::size_t row = 0; row < rows.size(); ++row) {
            const Extent wider = {rows[row].left - around, rows[row].right + around};
            const std::size_t end = std::min(row + 1, all.size());
            for (std::size_t near = row - std::min(row, further); near < end; ++near) {
                all[near] = Silhouette::united(all[near], wider);
            }
        }
    }
    return all;
}

void Silhouette::addPaste(const Box& ink) {
    if (m_outline) {
        if (isCovered(m_outline->front(), ink, m_shown)) {
            return;
        }
        m_levels = {m_outline->front()};
        m_outline.reset();
    }
    addBox(m_levels.front(), ink, m_shown);
}

/// Sees to it that there are so many: the extent of any number of rows is that of two unions of 2,
/// 4, 8... rows.
void Silhouette::addLevels(Levels& levels, std::size_t count) {
    while (levels.size() < count) {
        const std::vector<Extent>& halves = levels.back();
        const std::size_t half = std::size_t{1} << (levels.size() - 1);
        std::vector<Extent> whole = halves;
        for (std::size_t row = 0; row + half < whole.size(); ++row) {
            whole[row] = Silhouette::united(halves[row], halves[row + half]);
        }
        levels.push_back(std::move(whole));
    }
}

}  // namespace fleetwright
