#pragma once

#include "Drawing.h"

#include <QByteArray>
#include <QSize>

#include <vector>

namespace fleetwright {

/// What SVG layers draw over each other on a picture of this size: the same lines and areas that
/// `drawInk` and `drawColours` make pixels of. Throws Error for what is no SVG.
Drawing recordDrawing(const std::vector<QByteArray>& layers, QSize size);

}  // namespace fleetwright
