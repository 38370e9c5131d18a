#pragma once

#include "SheetRecord.h"

#include <map>
#include <memory>
#include <mutex>
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

    /// Of all rows that have a part between two heights, which may lie outside.
    Extent between(double top, double bottom) const;

private:
    void addOutline(const SheetRecord::Paste& outline, Outlines* kept);
    void addPixels(const SheetRecord::Paste& paste);
    void addDrawing(const Drawing& drawing, double x, double y);
    void addBox(const Box& box);
    const std::vector<Extent>& unions(std::size_t level) const;

    Box m_shown;
    std::vector<Extent> m_rows;
    /// Of 2, 4, 8... rows from each one on, as far as somebody has asked.
    mutable std::vector<std::vector<Extent>> m_unions;
};

class Silhouette::Outlines {
public:
    using Rows = std::vector<Extent>;

    /// What is kept of a drawing, if there is something.
    std::shared_ptr<const Rows> of(const std::shared_ptr<const Drawing>& drawing) const {
        const std::lock_guard lock(m_mutex);
        const auto found = m_rows.find(drawing);
        return found == m_rows.end() ? nullptr : found->second;
    }
    void keep(const std::shared_ptr<const Drawing>& drawing, const Rows& rows) {
        const std::lock_guard lock(m_mutex);
        m_rows.try_emplace(drawing, std::make_shared<const Rows>(rows));
    }

private:
    mutable std::mutex m_mutex;
    std::map<std::shared_ptr<const Drawing>, std::shared_ptr<const Rows>> m_rows;
};

}  // namespace fleetwright
