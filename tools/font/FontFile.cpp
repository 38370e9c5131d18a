#include "FontFile.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace {

/// A number as font files have it, the highest byte first.
std::string bytesOf(std::uint32_t number, int count) {
    constexpr unsigned byteBits = 8;
    std::string bytes;
    for (int byte = count - 1; byte >= 0; --byte) {
        bytes += static_cast<char>(number >> (byteBits * static_cast<unsigned>(byte)) & 0xFF);
    }
    return bytes;
}

std::string padded(std::string bytes) {
    bytes.append((4 - bytes.size() % 4) % 4, '\0');
    return bytes;
}

}  // namespace

class FontFile::Table {
public:
    explicit Table(std::string_view bytes) : m_bytes(bytes) {}

    std::uint32_t number(std::size_t at, std::size_t count) const {
        constexpr unsigned byteBits = 8;
        if (at + count > m_bytes.size()) {
            throw std::runtime_error("a table of the font is cut off");
        }
        std::uint32_t number = 0;
        for (const char byte : m_bytes.substr(at, count)) {
            number = number << byteBits | static_cast<unsigned char>(byte);
        }
        return number;
    }
    std::uint32_t half(std::size_t at) const { return number(at, 2); }
    std::uint32_t word(std::size_t at) const { return number(at, 4); }
    std::string_view part(std::size_t at, std::size_t size) const {
        if (at > m_bytes.size() || size > m_bytes.size() - at) {
            throw std::runtime_error("a table of the font is cut off");
        }
        return m_bytes.substr(at, size);
    }

    std::uint32_t sum() const {
        std::uint32_t sum = 0;
        for (std::size_t at = 0; at < m_bytes.size(); at += 4) {
            sum += word(at);
        }
        return sum;
    }

private:
    std::string_view m_bytes;
};

FontFile::FontFile(const char* file) {
    std::ifstream in(file, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(in)), {});
    const Table font(bytes);
    m_kind = font.part(0, 4);
    constexpr std::size_t headSize = 12;
    constexpr std::size_t rowSize = 16;
    for (std::size_t row = 0; row < font.half(4); ++row) {
        const std::size_t at = headSize + rowSize * row;
        m_tables.emplace(font.part(at, 4), font.part(font.word(at + 8), font.word(at + 12)));
    }
}

FontFile::Table FontFile::table(const char* tag) const {
    const auto found = m_tables.find(tag);
    if (found == m_tables.end()) {
        throw std::runtime_error(std::string("the font has no table ") + tag);
    }
    return Table(found->second);
}

std::map<std::uint32_t, unsigned> FontFile::advances() const {
    constexpr unsigned unitsWanted = 2048;
    const Table metrics = table("hmtx");
    const unsigned units = table("head").half(18);
    const unsigned longMetrics = table("hhea").half(34);
    if (units == 0 || longMetrics == 0) {
        throw std::runtime_error("the font has no measures");
    }
    const auto advance = [&](std::uint32_t glyph) {
        return metrics.half(4 * std::size_t{std::min(glyph, longMetrics - 1)}) * unitsWanted /
               units;
    };
    std::map<std::uint32_t, unsigned> advances;
    for (const auto& [code, glyph] : glyphs()) {
        advances[code] = advance(glyph);
    }
    return advances;
}

std::map<std::uint32_t, std::uint32_t> FontFile::glyphs() const {
    const Table characters = table("cmap");
    std::map<std::uint32_t, std::uint32_t> glyphs;
    for (std::size_t row = 0; row < characters.half(2); ++row) {
        const std::size_t at = characters.word(4 + 8 * row + 4);
        if (characters.half(at) != 12) {
            continue;  // the groups of one format tell of all characters
        }
        for (std::size_t group = 0; group < characters.word(at + 12); ++group) {
            const std::size_t place = at + 16 + 12 * group;
            const std::uint32_t first = characters.word(place);
            const std::uint32_t last = std::min<std::uint32_t>(characters.word(place + 4), 0xFFFF);
            for (std::uint32_t code = first; code <= last; ++code) {
                glyphs[code] = characters.word(place + 8) + code - first;
            }
        }
    }
    if (glyphs.empty()) {
        throw std::runtime_error("the font tells of no characters");
    }
    return glyphs;
}

