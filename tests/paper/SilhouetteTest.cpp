// What a sheet keeps clear of, row by row, against the lines that are drawn.

#include "Silhouette.h"

#include "Raster.h"
#include "forSeeds.h"
#include "pathSteps.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

using namespace fleetwright;

namespace {

using Extent = Silhouette::Extent;
using Point = PathStep::Point;

constexpr int rowCount = 40;
constexpr Box shown = {5, 3, 50, rowCount};

/// What is covered of each row of what is shown.
struct Rows : std::vector<Extent> {
    Rows() : std::vector<Extent>(rowCount, Silhouette::nothing) {}

    void add(int row, double left, double right) {
        if (row >= 0 && row < rowCount) {
            at(std::size_t(row)) = Silhouette::united(at(std::size_t(row)), {left, right});
        }
    }
    /// A line, and as much around it as it is wide, which no miter leaves by much.
    void add(Point from, Point to, double width) {
        const int far = int(std::ceil(width));
        to.y += from.y == to.y ? 1e-9 : 0;
        constexpr double rounding = 1e-6;  // of a part; an end is never missed
        for (int row = -20; row < rowCount + 20; ++row) {
            const auto [top, bottom] = std::minmax({from.y - shown.y, to.y - shown.y});
            for (const double y : {std::max(top, double(row)), std::min(bottom, row + 1.0)}) {
                const double part = (y - (from.y - shown.y)) / (to.y - from.y);
                const double x = from.x + (to.x - from.x) * part - shown.x;
                for (int near = row - far; part >= -rounding && part <= 1 + rounding && y >= row &&
                                           y <= row + 1 && near <= row + far;
                     ++near) {
                    add(near, x - width, x + width);
                }
            }
        }
    }
    Extent between(int first, int last) const {
        Extent all = Silhouette::nothing;
        for (int row = std::max(first, 0); row <= std::min(last, rowCount - 1); ++row) {
            all = Silhouette::united(all, at(std::size_t(row)));
        }
        return all;
    }
};

/// One that no two rows share.
Point pointOf(std::mt19937& random) {
    return {anyOf(random, 0, 6000) / 100.0, anyOf(random, -80, 400) / 8.0 + 0.05};
}

std::string textOf(Point point) {
    return std::to_string(point.x) + ' ' + std::to_string(point.y);
}

/// A shape of lines by chance, most of them short, or of one curve.
DrawnShape anyShape(std::mt19937& random, bool isCurve, Rows& rows) {
    DrawnShape shape = {.path = {}, .fill = 0, .stroke = {}};
    if (anyOf(random, 0, 1) == 1) {
        shape.stroke = 0x336699;
        shape.strokeWidth = anyOf(random, 0, 7) / 2.0;
    }
    const double width = shape.stroke ? shape.strokeWidth : 0;
    const Point start = pointOf(random);
    Point here = start;
    shape.path = 'M' + textOf(start);
    if (isCurve) {
        const Point b = pointOf(random), c = pointOf(random), d = pointOf(random);
        shape.path += 'C' + textOf(b) + ' ' + textOf(c) + ' ' + textOf(d);
        for (int i = 1; i <= 1000; ++i) {
            const double t = i / 1000.0, s = 1 - t;
            const auto at = [&](double Point::* of) {
                return s * s * s * start.*of + 3 * s * s * t * b.*of + 3 * s * t * t * c.*of +
                       t * t * t * d.*of;
            };
            const Point next = {at(&Point::x), at(&Point::y)};
            rows.add(here, next, width);
            here = next;
        }
        return shape;
    }
    for (int i = anyOf(random, 1, 20); i > 0; --i) {
        Point next = pointOf(random);
        if (anyOf(random, 0, 3) > 0) {
            next = {here.x + (next.x - 30) / 8, here.y + std::floor(next.y - 20) / 8};
        }
        shape.path += 'L' + textOf(next);
        rows.add(here, next, width);
        here = next;
    }
    if (anyOf(random, 0, 1) == 1 && start.y != here.y) {
        shape.path += 'Z';
        rows.add(here, start, width);
    }
    return shape;
}

void expectWithin(Extent inner, Extent outer, double hair) {
    EXPECT_TRUE(inner.left > inner.right ||
                (inner.left >= outer.left - hair && inner.right <= outer.right + hair))
        << inner.left << " to " << inner.right << " in " << outer.left << " to " << outer.right;
}

}  // namespace

TEST(Silhouette, IsThatOfTheLinesThatAreDrawn) {
    forSeeds([](std::mt19937& random) {
        for (int round = 0; round < 200 && !testing::Test::HasFailure(); ++round) {
            // Of curves it knows points that are near enough to each other.
            const int isCurve = anyOf(random, 0, 3) == 0 ? 1 : 0;
            const double hair = isCurve == 1 ? 1 : 1e-4;
            Rows rows;
            Drawing drawing = {60, 50, shown, {}};
            for (int i = anyOf(random, 1, 3); i > 0; --i) {
                drawing.shapes.push_back(anyShape(random, isCurve == 1, rows));
            }
            drawing.shapes.push_back({.path = "M0 0L60 50", .fill = Raster::white, .stroke = {}});
            SheetRecord record;
            record.outline.picture.drawing = std::make_shared<const Drawing>(drawing);
            Silhouette::Outlines kept;
            [[maybe_unused]] const Silhouette first(record, shown, &kept);
            // A further sheet has a system, too, that may stand out of its outline.
            const int x = anyOf(random, 0, 50), y = anyOf(random, 0, 40);
            record.pastes.push_back({.picture = {}, .x = x, .y = y, .system = {}});
            record.pastes[0].picture.drawing =
                std::make_shared<const Drawing>(Drawing{9, 9, {1, 1, 7, 3.5}, {}});
            for (int row = y + 1; row <= y + 4; ++row) {
                rows.add(row - int(shown.y), x + 1 - shown.x, x + 8 - shown.x);
            }
            for (const Silhouette& silhouette :
                 {Silhouette(record, shown), Silhouette(record, shown, &kept)}) {
                for (int top = 0; top < rowCount; ++top) {
                    const int bottom = anyOf(random, top, rowCount);
                    expectWithin(silhouette.between(top, bottom),
                                 rows.between(top - isCurve, bottom + isCurve), hair);
                    expectWithin(rows.between(top, bottom),
                                 silhouette.between(top - isCurve, bottom + isCurve), hair);
                }
            }
        }
    });
}
