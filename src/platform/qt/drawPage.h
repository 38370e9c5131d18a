#pragma once

#include "PageDocument.h"

#include <cmath>

class QPainter;

namespace fleetwright {

/// How many units of a painter that draws pages make a millimetre.
inline constexpr int pageUnits = 1000;

/// Millimetres in whole units.
inline double toUnits(double millimetres) {
    return std::round(millimetres * pageUnits);
}

/// Draws a page. The painter's origin is the upper left corner of the paper. Throws Error.
void drawPage(QPainter& painter, const Page& page);

}  // namespace fleetwright
