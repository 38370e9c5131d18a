#include "SheetImages.h"

#include "Error.h"
#include "ImageList.h"
#include "PictureFiles.h"
#include "SSDMap.h"
#include "SheetPictures.h"
#include "ShipClass.h"
#include "paths.h"

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace fleetwright {

namespace {

PictureFinder filesIn(const std::filesystem::path& appFolder, PictureFiles& pictures) {
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

PictureFinder picturesReadOnce(const std::filesystem::path& appFolder, PictureFiles& pictures) {
    struct Known {
        std::mutex mutex;
        std::map<std::string, Raster, std::less<>> files;
    };
    return [read = filesIn(appFolder, pictures),
            known = std::make_shared<Known>()](std::string_view name) {
        {
            const std::lock_guard lock(known->mutex);
            if (const auto file = known->files.find(name); file != known->files.end()) {
                return file->second;
            }
        }
        const Raster picture = read(name).shared();
        const std::lock_guard lock(known->mutex);
        return known->files.try_emplace(std::string(name), picture).first->second;
    };
}

SheetImages catalogueImages(PictureFinder files, const ShipClass& ship) {
    std::map<std::string, Raster, std::less<>> loaded;
    loaded.try_emplace(std::string(SheetImages::blank), systemPictureSize, systemPictureSize);
    return {.file = files,
            .system = [&ship, files,
                       loaded = std::move(loaded)](std::string_view name) mutable -> const Raster& {
                auto known = loaded.find(name);
                if (known == loaded.end()) {
                    known = loaded.try_emplace(std::string(name), files(iconOf(ship, name))).first;
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
