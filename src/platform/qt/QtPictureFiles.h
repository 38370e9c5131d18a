#pragma once

#include "PictureFiles.h"

namespace fleetwright {

/// Reads picture files, and the program's own pictures, with Qt.
class QtPictureFiles : public PictureFiles {
public:
    Raster load(const std::filesystem::path& file) override;
    Raster builtIn(const std::string& name) override;
};

}  // namespace fleetwright
