#pragma once

#include "Raster.h"

#include <string>

namespace fleetwright {

/// A picture from its rows, a letter a pixel: R, G, B, C, M and Y are marks, # is black, . is
/// white, and a small letter is a mark's colour, or k black, one off in a channel. A number in
/// front of a letter repeats the pixel, and one with * in front of a row repeats the row. Short
/// rows end white.
Raster outlineOf(const std::string& rows);

}  // namespace fleetwright
