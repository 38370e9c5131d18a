#pragma once

#include <QImage>

namespace fleetwright {

class Artwork;

/// Parts of a marked outline, enlarged, with the line that each mark makes in a map written into
/// the box that will be pasted over it. For the guide for map authors.
QImage marksPicture(const Artwork& artwork);

}  // namespace fleetwright
