#include "SheetImages.h"

#include "Error.h"
#include "ImageList.h"
#include "PictureFiles.h"
#include "SSDMap.h"
#include "SheetPictures.h"
#include "ShipClass.h"
#include "paths.h"

#include <map>
#include <string>
#include <utility>

namespace fleetwright {

namespace {

std::function<Raster(std::string_view)> filesIn(const std::filesystem::path& appFolder,
                                                PictureFiles& pictures) {
    return [folder = appFolder / "images", &pictures](std::string_view name) {
        return pictures.load(fileBelow(folder, name));
    };
}

[[noreturn]] void failWithoutPicture(std::string_view system) {
    throw Error("no picture of " + quote(system));
}

/// The name of the file that a ship's catalogue has for a system.
std::string iconOf(const ShipClass& ship, std::string_view system) {
    std::int32_t index = ship.weapNameToIndex(system);
    if (index < 0) {
        failWithoutPicture(system);
    }
    WeapRec record;
    ship.listWeap(index, record);
    return std::string(record.icon);
}

}  // namespace

SheetImages programImages(const std::filesystem::path& appFolder, PictureFiles& pictures,
                          const ImageList& ilWeapons) {
    return {.file = filesIn(appFolder, pictures),
            .system = [&ilWeapons](std::string_view name) -> const Raster& {
                const std::string key(name);
                if (!ilWeapons.contains(key)) {
                    failWithoutPicture(name);
                }
                return ilWeapons.picture(key);
            }};
}

SheetImages catalogueImages(const std::filesystem::path& appFolder, PictureFiles& pictures,
                            const ShipClass& ship) {
    const auto file = filesIn(appFolder, pictures);
    std::map<std::string, Raster, std::less<>> loaded;
    loaded.try_emplace(std::string(SheetImages::blank), systemPictureSize, systemPictureSize);
    return {.file = file,
            .system = [&ship, file,
                       loaded = std::move(loaded)](std::string_view name) mutable -> const Raster& {
                auto known = loaded.find(name);
                if (known == loaded.end()) {
                    known = loaded.try_emplace(std::string(name), file(iconOf(ship, name))).first;
                }
                return known->second;
            }};
}

Raster outlineOf(const SSDMap& map, PictureFiles& pictures) {
    try {
        return pictures.load(map.outlineFile());
    } catch (const FileError& error) {
        throw Error("no outline for the map " + quote(map.sDisplayName) + ": " + complaint(error));
    }
}

}  // namespace fleetwright
