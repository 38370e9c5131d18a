#pragma once

#include "Raster.h"

#include <cstdint>
#include <filesystem>
#include <string>

namespace fleetwright {

/// The most pixels that a picture in a file may have.
inline constexpr std::int64_t mostPicturePixels = std::int64_t{64} * 1024 * 1024;

/// Reads picture files.
class PictureFiles {
public:
    virtual ~PictureFiles() = default;

    /// The picture in a GIF, BMP, JPEG or PNG file, as it looks on white paper if parts of it are
    /// transparent, and with 8 bits a channel. Throws FileError.
    virtual Raster load(const std::filesystem::path& file) = 0;
    /// One of the pictures that the program carries in itself, by its file name. Throws FileError.
    virtual Raster builtIn(const std::string& name) = 0;
};

/// Makes picture files.
class PictureEncoder {
public:
    virtual ~PictureEncoder() = default;

    /// The bytes of a file with this picture. The format is "bmp" or "png". Throws Error for an
    /// empty picture.
    virtual std::string encode(const Raster& picture, const std::string& format) = 0;
};

}  // namespace fleetwright
