#pragma once

#include "Raster.h"
#include "SheetImages.h"
#include "sheetDocument.h"

#include <filesystem>
#include <string>

namespace fleetwright {

class Drawings;
class PictureEncoder;
class ShipOnScreen;
struct LoadedMaps;

/// What sheets are drawn with.
struct SheetTools {
    std::filesystem::path appFolder;
    PictureFinder pictures;  ///< of what is pasted on outlines
    OutlineFinder outlines;
    PictureEncoder& encoder;
    const Drawings& drawings;
    const LoadedMaps& maps;
};

/// The sheet of a ship on the map of this name, or on the one that fits best if the name is empty.
/// It drives the window in which sheets are made. Throws Error.
Raster drawnSheet(const ShipOnScreen& screen, const SheetTools& tools, const std::string& mapName);

/// The same for pages; also for ships that are too heavy for that window. It has no date. Throws
/// Error.
VectorSheet recordedSheet(const ShipOnScreen& screen, const SheetTools& tools,
                          const std::string& mapName);

}  // namespace fleetwright
