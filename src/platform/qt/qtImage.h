#pragma once

#include "Raster.h"

#include <QImage>

namespace fleetwright {

Raster toRaster(const QImage& image);
QImage toImage(const Raster& raster);

}  // namespace fleetwright
