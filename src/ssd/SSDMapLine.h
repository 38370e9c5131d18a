#pragma once

// How the lines of a map file are taken apart, for whoever reads such files.

#include <cstdint>
#include <string>
#include <string_view>

namespace fleetwright {

/// A place on the outline, in pixels, at which the upper left corner of a picture goes.
struct SSDPoint {
    std::int16_t iPntX = 0;
    std::int16_t iPntY = 0;
    std::string sArc = {};  ///< of a weapon point: its arc letter

    friend bool operator==(const SSDPoint&, const SSDPoint&) = default;
};

/// What a line of a map file is about.
enum class MapKey { Size, Image, Weap, FireCon, Dcp, DamRow, Ftl, Thrust, Unknown };

/// A line of a map file, cut but not yet understood. The pieces have no blanks at their ends and
/// are in the file's own case, although case counts in none of them.
struct SSDMapLine {
    MapKey key = MapKey::Unknown;
    std::string_view keyText;
    std::string_view value;
};

/// The arcs that a weapon point can be in, a letter each.
inline constexpr std::string_view mapArcs = "FPSAB";

/// Whether a line is passed over: an empty line or a comment.
bool isMapComment(std::string_view line);

/// Cuts a line at its first colon.
SSDMapLine cutMapLine(std::string_view line);

/// A whole number of a map. Throws NotANumberError, or OverflowError outside 16 bits.
std::int16_t mapNumber(std::string_view text);

/// A value without its first and its last character, whatever they are. Throws Error if it is too
/// short for that.
std::string_view withoutEnds(std::string_view value);

// The point in a value such as (120,340), or (120,340,F) of a weapon. Both throw Error where
// `withoutEnds` or `mapNumber` does.
SSDPoint parsePoint(std::string_view value);
SSDPoint parseWeapPoint(std::string_view value);

}  // namespace fleetwright
