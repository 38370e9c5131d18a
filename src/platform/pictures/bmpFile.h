#pragma once

#include <string>

namespace fleetwright {

class Raster;

/// The bytes of a BMP file with this picture, which is not empty: 24 bits a pixel, the lowest row
/// first. They depend on nothing but the picture.
std::string bmpFile(const Raster& picture);

}  // namespace fleetwright
