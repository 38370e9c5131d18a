#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

/// A font file of the kind that TrueType and OpenType share: tables by names of four letters.
/// Everything throws std::runtime_error where the file is not as it should be.
class FontFile {
public:
    explicit FontFile(const char* file);

    /// How far each character of the first 65536 moves the pen, in 2048ths of the font's size.
    std::map<std::uint32_t, unsigned> advances() const;

    /// Gives the font other names. `style` is "Regular" or "Bold".
    void rename(const std::string& family, const std::string& style);
    /// Leaves nothing but the outlines of single characters: no pairs that move together or melt
    /// into one sign, so that a text is as wide as its characters, no names of glyphs, no hints for
    /// few pixels.
    void keepOutlines();
    /// Gives each of the first 65536 characters an entry of its own, in which its glyph is found
    /// without a search; others have none any more. Who embeds the font asks for all of them.
    void listCharacters();

    void write(const char* file) const;

private:
    /// Bytes of a table, of which numbers are read.
    class Table;

    Table table(const char* tag) const;
    /// The glyph of each character of the first 65536.
    std::map<std::uint32_t, std::uint32_t> glyphs() const;

    std::string m_kind;  ///< of outlines, as the file begins
    std::map<std::string, std::string, std::less<>> m_tables;
};
