#pragma once

#include "PageDocument.h"
#include "SheetRecord.h"

namespace fleetwright {

/// What has ink of a row of pixels, which are not white there; empty if nothing has.
Box inkOfRow(const Raster& raster, int y);

/// What has ink of a picture, in its pixels; empty if nothing has.
Box inkOf(const SheetRecord::Picture& picture);

/// What has ink of all that shows of a drawing, in pixels of the outline; the whole outline if
/// nothing has.
Box inkOf(const SheetRecord& record);

/// Puts what shows of a drawing inside this box of the outline on a page: the upper left corner of
/// the box goes to (x, y), and a pixel becomes `scale` millimetres.
void putDrawing(Page& page, const SheetRecord& record, const Box& shown, double x, double y,
                double scale);

}  // namespace fleetwright
