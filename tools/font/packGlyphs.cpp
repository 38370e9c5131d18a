// Packs a font of single-pixel letters into C++ source, for src/platform/glyphData.h.
//
//   pack-glyphs FONT.hex COMBINING.txt OUT.cpp
//
// A line of FONT is a code point, a colon and the 16 rows of the picture, all hexadecimal: 32
// digits for 8 pixels of width, 64 for 16. A line of COMBINING is a code point and how far from the
// pen its picture begins.

#include <charconv>
#include <cstdint>
#include <exception>
#include <fstream>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

/// A character's 16 rows, and for a combining one where it begins.
struct Picture {
    std::string rows;
    bool isCombining = false;
    int left = 0;

    std::size_t width() const { return rows.size() / 4; }
    bool isLike(const Picture& other) const {
        return width() == other.width() && isCombining == other.isCombining && left == other.left;
    }
};

using Font = std::map<std::uint32_t, Picture>;

template <typename Number>
Number numberIn(std::string_view text, int base) {
    Number number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number, base);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size()) {
        throw std::runtime_error("no number: " + std::string(text));
    }
    return number;
}

/// Hands on the two sides of the colon of each line.
template <typename Take>
void readPairs(const char* file, const Take& take) {
    std::ifstream in(file);
    std::string line;
    bool isEmpty = true;
    while (std::getline(in, line)) {
        const std::size_t colon = line.find(':');
        if (colon == std::string::npos) {
            throw std::runtime_error(std::string(file) + ": no colon in " + line);
        }
        take(numberIn<std::uint32_t>(std::string_view(line).substr(0, colon), 16),
             std::string_view(line).substr(colon + 1));
        isEmpty = false;
    }
    if (isEmpty) {
        throw std::runtime_error(std::string(file) + ": cannot be read");
    }
}

Font readFont(const char* fontFile, const char* combiningFile) {
    Font font;
    readPairs(fontFile, [&font](std::uint32_t code, std::string_view rows) {
        constexpr std::size_t narrow = 32;
        if (rows.size() != narrow && rows.size() != 2 * narrow) {
            throw std::runtime_error("neither 8 nor 16 pixels wide: " + std::string(rows));
        }
        font[code].rows = rows;
    });
    readPairs(combiningFile, [&font](std::uint32_t code, std::string_view left) {
        if (const auto found = font.find(code); found != font.end()) {
            found->second.isCombining = true;
            found->second.left = numberIn<int>(left, 10);
        }
    });
    if (!font.contains(0xFFFD)) {
        throw std::runtime_error("the font lacks the replacement character");
    }
    return font;
}

void writeRun(std::ostream& out, Font::const_iterator first, std::size_t count,
              std::size_t firstWord) {
    out << '{' << first->first << ',' << count << ',' << first->second.width() << ','
        << (first->second.isCombining ? "true" : "false") << ',' << first->second.left << ','
        << firstWord << "},\n";
}

void writeRuns(std::ostream& out, const Font& font) {
    constexpr std::size_t wordDigits = 16;
    constexpr std::size_t longestRun = 0xFFFF;
    out << "const GlyphRun glyphRuns[] = {\n";
    std::size_t runs = 0;
    std::size_t firstWord = 0;
    for (auto first = font.begin(); first != font.end();) {
        std::uint32_t count = 0;
        auto next = first;
        while (next != font.end() && next->first == first->first + count &&
               next->second.isLike(first->second) && count < longestRun) {
            ++next;
            ++count;
        }
        writeRun(out, first, count, firstWord);
        firstWord += count * (first->second.rows.size() / wordDigits);
        ++runs;
        first = next;
    }
    out << "};\nconst std::size_t glyphRunCount = " << runs << ";\n";
}

void writeWords(std::ostream& out, const Font& font) {
    constexpr std::size_t wordDigits = 16;
    out << "const std::uint64_t glyphWords[] = {\n";
    for (const auto& [code, picture] : font) {
        for (std::size_t at = 0; at < picture.rows.size(); at += wordDigits) {
            numberIn<std::uint64_t>(std::string_view(picture.rows).substr(at, wordDigits), 16);
            out << "0x" << std::string_view(picture.rows).substr(at, wordDigits) << ',';
        }
        out << '\n';
    }
    out << "};\n";
}

}  // namespace

int main(int argc, char** argv) {
    try {
        if (argc != 4) {
            throw std::runtime_error("usage: pack-glyphs FONT.hex COMBINING.txt OUT.cpp");
        }
        const Font font = readFont(argv[1], argv[2]);
        std::ofstream out(argv[3]);
        out << "#include \"glyphData.h\"\n\nnamespace fleetwright {\n\n";
        writeRuns(out, font);
        writeWords(out, font);
        out << "\n}  // namespace fleetwright\n";
        out.close();
        if (!out) {
            throw std::runtime_error(std::string(argv[3]) + ": cannot be written");
        }
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "pack-glyphs: " << error.what() << '\n';
        return 1;
    }
}
