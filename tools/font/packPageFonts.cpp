// Makes the fonts of pages out of fonts that are delivered to the build, and writes C++ source for
// src/platform/pageFontData.h: how wide their characters are, and their outlines.
//
//   pack-page-fonts LETTERS.cpp OUTLINES.cpp FONT FAMILY STYLE OUT.ttf [FONT FAMILY STYLE OUT...]
//
// They get names of our own, so that no other version of a font, which a machine happens to have,
// is taken for the one that the program carries.

#include "FontFile.h"

#include <exception>
#include <fstream>
#include <iostream>
#include <span>
#include <stdexcept>

namespace {

using Letters = std::map<std::uint32_t, FontFile::Letter>;

/// C++ source that fills one array for each font, and then a list of them.
class Source {
public:
    explicit Source(const char* file) : m_file(file), m_out(file) {
        m_out << "#include \"pageFontData.h\"\n\nnamespace fleetwright {\n\n";
    }

    std::ostream& out() { return m_out; }
    /// An entry of the list.
    void list(const std::string& entry) { m_list += entry + ','; }
    void end(const std::string& declaration) {
        m_out << declaration << " = {" << m_list << "};\n\n}  // namespace fleetwright\n";
        m_out.close();
        if (!m_out) {
            throw std::runtime_error(m_file + ": cannot be written");
        }
    }

private:
    std::string m_file;
    std::ofstream m_out;
    std::string m_list;
};

void writeLetters(Source& source, const std::string& name, const Letters& letters) {
    source.out() << "static constexpr LetterRun " << name << "[] = {\n";
    for (auto first = letters.begin(); first != letters.end();) {
        std::uint32_t count = 0;
        auto next = first;
        while (next != letters.end() && next->first == first->first + count &&
               next->second.glyph == first->second.glyph + count &&
               next->second.advance == first->second.advance) {
            ++next;
            ++count;
        }
        source.out() << '{' << first->first << ',' << count << ',' << first->second.advance << ','
                     << first->second.glyph << "},";
        first = next;
    }
    source.out() << "};\n";
    source.list(name);
}

void writeOutlines(Source& source, const std::string& name,
                   const std::vector<std::string>& outlines) {
    source.out() << "static constexpr std::uint32_t " << name << "Starts[] = {0";
    std::size_t end = 0;
    for (const std::string& outline : outlines) {
        end += outline.size();
        source.out() << ',' << end;
    }
    source.out() << "};\nstatic constexpr unsigned char " << name << "Bytes[] = {\n";
    for (const std::string& outline : outlines) {
        for (const char byte : outline) {
            source.out() << static_cast<unsigned>(static_cast<unsigned char>(byte)) << ',';
        }
        source.out() << '\n';
    }
    source.out() << "};\n";
    source.list('{' + name + "Starts," + name + "Bytes}");
}

void packFonts(const char* const* arguments, int count) {
    Source letters(arguments[0]);
    Source outlines(arguments[1]);
    for (int at = 2; at < count; at += 4) {
        FontFile font(arguments[at]);
        const std::string name = "face" + std::to_string(at / 4);
        font.rename(arguments[at + 1], arguments[at + 2]);
        font.keepOutlines();
        writeLetters(letters, name, font.letters());
        if (const auto ofFont = font.outlines(); !ofFont.empty()) {
            writeOutlines(outlines, name, ofFont);
        }
        font.write(arguments[at + 3]);
    }
    letters.end("const std::span<const LetterRun> pageLetters[]");
    outlines.end("const GlyphOutlines pageOutlines[]");
}

}  // namespace

int main(int argc, char** argv) {
    try {
        if (argc < 7 || argc % 4 != 3) {
            throw std::runtime_error("usage: pack-page-fonts LETTERS.cpp OUTLINES.cpp FONT FAMILY "
                                     "STYLE OUT.ttf [FONT FAMILY STYLE OUT.ttf...]");
        }
        packFonts(argv + 1, argc - 1);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "pack-page-fonts: " << error.what() << '\n';
        return 1;
    }
}
