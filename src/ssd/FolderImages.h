#pragma once

#include "SheetImages.h"

#include <filesystem>

namespace fleetwright {

class PictureFiles;

/// Pictures of which the files are those in the application folder, whatever the case of their
/// names.
class FolderImages : public SheetImages {
public:
    /// `pictures` outlives this.
    FolderImages(const std::filesystem::path& appFolder, PictureFiles& pictures)
        : m_folder(appFolder / "images"), m_pictures(pictures) {}

    Raster file(std::string_view name) override;

private:
    std::filesystem::path m_folder;
    PictureFiles& m_pictures;
};

}  // namespace fleetwright
