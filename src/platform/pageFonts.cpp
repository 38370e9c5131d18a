#include "pageFonts.h"

#include "pageFontData.h"
#include "text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

namespace fleetwright {

namespace {

/// A character's face and how far it moves the pen, in 2048ths of the font's size.
struct PageGlyph {
    PageFace face;
    unsigned advance;
};

std::optional<PageGlyph> glyphIn(PageFace face, char32_t character) {
    const std::span<const AdvanceRun> runs = pageFaces[static_cast<std::size_t>(face)];
    const auto next =
        std::upper_bound(runs.begin(), runs.end(), character,
                         [](char32_t code, const AdvanceRun& run) { return code < run.first; });
    if (next == runs.begin()) {
        return std::nullopt;
    }
    const AdvanceRun& run = *std::prev(next);
    return character - run.first < run.count ? std::optional(PageGlyph{face, run.advance})
                                             : std::nullopt;
}

std::optional<PageGlyph> glyphFor(char32_t character, PageFont font) {
    const auto glyph =
        glyphIn(font == PageFont::Bold ? PageFace::Bold : PageFace::Regular, character);
    return glyph ? glyph : glyphIn(PageFace::Fallback, character);
}

/// Hands over what is drawn of a text, a character and its glyph each.
template <typename Take>
void walkGlyphs(std::string_view text, PageFont font, Take take) {
    constexpr std::string_view missing = "\uFFFD";
    while (!text.empty()) {
        std::string_view shown = text.substr(0, characterLength(text));
        text.remove_prefix(shown.size());
        shown = shown == "\t" ? " " : shown;
        const char32_t character = codePoint(shown);
        if (isInvisible(character)) {
            continue;
        }
        std::optional<PageGlyph> glyph = glyphFor(character, font);
        if (!glyph || character == U'\uFFFD') {
            shown = missing;
            glyph = glyphFor(U'\uFFFD', font);
        }
        take(shown, *glyph);
    }
}

constexpr double unitsPerSize = 2048;

constexpr std::size_t asciiCount = 128;

/// How far the characters of ASCII move the pen in a font; 0 for those that are not drawn.
const std::array<unsigned, asciiCount>& asciiAdvances(PageFont font) {
    const auto all = [](PageFont ofFont) {
        std::array<unsigned, asciiCount> advances{};
        for (std::size_t code = 0; code < asciiCount; ++code) {
            const char character = static_cast<char>(code);
            walkGlyphs({&character, 1}, ofFont, [&](std::string_view, const PageGlyph& glyph) {
                advances[code] = glyph.advance;
            });
        }
        return advances;
    };
    static const std::array<unsigned, asciiCount> regular = all(PageFont::Regular);
    static const std::array<unsigned, asciiCount> bold = all(PageFont::Bold);
    return font == PageFont::Bold ? bold : regular;
}

}  // namespace

std::vector<PageRun> pageRuns(std::string_view text, PageFont font) {
    std::vector<PageRun> runs;
    walkGlyphs(text, font, [&runs](std::string_view shown, const PageGlyph& glyph) {
        if (runs.empty() || runs.back().face != glyph.face) {
            runs.push_back({.face = glyph.face, .text = {}, .width = 0});
        }
        runs.back().text += shown;
        runs.back().width += glyph.advance / unitsPerSize;
    });
    return runs;
}

double textWidth(std::string_view text, double size, PageFont font) {
    const std::array<unsigned, asciiCount>& advances = asciiAdvances(font);
    double width = 0;
    for (std::string_view rest = text; !rest.empty();) {
        if (const auto code = static_cast<unsigned char>(rest.front()); code < asciiCount) {
            width += advances[code];
            rest.remove_prefix(1);
            continue;
        }
        const std::string_view character = rest.substr(0, characterLength(rest));
        walkGlyphs(character, font,
                   [&width](std::string_view, const PageGlyph& glyph) { width += glyph.advance; });
        rest.remove_prefix(character.size());
    }
    return width / unitsPerSize * size;
}

}  // namespace fleetwright
