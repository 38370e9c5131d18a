#pragma once

#include "Raster.h"

#include <QImage>

namespace fleetwright {

/// The pixels of an image, which is opaque.
Raster toRaster(const QImage& image);
/// A picture as an opaque image.
QImage toImage(const Raster& raster);
/// A part of a picture, inside it.
QImage toImage(const Raster& raster, const QRect& part);

}  // namespace fleetwright
