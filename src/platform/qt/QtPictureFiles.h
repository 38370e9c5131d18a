#pragma once

#include "PictureReader.h"

namespace fleetwright {

/// Reads and encodes pictures, and reads the program's own, with Qt. It works without an
/// application object, and on several files at a time. Nothing is printed.
class QtPictureFiles : public PictureReader, public PictureEncoder {
public:
    Raster decode(const std::string& bytes, const std::string& format) override;
    Raster builtIn(const std::string& name) override;
    std::string encode(const Raster& picture, const std::string& format) override;
};

}  // namespace fleetwright
