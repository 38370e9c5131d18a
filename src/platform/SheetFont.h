#pragma once

// The bitmap font of sheets, which the program carries in itself, so that a sheet is the same on
// every machine. Capitals and digits have ink in their third column, which the trim of a sheet
// looks for.

#include <cstdint>

namespace fleetwright {

/// The picture of a character.
struct Glyph {
    static constexpr int height = 16;

    int width = 0;    ///< pixels
    int left = 0;     ///< where it begins, in pixels from the pen
    int advance = 0;  ///< how far the pen moves on, in pixels
    const std::uint64_t* words = nullptr;

    /// Whether a pixel of the picture is black.
    bool hasInk(int x, int y) const {
        constexpr int wordBits = 64;
        const int rowsInWord = wordBits / width;
        const int shift = wordBits - 1 - (y % rowsInWord) * width - x;
        return (words[y / rowsInWord] >> static_cast<unsigned>(shift) & 1U) != 0;
    }
};

/// The picture of a character. One that the font lacks gets a sign in its place; control and format
/// characters have no picture at all, and a tab is a blank.
Glyph glyphOf(char32_t character);

}  // namespace fleetwright
