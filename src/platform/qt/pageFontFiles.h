#pragma once

#include "pageFonts.h"

#include <QFont>

namespace fleetwright {

/// The size in which fonts of pages come, to be scaled. Qt remembers the letters of small ones, and
/// in this one its 64ths of a unit are the units of the font, so that lines are as wide as they
/// say.
inline constexpr int pageFontSize = 32;

/// A font of pages out of the files that the program carries. An application object must be there.
/// Any number of threads may ask. Throws Error.
QFont pageFont(PageFace face);

}  // namespace fleetwright
