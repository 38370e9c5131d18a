#pragma once

// The marks that an author paints on a ship outline, one pixel each in a pure colour. Whoever
// paints, scans or explains marks takes their colours from here.

#include "SSDMapLine.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace fleetwright {

/// Colours as a Raster has them, 0xRRGGBB. All other colours are no marks.
enum MarkColour : std::uint32_t {
    Black = 0x000000,
    Blue = 0x0000FF,
    Green = 0x00FF00,
    Cyan = 0x00FFFF,
    Red = 0xFF0000,
    Magenta = 0xFF00FF,
    Yellow = 0xFFFF00
};

/// A mark and what the line is about that it makes in a map.
struct MapMark {
    std::uint32_t colour;
    MapKeyword keyword;
};

inline constexpr std::array<MapMark, 6> mapMarks = {{{Red, MapKeyword::FireCon},
                                                     {Green, MapKeyword::Thrust},
                                                     {Yellow, MapKeyword::Weap},
                                                     {Blue, MapKeyword::Dcp},
                                                     {Magenta, MapKeyword::DamRow},
                                                     {Cyan, MapKeyword::Ftl}}};

/// The pixel at the right of a weapon mark that says the weapon's arc.
struct ArcMark {
    std::uint32_t colour;
    char arc;
};

inline constexpr std::array<ArcMark, 5> arcMarks = {
    {{Red, 'F'}, {Blue, 'P'}, {Green, 'S'}, {Cyan, 'A'}, {Magenta, 'B'}}};

/// The black pixels at the right of a track mark that say the SIZE of the map.
struct TrackLength {
    int blackPixels;
    int size;  ///< the largest mass of the ships that the map is for
};

inline constexpr std::array<TrackLength, 3> trackLengths = {{{63, 18}, {79, 36}, {143, 100}}};

/// Whether a colour is that of a mark: every channel empty or full, and neither black nor white.
constexpr bool isMark(std::uint32_t colour) {
    constexpr std::uint32_t lowBits = 0x010101, white = 0xFFFFFF;
    const std::uint32_t full = ((colour & lowBits) << 8) - (colour & lowBits);
    return (full == colour) & (colour != Black) & (colour != white);  // without branches: quicker
}

/// How many pixels of a row stand before its first mark; all if it has none.
std::size_t pixelsBeforeMark(std::span<const std::uint32_t> pixels);

/// What the line is about that a mark of this colour makes; `Unknown` if it is no mark's.
constexpr MapKeyword markKeyword(std::uint32_t colour) {
    for (const MapMark& mark : mapMarks) {
        if (mark.colour == colour) {
            return mark.keyword;
        }
    }
    return MapKeyword::Unknown;
}

}  // namespace fleetwright
