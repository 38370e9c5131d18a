#pragma once

#include "Raster.h"

#include <filesystem>
#include <string>

namespace fleetwright {

class PictureEncoder;
class PictureFiles;
class ShipOnScreen;
struct LoadedMaps;

/// What sheets are drawn with.
struct SheetTools {
    std::filesystem::path appFolder;
    PictureFiles& pictures;  ///< of what is pasted on outlines
    PictureFiles& outlines;
    PictureEncoder& encoder;
    const LoadedMaps& maps;
};

/// The sheet of a ship on the map of this name, or on the one that fits it best if the name is
/// empty. It drives the window in which sheets are made. Throws Error.
Raster drawnSheet(const ShipOnScreen& screen, const SheetTools& tools, const std::string& mapName);

}  // namespace fleetwright
