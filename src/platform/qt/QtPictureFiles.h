#pragma once

#include "PictureFiles.h"

namespace fleetwright {

/// Reads and encodes pictures, and reads the program's own, with Qt. It works without an
/// application object, and on several files at a time.
class QtPictureFiles : public PictureFiles, public PictureEncoder {
public:
    Raster load(const std::filesystem::path& file) override;
    Raster builtIn(const std::string& name) override;
    std::string encode(const Raster& picture, const std::string& format) override;
};

}  // namespace fleetwright
