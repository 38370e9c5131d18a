#pragma once

#include "FolderImages.h"

#include <map>
#include <string>

namespace fleetwright {

class ShipClass;

/// The pictures as a program without a window has them: those of systems are loaded when a sheet
/// first needs them, from the files that the ship's catalogue names.
class CatalogueImages : public FolderImages {
public:
    /// `pictures` and `ship` outlive this.
    CatalogueImages(const std::filesystem::path& appFolder, PictureFiles& pictures,
                    const ShipClass& ship)
        : FolderImages(appFolder, pictures), m_ship(ship) {}

    const Raster& system(std::string_view name) override;

private:
    Raster load(std::string_view name);

    const ShipClass& m_ship;
    std::map<std::string, Raster, std::less<>> m_loaded;
};

}  // namespace fleetwright
