#pragma once

#include "fontTables.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// A font file of the kind that TrueType and OpenType share. Everything throws std::runtime_error
/// or std::out_of_range where the file is not as it should be.
class FontFile {
public:
    explicit FontFile(const char* file);

    /// What is drawn of a character, and how far it moves the pen, in 2048ths of the font's size.
    struct Letter {
        std::uint32_t glyph;
        std::uint32_t advance;
    };
    /// All characters, by their code points.
    std::map<std::uint32_t, Letter> letters() const;
    /// The outlines of all glyphs, as the table "glyf" has them; none if they are of another kind.
    std::vector<std::string> outlines() const;

    /// Gives the font other names. `style` is "Regular" or "Bold".
    void rename(const std::string& family, const std::string& style);
    /// Leaves nothing but the outlines of single characters: no pairs that move together or melt
    /// into one sign, so that a text is as wide as its characters, no names of glyphs, no hints for
    /// few pixels.
    void keepOutlines();

    void write(const char* file) const;

private:
    std::string_view table(std::string_view tag) const;
    void setOutlines(const std::vector<std::string>& outlines);

    std::string m_kind;  ///< of outlines, as the file begins
    fleetwright::FontTables m_tables;
};
