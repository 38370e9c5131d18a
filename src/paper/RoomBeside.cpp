#include "RoomBeside.h"

#include "Silhouette.h"

#include <algorithm>
#include <cstddef>

namespace fleetwright {

RoomBeside::RoomBeside(const Silhouette& silhouette, const Box& ink, double scale, const Box& room,
                       std::initializer_list<double> widths)
    : m_room(room), m_rows(static_cast<std::size_t>(std::max(room.height, 0.0))) {
    const double left = (room.width - ink.width * scale) / 2;
    const double top = (room.height - ink.height * scale) / 2;
    const double right = room.width - left;
    const auto between = [&](double start, double end) {
        const Silhouette::Extent extent =
            silhouette.between((start - top) / scale, (end - top) / scale);
        return std::array{left + extent.left * scale, right - extent.right * scale};
    };
    // Most rows that follow each other learn at once what all of them have room for: if what any of
    // them keeps clear of leaves the same as what all of them do.
    constexpr std::size_t together = 8;
    static_assert(together < 2 * columnGap);
    for (std::size_t first = 0; first < m_rows.size(); first += together) {
        const std::size_t end = std::min(first + together, m_rows.size());
        const auto least = between(double(first) - columnGap, double(end) + columnGap);
        const auto most = between(double(end) - 1 - columnGap, double(first) + 1 + columnGap);
        const bool areAlike = std::ranges::all_of(widths, [&](double width) {
            const double needed = width + columnGap;
            return (least[0] >= needed) == (most[0] >= needed) &&
                   (least[1] >= needed) == (most[1] >= needed);
        });
        for (std::size_t row = first; row < end; ++row) {
            m_rows[row] =
                areAlike ? least : between(double(row) - columnGap, double(row) + 1 + columnGap);
        }
    }
}

std::vector<Box> RoomBeside::columns(double width) const {
    constexpr int leastHeight = 15;
    std::vector<Box> columns;
    if (m_room.width < 2 * width + columnGap) {
        return columns;
    }
    const double needed = width + columnGap;
    for (const std::size_t side : {std::size_t{0}, std::size_t{1}}) {
        const double x = m_room.x + (side == 0 ? 0 : m_room.width - width);
        const auto isNarrow = [&](const auto& row) { return row[side] < needed; };
        for (auto start = m_rows.begin(); start != m_rows.end();) {
            const auto end = std::find_if(start, m_rows.end(), isNarrow);
            if (end - start >= leastHeight) {
                columns.push_back(
                    {x, m_room.y + double(start - m_rows.begin()), width, double(end - start)});
            }
            start = std::find_if_not(end, m_rows.end(), isNarrow);
        }
    }
    std::ranges::stable_sort(columns, {}, &Box::y);
    return columns;
}

}  // namespace fleetwright
