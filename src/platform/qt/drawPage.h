#pragma once

#include "PageDocument.h"

#include <cmath>

class QPainter;

namespace fleetwright {

/// Draws a page. The painter's origin is the upper left corner of the paper, and its units are
/// those of `drawPageShapes`. An application object must be there. Throws Error.
void drawPage(QPainter& painter, const Page& page);

}  // namespace fleetwright
