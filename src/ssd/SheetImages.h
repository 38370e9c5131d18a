#pragma once

#include "Raster.h"

#include <filesystem>
#include <functional>
#include <string_view>

namespace fleetwright {

class ImageList;
class PictureFiles;
class SSDMap;
class ShipClass;

/// Finds a file of the folder of pictures. Throws FileError.
using PictureFinder = std::function<Raster(std::string_view name)>;

/// Finds the outline of a map. Throws Error, which names the map.
using OutlineFinder = std::function<Raster(const SSDMap&)>;

/// Finds the pictures that a sheet is pasted together from.
struct SheetImages {
    PictureFinder file;
    /// The picture of a system, by its name, or of `blankPictureKey`. Throws Error if there is
    /// none. It stays as it is for as long as this finder is there.
    std::function<const Raster&(std::string_view name)> system;
};

/// The files of the application folder, whatever the case of their names, each looked up and read
/// only once, for many sheets. Any number of threads may use it if they may use `pictures`, which
/// outlive what is returned.
PictureFinder picturesReadOnce(const std::filesystem::path& appFolder, PictureFiles& pictures);

/// The pictures as the program with its windows has them: the files of the application folder,
/// whatever the case of their names, and for systems the main window's list. All of it outlives
/// what is returned.
SheetImages programImages(const std::filesystem::path& appFolder, PictureFiles& pictures,
                          const ImageList& ilWeapons);

/// The pictures as a program without a window has them: those of systems are these files, too, by
/// the names that the ship's catalogue has. `ship` outlives what is returned.
SheetImages catalogueImages(const PictureFinder& files, const ShipClass& ship);

/// The outlines as their files are whenever one is asked for. `pictures` outlive what is returned.
OutlineFinder outlinesIn(PictureFiles& pictures);

/// The same, each looked up and read only once, for many sheets, by any number of threads.
OutlineFinder outlinesReadOnce(PictureFiles& pictures);

}  // namespace fleetwright
