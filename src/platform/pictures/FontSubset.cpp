#include "FontSubset.h"

#include "SheetFont.h"
#include "fontTables.h"
#include "pageFontData.h"
#include "pixelOutline.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <initializer_list>
#include <string_view>
#include <utility>

namespace fleetwright {

namespace {

constexpr std::uint32_t versionOne = 0x00010000;

std::uint32_t half(std::string_view outline, std::size_t at) {
    return fontNumber(outline, at, 2);
}

int signedHalf(std::string_view outline, std::size_t at) {
    return static_cast<std::int16_t>(half(outline, at));
}

void addHalves(std::string& table, std::initializer_list<int> numbers) {
    for (const int number : numbers) {
        addFontNumber(table, static_cast<std::uint32_t>(number), 2);
    }
}

std::string_view outlineOf(PageFace face, std::size_t glyph) {
    const GlyphOutlines& outlines = pageOutlines[static_cast<std::size_t>(face)];
    const std::uint32_t start = outlines.starts[glyph];
    return {reinterpret_cast<const char*>(outlines.bytes) + start,
            outlines.starts[glyph + 1] - start};
}

/// Has each part of an outline that is put together of others take the number that `numberOf` gives
/// its glyph.
template <typename NumberOf>
void renumberParts(std::string& outline, NumberOf numberOf) {
    if (outline.empty() || signedHalf(outline, 0) >= 0) {
        return;
    }
    constexpr std::uint32_t hasWords = 1, hasScale = 8, goesOn = 0x20, hasTwoScales = 0x40,
                            hasMatrix = 0x80;
    std::uint32_t flags = goesOn;
    for (std::size_t at = 10; (flags & goesOn) != 0;) {
        flags = half(outline, at);
        std::string number;
        addFontNumber(number, numberOf(half(outline, at + 2)), 2);
        outline.replace(at + 2, 2, number);
        at += ((flags & hasWords) != 0 ? 8U : 6U) + ((flags & hasScale) != 0 ? 2U : 0U) +
              ((flags & hasTwoScales) != 0 ? 4U : 0U) + ((flags & hasMatrix) != 0 ? 8U : 0U);
    }
}

}  // namespace

/// The tables that have an entry for each glyph, the first of which is empty: whoever shows the
/// font asks for it where there is no character.
struct FontSubset::Glyphs {
    std::string outlines, places, metrics;
    std::size_t count = 0;
    std::array<int, 4> box = {0, 0, 0, 0};  ///< of all: left, bottom, right, top
    int widest = 0;

