#pragma once

// Pages that people look at.

#include "PictureSet.h"

#include <QImage>

namespace fleetwright {

class Lettering;

/// All pictures of a set on one page, each with its name, at 100 and at 400 percent.
QImage contactSheet(const PictureSet& pictures, const Lettering& lettering);

/// Parts of a marked outline, enlarged, with the line that each mark makes in a map written into
/// the box that will be pasted over it. For the guide for map authors.
QImage marksPicture(const Artwork& artwork);

}  // namespace fleetwright
