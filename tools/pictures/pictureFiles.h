#pragma once

#include "PictureSet.h"

#include <QByteArray>
#include <QImage>

#include <string>
#include <vector>

namespace fleetwright {

/// The bytes of a GIF file of an image of up to 256 colours.
std::string gifFile(const QImage& image);

/// A GIF file of what `drawInk` draws.
PictureFile inkPicture(const std::vector<QByteArray>& layers, QSize size);

/// The bytes of a file of another format that Qt writes, such as "BMP" or "PNG".
std::string imageFile(const QImage& image, const char* format);

}  // namespace fleetwright
