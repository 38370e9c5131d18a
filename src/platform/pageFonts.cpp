#include "pageFonts.h"

#include "pageFontData.h"
#include "text.h"

#include <algorithm>
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

}  // namespace

std::vector<PageRun> pageRuns(std::string_view text, PageFont font) {
    constexpr double unitsPerSize = 2048;
    constexpr std::string_view missing = "\uFFFD";
    std::vector<PageRun> runs;
    while (!text.empty()) {
        std::string_view shown = text.substr(0, characterLength(text));
        text.remove_prefix(shown.size());
        shown = shown == "\t" ? " " : shown;
        const char32_t character = codePoint(shown);
        if (isInvisible(character)) {
            continue;
        }
        std::optional<PageGlyph> glyph = glyphFor(character, font);
        if (!glyph) {
            shown = missing;
            glyph = glyphFor(U'\uFFFD', font);
        }
        if (runs.empty() || runs.back().face != glyph->face) {
            runs.push_back({.face = glyph->face, .text = {}, .width = 0});
        }
        runs.back().text += character == U'\uFFFD' ? missing : shown;
        runs.back().width += glyph->advance / unitsPerSize;
    }
    return runs;
}

double textWidth(const std::string& text, double size, PageFont font) {
    double width = 0;
    for (const PageRun& run : pageRuns(text, font)) {
        width += run.width;
    }
    return width * size;
}

}  // namespace fleetwright
