#pragma once

// The characters of the fonts of pages, as the build has packed them from the fonts; `pageFonts`
// and `FontSubset` read them.

#include "pageFonts.h"

#include <cstdint>
#include <span>

namespace fleetwright {

/// Characters whose codes and glyphs follow each other and that are equally wide.
struct LetterRun {
    char32_t first;         ///< code point of the first character
    std::uint16_t count;    ///< how many characters
    std::uint16_t advance;  ///< how far each moves the pen, in 2048ths of the font's size
    std::uint16_t glyph;    ///< the number of the first outline
};

/// The runs of each `PageFace`, by their first code points.
extern const std::span<const LetterRun> pageLetters[];
/// The run that has a character, or null.
const LetterRun* letterRunOf(char32_t character, PageFace face);

/// The outlines of a face, one behind the other.
struct GlyphOutlines {
    std::span<const std::uint32_t> starts;  ///< of each one, and the end of the last one
    const unsigned char* bytes;             ///< in the form of the table "glyf", without hints
};

/// Those of `PageFace::Regular` and `PageFace::Bold`.
extern const GlyphOutlines pageOutlines[];

}  // namespace fleetwright
