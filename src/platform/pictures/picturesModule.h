#pragma once

#include "PageDocument.h"
#include "Raster.h"

namespace fleetwright {

class PictureEncoder;
class PictureReader;

/// What the module "pictures.dll" has, as its one function "createPictures" hands it out. It lives
/// as long as the program.
struct Pictures {
    PictureReader& files;
    PictureEncoder& encoder;
    /// A square of a page but its text: millimetres and pixels of its side.
    Raster (*pixels)(const Page&, double, int);
};
using CreatePictures = const Pictures* (*)();

inline constexpr const char* picturesModule = "pictures.dll";

}  // namespace fleetwright
