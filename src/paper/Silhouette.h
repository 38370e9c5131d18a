#pragma once

#include "SheetRecord.h"

#include <bit>
#include <cstddef>
#include <limits>
#include <map>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace fleetwright {

/// Where a drawing begins and ends in each row of its pixels, so that text can stand beside it.
class Silhouette {
public:
    /// From the left edge, in pixels; nothing is between them where `right` is less than `left`.
    struct Extent {
        double left;
        double right;
    };

    /// Silhouettes of outlines alone, kept for the next sheets on them. Any number of threads may
    /// use it.
    class Outlines;

    /// Of what a drawing has inside this box of the outline, from which pixels count.
    Silhouette(const SheetRecord& record, const Box& shown, Outlines* kept = nullptr);

    /// Of all rows that have a part between two heights, which may lie outside. A layout asks
    /// thousands of times.
    Extent between(double top, double bottom) const {
        if (!(bottom >= 0 && top < m_count && top <= bottom)) {
            return nothing;
        }
        const int first = top > 0 ? static_cast<int>(top) : 0;
        const int end = bottom < m_count - 1 ? static_cast<int>(bottom) + 1 : m_count;
        const auto power = static_cast<std::size_t>(std::bit_width(unsigned(end - first))) - 1;
        if (!m_outline && power >= m_levels.size()) {
            addLevels(m_levels, power + 1);
        }
        const Extent* const unions = (m_outline ? *m_outline : m_levels)[power].data();
        return united(unions[first], unions[end - static_cast<int>(1U << power)]);
    }

    static constexpr Extent nothing = {std::numeric_limits<double>::max(),
                                       std::numeric_limits<double>::lowest()};

    // By value, which is two instructions.
    static Extent united(Extent a, Extent b) {
        return {a.left < b.left ? a.left : b.left, a.right > b.right ? a.right : b.right};
    }

private:
    /// The extents of all rows, and of 2, 4, 8... rows from each one on.
    using Levels = std::vector<std::vector<Extent>>;

    static void addLevels(Levels& levels, std::size_t count);
    std::shared_ptr<const Levels> keptOutline(const SheetRecord::Paste& outline,
                                              Outlines& kept) const;
    std::vector<Extent> rowsOf(const SheetRecord::Paste& outline) const;
    std::vector<Extent> rowsOf(const Drawing& drawing, double x, double y) const;
    std::vector<Extent> rowsOf(const Raster& raster, int x, int y) const;
    void addPaste(const Box& ink);

    Box m_shown;
    /// Those of the outline, if they are kept and nothing stands out of it.
    std::shared_ptr<const Levels> m_outline;
    /// Of all that is shown otherwise; as many as somebody has asked for.
    mutable Levels m_levels;
    int m_count;  ///< of rows
};

class Silhouette::Outlines {
public:
    /// What is kept of a drawing, if there is something.
    std::shared_ptr<const Levels> of(const std::shared_ptr<const Drawing>& drawing) const {
        const std::lock_guard lock(m_mutex);
        const auto found = m_levels.find(drawing);
        return found == m_levels.end() ? nullptr : found->second;
    }
    /// Keeps them, and returns what is kept.
    std::shared_ptr<const Levels> keep(const std::shared_ptr<const Drawing>& drawing,
                                       Levels&& levels) {
        auto made = std::make_shared<const Levels>(std::move(levels));
        const std::lock_guard lock(m_mutex);
        return m_levels.try_emplace(drawing, std::move(made)).first->second;
    }

private:
    friend class Silhouette;

    mutable std::mutex m_mutex;
    std::map<std::shared_ptr<const Drawing>, std::shared_ptr<const Levels>> m_levels;
};

}  // namespace fleetwright
