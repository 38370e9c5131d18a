#pragma once

#include "CatalogueFile.h"

#include <string>

namespace fleetwright {

class PictureFiles;

/// What keeps the catalogue in an application folder from being used, and its pictures where they
/// are given, as one text to show: a line for each fault, up to ten. Empty if nothing does. A
/// catalogue that cannot be read at all has no faults: the main window has messages of its own for
/// that.
std::string catalogueFaults(const CatalogueFile& file, PictureFiles* pictures = nullptr);

}  // namespace fleetwright
