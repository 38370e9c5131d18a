#pragma once

#include "SheetFont.h"

#include <string>

namespace fleetwright {

/// How many units of an outline are a pixel, and how many pixels the size of the font.
inline constexpr int outlinePixel = 8, outlineSize = 16;

/// The outline of a picture of pixels, as the table "glyf" of a font file has it: rectangles, none
/// of which covers what another one does.
std::string pixelOutline(const Glyph& glyph);

}  // namespace fleetwright
