#pragma once

#include "SheetRecord.h"

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

    /// Of what a drawing has inside this box of the outline, from which pixels count.
    Silhouette(const SheetRecord& record, const Box& shown);

    /// Of all rows that have a part between two heights, which may lie outside.
    Extent between(double top, double bottom) const;

private:
    void addPicture(const SheetRecord::Paste& paste);
    void addDrawing(const Drawing& drawing, double x, double y);
    void addBox(const Box& box);
    void uniteRows();

    Box m_shown;
    std::vector<Extent> m_rows;
    /// Of 1, 2, 4... rows from each one on, as far as there are so many.
    std::vector<std::vector<Extent>> m_unions;
};

}  // namespace fleetwright
