#pragma once

#include "Drawing.h"

class QPainter;

namespace fleetwright {

/// Draws what is on a drawing, without its paper, to this place on a page, in millimetres. The
/// painter counts in `pageUnits`.
void drawShapes(QPainter& painter, const Drawing& drawing, const Box& place);

}  // namespace fleetwright
