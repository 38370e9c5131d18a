// Makes the fonts of pages out of fonts that are delivered to the build, and writes C++ source for
// src/platform/pageFontData.h that says how wide their characters are.
//
//   pack-page-fonts OUT.cpp FONT FAMILY STYLE OUT.ttf [FONT FAMILY STYLE OUT.ttf...]
//
// They get names of our own, so that no other version of a font, which a machine happens to have,
// is taken for the one that the program carries.

#include "FontFile.h"

#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string_view>

namespace {

/// Runs of characters whose codes follow each other and that are equally wide.
void writeRuns(std::ostream& out, const std::map<std::uint32_t, unsigned>& advances) {
    for (auto first = advances.begin(); first != advances.end();) {
        std::uint32_t count = 0;
        auto next = first;
        while (next != advances.end() && next->first == first->first + count &&
               next->second == first->second) {
            ++next;
            ++count;
        }
        out << '{' << first->first << ',' << count << ',' << first->second << "},";
        first = next;
    }
}

void packFonts(const char* const* arguments, int count) {
    std::ofstream out(arguments[0]);
    out << "#include \"pageFontData.h\"\n\nnamespace fleetwright {\n\n";
    std::string faces;
    for (int at = 1; at < count; at += 4) {
        FontFile font(arguments[at]);
        const std::string name = "face" + std::to_string(at / 4);
        out << "static constexpr AdvanceRun " << name << "[] = {\n";
        writeRuns(out, font.advances());
        out << "};\n";
        faces += name + ',';
        font.rename(arguments[at + 1], arguments[at + 2]);
        font.keepOutlines();
        // In fonts of the other kind, Qt does not find characters that way.
        if (std::string_view(arguments[at + 3]).ends_with(".ttf")) {
            font.listCharacters();
        }
        font.write(arguments[at + 3]);
    }
    out << "const std::span<const AdvanceRun> pageFaces[] = {" << faces
        << "};\n\n}  // namespace fleetwright\n";
    out.close();
    if (!out) {
        throw std::runtime_error(std::string(arguments[0]) + ": cannot be written");
    }
}

}  // namespace

int main(int argc, char** argv) {
    try {
        if (argc < 6 || argc % 4 != 2) {
            throw std::runtime_error(
                "usage: pack-page-fonts OUT.cpp FONT FAMILY STYLE OUT.ttf [FONT...]");
        }
        packFonts(argv + 1, argc - 1);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "pack-page-fonts: " << error.what() << '\n';
        return 1;
    }
}
