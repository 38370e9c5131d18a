#pragma once

#include "Raster.h"

#include <QImage>

namespace fleetwright {

Raster toRaster(const QImage& image);
QImage toImage(const Raster& raster);
/// A part of a picture, inside it.
QImage toImage(const Raster& raster, const QRect& part);

}  // namespace fleetwright
