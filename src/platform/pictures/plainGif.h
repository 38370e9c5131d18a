#pragma once

#include "Raster.h"

#include <optional>
#include <string>

namespace fleetwright {

/// The picture in a GIF file of the plain kind that the program's own pictures are: without a
/// fault, one image that fills the screen, no extensions. Nothing for any other file: what is
/// transparent, interlaced, damaged or no GIF at all is for a decoder that knows how to take it.
std::optional<Raster> plainGif(const std::string& bytes);

}  // namespace fleetwright
