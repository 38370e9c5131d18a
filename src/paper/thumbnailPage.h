#pragma once

// Ships as a picture of a file, as small as an icon.

#include "PageDocument.h"
#include "SheetRecord.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace fleetwright {

/// The side of the square that thumbnails are drawn on, in millimetres.
inline constexpr double thumbnailSide = 100;
/// More ships could not be told apart.
inline constexpr std::size_t mostInThumbnail = 4;

/// The drawings of so many ships side by side, each as large as its part lets it be. There is no
/// text.
Page thumbnailPage(const std::vector<SheetRecord>& ships);

/// What can be drawn of a ship where pictures are missing: its damage track. Throws Error if that
/// has no box, or too many.
SheetRecord trackRecord(std::int32_t points, std::int32_t rows);

}  // namespace fleetwright
