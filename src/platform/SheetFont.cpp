#include "SheetFont.h"

#include "glyphData.h"
#include "text.h"

#include <algorithm>

namespace fleetwright {

namespace {

/// The run that a character stands in, or nullptr.
const GlyphRun* runOf(char32_t character) {
    const GlyphRun* const end = glyphRuns + glyphRunCount;
    const GlyphRun* run =
        std::upper_bound(glyphRuns, end, character,
                         [](char32_t code, const GlyphRun& other) { return code < other.first; });
    if (run == glyphRuns) {
        return nullptr;
    }
    --run;
    return character - run->first < run->count ? run : nullptr;
}

}  // namespace

Glyph glyphOf(char32_t character) {
    if (character == U'\t') {
        character = U' ';
    }
    if (isInvisible(character)) {
        return {};
    }
    const GlyphRun* run = runOf(character);
    if (run == nullptr) {
        character = U'\uFFFD';
        run = runOf(character);
    }
    constexpr int wordBits = 64;
    const auto wordsEach = static_cast<std::size_t>(Glyph::height * run->width / wordBits);
    const std::size_t place = character - run->first;
    return {.width = run->width,
            .left = run->left,
            .advance = run->isCombining ? 0 : run->width,
            .words = glyphWords + run->firstWord + place * wordsEach};
}

}  // namespace fleetwright
