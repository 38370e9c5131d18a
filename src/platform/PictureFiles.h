#pragma once

#include "Raster.h"

#include <filesystem>

namespace fleetwright {

/// Reads picture files.
class PictureFiles {
public:
    virtual ~PictureFiles() = default;

    /// The picture in a GIF, BMP, JPEG or PNG file. Throws FileError.
    virtual Raster load(const std::filesystem::path& file) = 0;
};

}  // namespace fleetwright
