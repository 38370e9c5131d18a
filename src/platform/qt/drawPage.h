#pragma once

#include "PageDocument.h"

class QPainter;

namespace fleetwright {

/// How many units of a painter that draws pages make a millimetre.
inline constexpr int pageUnits = 1000;

/// Draws a page. The painter's origin is the upper left corner of the paper. Throws Error.
void drawPage(QPainter& painter, const Page& page);

}  // namespace fleetwright
