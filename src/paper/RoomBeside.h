#pragma once

#include "Drawing.h"

#include <array>
#include <initializer_list>
#include <vector>

namespace fleetwright {

class Silhouette;

/// Between columns of text, and between them and a drawing.
inline constexpr double columnGap = 5;

/// The corners that a drawing leaves in the middle of a room on a page, on both of its sides
/// wherever it is narrow enough. Measures are in millimetres.
class RoomBeside {
public:
    /// A drawing, of which this box of the outline shows, at so many millimetres to the pixel.
    /// Somebody will ask for columns of these widths.
    RoomBeside(const Silhouette& silhouette, const Box& ink, double scale, const Box& room,
               std::initializer_list<double> widths);

    /// Columns of one of those widths in all corners that are high enough, from the top down.
    std::vector<Box> columns(double width) const;

private:
    Box m_room;
    /// Of each millimetre from the top down, on the left and on the right, as far as it matters for
    /// those widths.
    std::vector<std::array<double, 2>> m_rows;
};

}  // namespace fleetwright
