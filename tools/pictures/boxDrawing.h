#pragma once

#include "Drawing.h"

#include <QRect>

#include <vector>

namespace fleetwright {

/// Boxes to tick off, each with lines of one pixel along the inside of its edges, on a picture of
/// this size. Neighbours that share a side stand behind each other.
Drawing boxDrawing(QSize size, const std::vector<QRect>& boxes);

}  // namespace fleetwright
