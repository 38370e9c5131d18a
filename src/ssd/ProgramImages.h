#pragma once

#include "FolderImages.h"

namespace fleetwright {

class ImageList;

/// The pictures as the program with its windows has them: those of systems are in the main
/// window's list.
class ProgramImages : public FolderImages {
public:
    /// `pictures` and `ilWeapons` outlive this.
    ProgramImages(const std::filesystem::path& appFolder, PictureFiles& pictures,
                  const ImageList& ilWeapons)
        : FolderImages(appFolder, pictures), m_ilWeapons(ilWeapons) {}

    const Raster& system(std::string_view name) override;

private:
    const ImageList& m_ilWeapons;
};

}  // namespace fleetwright
