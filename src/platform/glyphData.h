#pragma once

// The letters of sheets as the build has packed them from the font; `SheetFont` reads them.

#include <cstddef>
#include <cstdint>

namespace fleetwright {

/// Characters whose codes follow each other and whose pictures are of one kind.
struct GlyphRun {
    char32_t first;           ///< code point of the first character
    std::uint16_t count;      ///< how many characters
    std::uint8_t width;       ///< pixels: 8 or 16
    bool isCombining;         ///< they go over the letter before them
    std::int8_t left;         ///< where the picture of a combining one begins, from the pen
    std::uint32_t firstWord;  ///< where the first picture begins in `glyphWords`
};

/// The runs, by their first code points.
extern const GlyphRun glyphRuns[];
extern const std::size_t glyphRunCount;
/// The pictures, 16 rows from the top, packed without gaps; the leftmost pixel of a row is the
/// highest of its bits, and the upper row has the higher bits.
extern const std::uint64_t glyphWords[];

}  // namespace fleetwright
