#pragma once

// The lines of a map file: the one place that knows its key words and how a line is taken apart.

#include "arcWords.h"
#include "text.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace fleetwright {

/// What a line of a map file is about.
enum class MapKeyword { Weap, Dcp, FireCon, Size, Image, DamRow, Ftl, Thrust, Unknown };

/// The words of a map file, the most frequent ones first.
inline constexpr std::array<std::pair<MapKeyword, std::string_view>, 8> mapKeywords = {{
    {MapKeyword::Weap, "WEAP"},
    {MapKeyword::Dcp, "DCP"},
    {MapKeyword::FireCon, "FIRECON"},
    {MapKeyword::Size, "SIZE"},
    {MapKeyword::Image, "IMAGE"},
    {MapKeyword::DamRow, "DAMROW"},
    {MapKeyword::Ftl, "FTL"},
    {MapKeyword::Thrust, "THRUST"},
}};

/// The word that a map has for a key word; empty for `Unknown`.
constexpr std::string_view mapWord(MapKeyword keyword) {
    for (const auto& [known, word] : mapKeywords) {
        if (known == keyword) {
            return word;
        }
    }
    return {};
}

/// The key word that a text says, without regard to case.
MapKeyword mapKeyword(std::string_view text);

/// Whether each line of a key adds a point. Of the other keys only the last line counts.
constexpr bool isAppending(MapKeyword keyword) {
    return keyword == MapKeyword::Weap || keyword == MapKeyword::FireCon ||
           keyword == MapKeyword::Dcp;
}

/// Whether the text of a weapon point, in capitals, is an arc that it can be in.
constexpr bool isMapArc(std::string_view arc) {
    return arc.size() == 1 && sheetArcs.find(arc) != std::string_view::npos;
}

/// A line of a map file, cut but not yet understood. The pieces have no blanks at their ends and
/// are in the file's own case, although case counts in none of them.
struct SSDMapLine {
    MapKeyword keyword = MapKeyword::Unknown;
    std::string_view word;  ///< what stands before the first colon
    std::string_view value;
    int number = 0;  ///< from 1
};

/// Cuts a map's text into its lines. Comments and empty lines are passed over.
class SSDMapLines {
public:
    explicit SSDMapLines(std::string_view text) : m_lines(text) {}

    /// Puts the next line into `line`; false when there is none.
    bool next(SSDMapLine& line);

private:
    LineReader m_lines;
};

/// A place on the outline, in pixels, at which the upper left corner of a picture goes.
struct SSDPoint {
    std::int16_t iPntX = 0;
    std::int16_t iPntY = 0;
    std::string sArc = {};  ///< of a weapon point: its arc, in capitals

    friend bool operator==(const SSDPoint&, const SSDPoint&) = default;
};

/// The point that a line says, in a value such as (120,340), or (120,340,F) of a weapon. Throws
/// Error where `withoutEnds` or `mapNumber` does.
SSDPoint mapPoint(const SSDMapLine& line);

/// A whole number of a map. Throws NotANumberError, or OverflowError outside 16 bits.
std::int16_t mapNumber(std::string_view text);

/// A value without its first and its last character, whatever they are. Throws Error if it is too
/// short for that.
std::string_view withoutEnds(std::string_view value);

}  // namespace fleetwright
