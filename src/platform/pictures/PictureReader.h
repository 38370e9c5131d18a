#pragma once

#include "PictureFiles.h"

#include <string>

namespace fleetwright {

/// Reads picture files of the formats that the program knows, and refuses those that are damaged or
/// cut short. GIF it reads by itself; of bitmaps, JPEG and PNG it hands the bytes to a decoder.
class PictureReader : public PictureFiles {
public:
    Raster load(const std::filesystem::path& file) final;
    /// The picture in the bytes of a file. Throws Error.
    Raster read(const std::string& bytes);

    /// The picture in the bytes of a file of this format, "bmp", "jpg", "png" or "ppm", whole as
    /// far as that is seen without decoding it. Throws Error.
    virtual Raster decode(const std::string& bytes, const std::string& format) = 0;
};

}  // namespace fleetwright