    /// Adds one that moves the pen so far.
    void add(std::string_view outline, int advance) {
        addFontNumber(places, static_cast<std::uint32_t>(outlines.size()), 4);
        addHalves(metrics, {advance, outline.empty() ? 0 : signedHalf(outline, 2)});
        if (!outline.empty()) {
            for (std::size_t i = 0; i < box.size(); ++i) {
                const int side = signedHalf(outline, 2 + 2 * i);
                box[i] = i < 2 ? std::min(box[i], side) : std::max(box[i], side);
            }
        }
        (outlines += outline).append(outline.size() % 2, '\0');
        widest = std::max(widest, advance);
        ++count;
    }
};

FontSubset::FontSubset(PageFace face, std::vector<Sign> signs)
    : m_face(face), m_signs(std::move(signs)) {
    std::ranges::sort(m_signs);
    m_signs.erase(std::unique(m_signs.begin(), m_signs.end()), m_signs.end());
}

std::size_t FontSubset::glyphOf(const Sign& sign) const {
    return static_cast<std::size_t>(std::ranges::lower_bound(m_signs, sign) - m_signs.begin()) + 1;
}

double FontSubset::widthOf(const Sign& sign) const {
    constexpr double unitsOfRuns = 2048;
    return letterRunOf(sign.drawn, m_face)->advance / unitsOfRuns;
}

std::string FontSubset::name() const {
    std::string name(pageFamily(m_face));
    std::erase(name, ' ');
    return name + (m_face == PageFace::Bold ? "-Bold" : "-Regular");
}

int FontSubset::unitsPerSize() const {
    constexpr int unitsOfOutlines = 2048;
    return m_face == PageFace::Fallback ? outlineSize * outlinePixel : unitsOfOutlines;
}

FontSubset::Glyphs FontSubset::glyphs() const {
    Glyphs glyphs;
    glyphs.add({}, 0);
    std::vector<std::uint32_t> parts;  // that follow behind the signs, by their glyphs in the face
    const auto numberOfPart = [&](std::uint32_t glyph) {
        const auto found = std::ranges::find(parts, glyph);
        const auto place = static_cast<std::size_t>(found - parts.begin());
        if (found == parts.end()) {
            parts.push_back(glyph);
        }
        return static_cast<std::uint32_t>(m_signs.size() + 1 + place);
    };
    const auto addOutline = [&](std::uint32_t glyph, int advance) {
        std::string outline(outlineOf(m_face, glyph));
        renumberParts(outline, numberOfPart);
        glyphs.add(outline, advance);
    };
    for (const Sign& sign : m_signs) {
        const auto advance = static_cast<int>(std::lround(widthOf(sign) * unitsPerSize()));
        if (m_face == PageFace::Fallback) {
            glyphs.add(pixelOutline(fleetwright::glyphOf(sign.drawn)), advance);
            continue;
        }
        const LetterRun& run = *letterRunOf(sign.drawn, m_face);
        addOutline(run.glyph + (sign.drawn - run.first), advance);
    }
    // NOLINTNEXTLINE(modernize-loop-convert): each may add parts of its own behind the last one
    for (std::size_t part = 0; part < parts.size(); ++part) {
        addOutline(parts[part], 0);
    }
    addFontNumber(glyphs.places, static_cast<std::uint32_t>(glyphs.outlines.size()), 4);
    return glyphs;
}

/// The glyph of each character, in groups that follow each other.
std::string FontSubset::characterTable() const {
    std::string groups;
    std::uint32_t count = 0;
    for (std::size_t first = 0; first < m_signs.size();) {
        const char32_t code = m_signs[first].character;
        std::size_t next = first + 1;
        while (next < m_signs.size() && m_signs[next].character - code == next - first) {
            ++next;
        }
        addFontNumber(groups, code, 4);
        addFontNumber(groups, m_signs[next - 1].character, 4);
        addFontNumber(groups, static_cast<std::uint32_t>(first + 1), 4);
        ++count;
        while (next < m_signs.size() && m_signs[next].character == m_signs[next - 1].character) {
            ++next;
        }
        first = next;
    }
    // One table, for all of Unicode, with groups.
    constexpr int groupsFormat = 12;
    constexpr std::uint32_t start = 12, headSize = 16;
    std::string table;
    addHalves(table, {0, 1, 3, 10});
    addFontNumber(table, start, 4);
    addHalves(table, {groupsFormat, 0});
    addFontNumber(table, headSize + static_cast<std::uint32_t>(groups.size()), 4);
    addFontNumber(table, 0, 4);
    addFontNumber(table, count, 4);
    return table + groups;
}

/// What desktops want to know of a font.
std::string FontSubset::styleTable() const {
    const bool isBold = m_face == PageFace::Bold;
    const int size = unitsPerSize();
    const auto code = [](char32_t character) {
        return static_cast<int>(std::min<char32_t>(character, 0xFFFF));
    };
    std::string table;
    // Its weight and width, and that documents may hold it; no small and no crossed letters.
    addHalves(table, {0, size / 2, isBold ? 700 : 400, 5, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    constexpr std::size_t kindAndRanges = 10 + 16 + 4;  // of which nothing is said
    table.append(kindAndRanges, '\0');
    addHalves(table, {isBold ? 0x20 : 0x40, m_signs.empty() ? 0 : code(m_signs.front().character),
                      m_signs.empty() ? 0 : code(m_signs.back().character)});
    const int ascent = fontAscent * size / 1000, descent = fontDescent * size / 1000;
    addHalves(table, {ascent, descent, 0, ascent, -descent});
    return table;
}

std::string FontSubset::file() const {
    Glyphs all = glyphs();
    const int size = unitsPerSize();
    const auto [left, bottom, right, top] = all.box;
    const bool isBold = m_face == PageFace::Bold;
    std::string head, lines, most, post;
    addFontNumber(head, versionOne, 4);
    addFontNumber(head, versionOne, 4);
    addFontNumber(head, 0, 4);
    addFontNumber(head, 0x5F0F3CF5, 4);
    addHalves(head, {3, size, 0, 0, 0, 0, 0, 0, 0, 0});  // made at no time
    addHalves(head, {left, bottom, right, top, isBold ? 1 : 0, 6, 2, 1, 0});
    addFontNumber(lines, versionOne, 4);
    addHalves(lines, {fontAscent * size / 1000, fontDescent * size / 1000, 0, all.widest, left, 0,
                      right, 1, 0, 0, 0, 0, 0, 0, 0, static_cast<int>(all.count)});
    addFontNumber(most, versionOne, 4);
    // No face has outlines of as many points, contours or parts.
    addHalves(most,
              {static_cast<int>(all.count), 1024, 128, 1024, 128, 1, 0, 0, 0, 0, 0, 0, 16, 4});
    addFontNumber(post, 0x00030000, 4);
    constexpr std::size_t restOfPost = 28;
    post.append(restOfPost, '\0');
    return fontFile(std::string_view("\0\1\0\0", 4),
                    {{"OS/2", styleTable()},
                     {"cmap", characterTable()},
                     {"glyf", std::move(all.outlines)},
                     {"head", std::move(head)},
                     {"hhea", std::move(lines)},
                     {"hmtx", std::move(all.metrics)},
                     {"loca", std::move(all.places)},
                     {"maxp", std::move(most)},
                     {"name", fontNames(pageFamily(m_face), isBold ? "Bold" : "Regular")},
                     {"post", std::move(post)}});
}

}  // namespace fleetwright
