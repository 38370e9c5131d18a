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
#include <optional>
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

/// Pictures under names, each read once. Any number of threads may ask; who asks for one that is
/// being read waits for that alone.
class KeptPictures {
public:
    /// `read` may throw: then the next one to ask reads again.
    template <typename Read>
    Raster of(const std::string& name, Read read) {
        Entry& entry = entryOf(name);
        const std::lock_guard lock(entry.mutex);
        if (!entry.picture) {
            entry.picture = read().shared();
        }
        return *entry.picture;
    }

private:
    struct Entry {
        std::mutex mutex;
        std::optional<Raster> picture;
    };

    Entry& entryOf(const std::string& name) {
        const std::lock_guard lock(m_mutex);
        return m_entries[name];
    }

    std::mutex m_mutex;  // of the map
    std::map<std::string, Entry> m_entries;
};

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
    return [read = filesIn(appFolder, pictures),
            kept = std::make_shared<KeptPictures>()](std::string_view name) {
        return kept->of(std::string(name), [&] { return read(name); });
    };
}

SheetImages catalogueImages(const PictureFinder& files, const ShipClass& ship) {
    std::map<std::string, Raster, std::less<>> loaded;
    static const Raster blank = Raster(systemPictureSize, systemPictureSize).shared();
    loaded.try_emplace(std::string(blankPictureKey), blank);
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

OutlineFinder outlinesIn(PictureFiles& pictures) {
    return [&pictures](const SSDMap& map) {
        try {
            return pictures.load(map.outlineFile());
        } catch (const FileError& error) {
            throw Error("no outline for the map " + quote(map.sDisplayName) + ": " +
                        complaint(error));
        }
    };
}

OutlineFinder outlinesReadOnce(PictureFiles& pictures) {
    return [read = outlinesIn(pictures), kept = std::make_shared<KeptPictures>()](
               const SSDMap& map) { return kept->of(map.sImgFile, [&] { return read(map); }); };
}

}  // namespace fleetwright
