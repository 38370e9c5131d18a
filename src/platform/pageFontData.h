#pragma once

// How wide the characters of the fonts of pages are, as the build has packed it from the fonts;
// `pageFonts` reads it.

#include <cstdint>
#include <span>

namespace fleetwright {

/// Characters whose codes follow each other and that are equally wide.
struct AdvanceRun {
    char32_t first;         ///< code point of the first character
    std::uint16_t count;    ///< how many characters
    std::uint16_t advance;  ///< how far each moves the pen, in 2048ths of the font's size
};

/// The runs of each `PageFace`, by their first code points.
extern const std::span<const AdvanceRun> pageFaces[];

}  // namespace fleetwright
