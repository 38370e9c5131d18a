#pragma once

#include "PageDocument.h"

#include <cmath>

class QPainter;

namespace fleetwright {

/// How many units of a painter that draws pages make a millimetre.
inline constexpr int pageUnits = 1000;

/// A length on a page, in whole units.
inline double toUnits(double millimetres) {
    return std::round(millimetres * pageUnits);
}

/// Draws all of a page but its text. The painter's origin is the upper left corner of the paper.
/// Needs no application object. Throws Error.
void drawPageShapes(QPainter& painter, const Page& page);

}  // namespace fleetwright
