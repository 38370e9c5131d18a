#include "FontFile.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

using fleetwright::addFontNumber;
using fleetwright::fontNumber;

namespace {

std::uint32_t half(std::string_view bytes, std::size_t at) {
    return fontNumber(bytes, at, 2);
}

std::uint32_t word(std::string_view bytes, std::size_t at) {
    return fontNumber(bytes, at, 4);
}

std::string_view part(std::string_view bytes, std::size_t at, std::size_t size) {
    if (at > bytes.size() || size > bytes.size() - at) {
        throw std::out_of_range("a table of the font is cut off");
    }
    return bytes.substr(at, size);
}

constexpr std::size_t outlineHead = 10;  // how many contours it has, and its box

/// An outline of points without its hints.
std::string pointsAlone(std::string_view outline) {
    const std::size_t hints = outlineHead + 2 * std::size_t{half(outline, 0)};
    std::string alone(part(outline, 0, hints));
    addFontNumber(alone, 0, 2);
    return alone.append(outline.substr(hints + 2 + half(outline, hints)));
}

/// One that is put together of others, without its hints.
std::string partsAlone(std::string_view outline) {
    constexpr std::uint32_t hasWords = 1, hasScale = 8, goesOn = 0x20, hasTwoScales = 0x40,
                            hasMatrix = 0x80, hasHints = 0x100;
    std::string alone(part(outline, 0, outlineHead));
    for (bool isLast = false; !isLast;) {
        const std::size_t at = alone.size();
        const std::uint32_t flags = half(outline, at);
        const std::size_t size =
            ((flags & hasWords) != 0 ? 8U : 6U) + ((flags & hasScale) != 0 ? 2U : 0U) +
            ((flags & hasTwoScales) != 0 ? 4U : 0U) + ((flags & hasMatrix) != 0 ? 8U : 0U);
        addFontNumber(alone, flags & ~hasHints, 2);
        alone += part(outline, at + 2, size - 2);
        isLast = (flags & goesOn) == 0;
    }
    return alone;
}

std::string withoutHints(std::string_view outline) {
    if (outline.empty()) {
        return {};
    }
    const bool isOfParts = (half(outline, 0) & 0x8000U) != 0;
    std::string alone = isOfParts ? partsAlone(outline) : pointsAlone(outline);
    alone.append(alone.size() % 2, '\0');
    return alone;
}

}  // namespace

FontFile::FontFile(const char* file) {
    std::ifstream in(file, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(in)), {});
    m_kind = part(bytes, 0, 4);
    constexpr std::size_t headSize = 12;
    constexpr std::size_t rowSize = 16;
    for (std::size_t row = 0; row < half(bytes, 4); ++row) {
        const std::size_t at = headSize + rowSize * row;
        m_tables.emplace(part(bytes, at, 4),
                         part(bytes, word(bytes, at + 8), word(bytes, at + 12)));
    }
}

std::string_view FontFile::table(std::string_view tag) const {
    const auto found = m_tables.find(tag);
    if (found == m_tables.end()) {
        throw std::runtime_error("the font has no table " + std::string(tag));
    }
    return found->second;
}

std::map<std::uint32_t, FontFile::Letter> FontFile::letters() const {
    constexpr std::uint32_t unitsWanted = 2048;
    const std::string_view metrics = table("hmtx");
    const std::uint32_t units = half(table("head"), 18);
    const std::uint32_t longMetrics = half(table("hhea"), 34);
    if (units == 0 || longMetrics == 0) {
        throw std::runtime_error("the font has no measures");
    }
    const auto letter = [&](std::uint32_t glyph) {
        const std::size_t row = std::min(glyph, longMetrics - 1);
        return Letter{glyph, half(metrics, 4 * row) * unitsWanted / units};
    };
    const std::string_view characters = table("cmap");
    std::map<std::uint32_t, Letter> letters;
    for (std::size_t row = 0; row < half(characters, 2); ++row) {
        const std::size_t at = word(characters, 4 + 8 * row + 4);
        if (half(characters, at) != 12) {
            continue;  // the groups of one format tell of all characters
        }
        for (std::size_t group = 0; group < word(characters, at + 12); ++group) {
            const std::size_t place = at + 16 + 12 * group;
            const std::uint32_t first = word(characters, place);
            for (std::uint32_t code = first; code <= word(characters, place + 4); ++code) {
                letters[code] = letter(word(characters, place + 8) + code - first);
            }
        }
    }
    if (letters.empty()) {
        throw std::runtime_error("the font tells of no characters");
    }
    return letters;
}

std::vector<std::string> FontFile::outlines() const {
    std::vector<std::string> outlines;
    if (!m_tables.contains("glyf")) {
        return outlines;
    }
    const std::string_view places = table("loca");
    const bool isLong = half(table("head"), 50) != 0;
    const auto place = [&](std::size_t glyph) {
        return isLong ? word(places, 4 * glyph) : 2 * half(places, 2 * glyph);
    };
    for (std::size_t glyph = 0; glyph < half(table("maxp"), 4); ++glyph) {
        const std::uint32_t start = place(glyph);
        outlines.emplace_back(part(table("glyf"), start, place(glyph + 1) - start));
    }
    return outlines;
}

void FontFile::setOutlines(const std::vector<std::string>& outlines) {
    std::string places, all;
    for (const std::string& outline : outlines) {
        addFontNumber(places, static_cast<std::uint32_t>(all.size()), 4);
        all += outline;
    }
    addFontNumber(places, static_cast<std::uint32_t>(all.size()), 4);
    m_tables["loca"] = places;
    m_tables["glyf"] = all;
    std::string isLong;
    addFontNumber(isLong, 1, 2);
    m_tables.at("head").replace(50, 2, isLong);
}

void FontFile::rename(const std::string& family, const std::string& style) {
    m_tables["name"] = fleetwright::fontNames(family, style);
}

void FontFile::keepOutlines() {
    static constexpr std::string_view kept[] = {"CFF ", "OS/2", "cmap", "glyf", "head", "hhea",
                                                "hmtx", "loca", "maxp", "name", "post"};
    std::erase_if(m_tables, [](const auto& entry) {
        return std::find(std::begin(kept), std::end(kept), entry.first) == std::end(kept);
    });
    constexpr std::size_t postHead = 32;
    std::string post;
    addFontNumber(post, 0x00030000, 4);
    m_tables["post"] = post.append(part(table("post"), 4, postHead - 4));
    if (std::vector<std::string> all = outlines(); !all.empty()) {
        std::ranges::transform(all, all.begin(), withoutHints);
        setOutlines(all);
    }
}

void FontFile::write(const char* file) const {
    std::ofstream out(file, std::ios::binary);
    out << fleetwright::fontFile(m_kind, m_tables);
    out.close();
    if (!out) {
        throw std::runtime_error(std::string(file) + ": cannot be written");
    }
}
