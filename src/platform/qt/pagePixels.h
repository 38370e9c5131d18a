#pragma once

#include "PageDocument.h"
#include "Raster.h"

namespace fleetwright {

/// All of a page but its text, of the square of so many millimetres at its upper left corner, in
/// `pixels` times `pixels` pixels. Needs no application object. Throws Error.
Raster pagePixels(const Page& page, double millimetres, int pixels);

}  // namespace fleetwright
