#pragma once

// Font files of the kind that TrueType and OpenType share: tables by names of four letters.

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace fleetwright {

/// What stands in a font file, by the names of its tables.
using FontTables = std::map<std::string, std::string, std::less<>>;

/// Adds the lowest bytes of a number as font files have them, the highest first. A negative number
/// is its two's complement.
void addFontNumber(std::string& bytes, std::uint32_t number, int count);

/// The number that so many bytes at this place are. Throws std::out_of_range.
std::uint32_t fontNumber(std::string_view bytes, std::size_t at, int count);

/// The table "name" of a font of a family. `style` is "Regular" or "Bold".
std::string fontNames(std::string_view family, std::string_view style);

/// The file. `kind` is what it begins with, four bytes that say of which kind its outlines are.
std::string fontFile(std::string_view kind, FontTables tables);

}  // namespace fleetwright
