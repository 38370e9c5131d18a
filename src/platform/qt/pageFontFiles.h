#pragma once

#include "pageFonts.h"

#include <QFont>

namespace fleetwright {

/// A font of pages out of the files that the program carries, of a size in the painter's units. An
/// application object must be there. Any number of threads may ask. Throws Error.
QFont pageFont(PageFace face, int size);

}  // namespace fleetwright
