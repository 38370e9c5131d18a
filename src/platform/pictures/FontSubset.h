#pragma once

#include "pageFonts.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace fleetwright {

/// A font of the pictures of a face that a document shows, and of no others: the same bytes for the
/// same pictures.
class FontSubset {
public:
    /// A picture, and the character that it stands for.
    struct Sign {
        char32_t character;
        char32_t drawn;

        friend auto operator<=>(const Sign&, const Sign&) = default;
    };

    /// Takes the signs in any order, and often. There is room for 65534.
    FontSubset(PageFace face, std::vector<Sign> signs);

    /// Each once, in the order of its characters.
    const std::vector<Sign>& signs() const { return m_signs; }
    /// The number of the glyph of one of them: 1 for the first.
    std::size_t glyphOf(const Sign& sign) const;
    /// How far one moves the pen, in sizes of the font.
    double widthOf(const Sign& sign) const;

    /// The name that programs know the font by, without blanks.
    std::string name() const;
    /// As a TrueType file, in which a character has the first of its pictures.
    std::string file() const;

private:
    struct Glyphs;

    int unitsPerSize() const;
    Glyphs glyphs() const;
    std::string characterTable() const;
    std::string styleTable() const;

    PageFace m_face;
    std::vector<Sign> m_signs;
};

/// How far letters reach above and below the line, in 1000ths of a font's size.
inline constexpr int fontAscent = 928, fontDescent = -236;

}  // namespace fleetwright
