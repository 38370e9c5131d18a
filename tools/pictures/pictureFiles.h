#pragma once

#include <QImage>

#include <string>

namespace fleetwright {

/// The bytes of a GIF file of an image of up to 256 colours.
std::string gifFile(const QImage& image);

/// The bytes of a file of another format that Qt writes, such as "BMP" or "PNG".
std::string imageFile(const QImage& image, const char* format);

}  // namespace fleetwright
