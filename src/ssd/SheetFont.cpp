#include "SheetFont.h"

#include "glyphData.h"

#include <algorithm>
#include <iterator>

namespace fleetwright {

namespace {

/// Characters that only say how others are to be treated. The font has pictures of them.
bool isInvisible(char32_t character) {
    static constexpr struct {
        char32_t first;
        char32_t last;
    } ranges[] = {{0x00, 0x1F},     {0x7F, 0x9F},     {0xAD, 0xAD},     {0x200B, 0x200F},
                  {0x2028, 0x202E}, {0x2060, 0x206F}, {0xFE00, 0xFE0F}, {0xFEFF, 0xFEFF}};
    return std::any_of(std::begin(ranges), std::end(ranges), [character](const auto& range) {
        return character >= range.first && character <= range.last;
    });
}

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