void FontFile::listCharacters() {
    const std::map<std::uint32_t, std::uint32_t> known = glyphs();
    const std::uint32_t first = known.begin()->first;
    const std::uint32_t count = known.rbegin()->first + 1 - first;
    std::string entries(2 * std::size_t{count}, '\0');
    for (const auto& [code, glyph] : known) {
        entries.replace(2 * std::size_t{code - first}, 2, bytesOf(glyph, 2));
    }
    // One table, for Unicode, of the format with an entry for each code.
    constexpr std::uint32_t headSize = 20;
    m_tables["cmap"] = bytesOf(0, 2) + bytesOf(1, 2) + bytesOf(3, 2) + bytesOf(10, 2) +
                       bytesOf(12, 4) + bytesOf(10, 2) + bytesOf(0, 2) +
                       bytesOf(headSize + static_cast<std::uint32_t>(entries.size()), 4) +
                       bytesOf(0, 4) + bytesOf(first, 4) + bytesOf(count, 4) + entries;
}

void FontFile::rename(const std::string& family, const std::string& style) {
    std::string joined = family;
    joined.erase(std::remove(joined.begin(), joined.end(), ' '), joined.end());
    const std::pair<unsigned, std::string> names[] = {
        {1, family}, {2, style}, {4, family + ' ' + style}, {6, joined + '-' + style}};
    std::string rows;
    std::string texts;
    for (const auto& [id, name] : names) {
        // For Windows, UTF-16, English.
        rows += bytesOf(3, 2) + bytesOf(1, 2) + bytesOf(0x409, 2) + bytesOf(id, 2) +
                bytesOf(static_cast<std::uint32_t>(2 * name.size()), 2) +
                bytesOf(static_cast<std::uint32_t>(texts.size()), 2);
        for (const char c : name) {
            texts += {'\0', c};
        }
    }
    constexpr std::uint32_t headSize = 6;
    m_tables["name"] = bytesOf(0, 2) + bytesOf(std::size(names), 2) +
                       bytesOf(headSize + static_cast<std::uint32_t>(rows.size()), 2) + rows +
                       texts;
}

void FontFile::keepOutlines() {
    static constexpr std::string_view kept[] = {"CFF ", "OS/2", "cmap", "glyf", "head", "hhea",
                                                "hmtx", "loca", "maxp", "name", "post"};
    std::erase_if(m_tables, [](const auto& entry) {
        return std::find(std::begin(kept), std::end(kept), entry.first) == std::end(kept);
    });
    constexpr std::size_t postHead = 32;
    m_tables["post"] = bytesOf(0x00030000, 4) + std::string(table("post").part(4, postHead - 4));
}

void FontFile::write(const char* file) const {
    const auto count = static_cast<std::uint32_t>(m_tables.size());
    std::uint32_t power = 1;  // the greatest power of two among the tables, which readers search by
    std::uint32_t exponent = 0;
    for (; 2 * power <= count; power *= 2) {
        ++exponent;
    }
    constexpr std::uint32_t rowSize = 16;
    std::string rows = m_kind + bytesOf(count, 2) + bytesOf(rowSize * power, 2) +
                       bytesOf(exponent, 2) + bytesOf(rowSize * (count - power), 2);
    std::string contents;
    const std::size_t start = rows.size() + std::size_t{rowSize} * count;
    std::size_t sumPlace = 0;
    for (const auto& [tag, bytes] : m_tables) {
        std::string content = padded(bytes);
        if (tag == "head") {
            content.replace(8, 4, bytesOf(0, 4));
            sumPlace = start + contents.size() + 8;
        }
        rows += tag + bytesOf(Table(content).sum(), 4) +
                bytesOf(static_cast<std::uint32_t>(start + contents.size()), 4) +
                bytesOf(static_cast<std::uint32_t>(bytes.size()), 4);
        contents += content;
    }
    std::string font = rows + contents;
    font.replace(sumPlace, 4, bytesOf(0xB1B0AFBA - Table(font).sum(), 4));
    std::ofstream out(file, std::ios::binary);
    out << font;
    out.close();
    if (!out) {
        throw std::runtime_error(std::string(file) + ": cannot be written");
    }
}
