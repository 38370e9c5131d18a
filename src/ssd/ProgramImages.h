#pragma once

#include "SheetImages.h"

#include <filesystem>

namespace fleetwright {

class ImageList;
class PictureFiles;

/// The pictures as the program has them: files in the application folder, whatever the case of
/// their names, and the main window's list of system pictures.
class ProgramImages : public SheetImages {
public:
    /// `pictures` and `ilWeapons` outlive this.
    ProgramImages(const std::filesystem::path& appFolder, PictureFiles& pictures,
                  const ImageList& ilWeapons)
        : m_folder(appFolder / "images"), m_pictures(pictures), m_ilWeapons(ilWeapons) {}

    Raster file(std::string_view name) override;
    const Raster& system(std::string_view name) override;

private:
    std::filesystem::path m_folder;
    PictureFiles& m_pictures;
    const ImageList& m_ilWeapons;
};

}  // namespace fleetwright
