#pragma once

#include "PageDocument.h"
#include "pageUnits.h"

class QPainter;

namespace fleetwright {

/// Draws all of a page but its text. The painter counts in `pageUnits` from the upper left corner
/// of the paper. Needs no application object. Throws Error.
void drawPageShapes(QPainter& painter, const Page& page);

}  // namespace fleetwright
