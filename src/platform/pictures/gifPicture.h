#pragma once

#include "PictureFiles.h"
#include "Raster.h"

#include <cstdint>
#include <string_view>

namespace fleetwright {

/// The first picture in a GIF file as it looks on white paper: all of its screen, cut off where the
/// picture leaves that. Throws Error for a file that is damaged or cut short, wherever that is,
/// that is none at all, or that shows more than `mostPixels`.
Raster gifPicture(std::string_view bytes, std::int64_t mostPixels = mostPicturePixels);

}  // namespace fleetwright
