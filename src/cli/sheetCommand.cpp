#include "commands.h"

#include "Error.h"
#include "PictureCache.h"
#include "SSDMaps.h"
#include "ShipOnScreen.h"
#include "TextFile.h"
#include "ToolPictures.h"
#include "drawnSheet.h"
#include "folders.h"
#include "keepFreedMemory.h"
#include "saveFile.h"

#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace fleetwright {

namespace {

namespace fs = std::filesystem;

/// Where the sheet of each ship goes.
class SheetFiles {
public:
    explicit SheetFiles(const Options& options) : m_out(nativePath(options.output)) {
        if (options.sheetOut == SheetOut::Picture) {
            m_files.push_back(m_out);
            return;
        }
        if (!m_out.empty()) {
            makeFolder(m_out);
        }
        for (const std::string& ship : options.files) {
            m_files.push_back(m_out / nativePath(ship).stem().concat(".bmp"));
            m_firstShips.try_emplace(m_files.back(), m_files.size() - 1);
        }
    }

    /// The file of a ship. Throws Error if it is that of a ship before it.
    const fs::path& of(std::size_t index) const {
        const fs::path& file = m_files[index];
        const auto first = m_firstShips.find(file);
        if (first != m_firstShips.end() && first->second != index) {
            throw Error("another ship's sheet goes to " + pathText(file));
        }
        return file;
    }

private:
    fs::path m_out;
    std::vector<fs::path> m_files;
    std::map<fs::path, std::size_t> m_firstShips;
};

std::string formatOf(const fs::path& file) {
    return sheetFormat(pathText(file)).value_or("bmp");
}

void save(const fs::path& file, std::string_view bytes) {
    try {
        saveFile(file, bytes);
    } catch (const FileError& error) {
        throw Error(pathText(file) + ": " + error.what());
    }
}

int drawFiles(const Options& options, const SheetTools& tools) {
    const SheetFiles files(options);
    return forEachShip(
        options, RefusedLines::AsComplaints, [&](std::size_t index, ShipOnScreen& screen) {
            const fs::path& file = files.of(index);
            save(file,
                 tools.encoder.encode(drawnSheet(screen, tools, options.mapName), formatOf(file)));
            return std::string();
        });
}

int drawDocument(const Options& options, const SheetTools& tools, Pages& pages) {
    std::vector<Raster> sheets(options.files.size());  // until their pages are made
    bool isEmpty = true;
    const int status = forEachShip(
        options, RefusedLines::AsComplaints,
        [&](std::size_t index, ShipOnScreen& screen) {
            sheets[index] = drawnSheet(screen, tools, options.mapName);
            return std::string();
        },
        [&](std::size_t index) {
            if (!sheets[index].isEmpty()) {
                pages.add(std::exchange(sheets[index], {}));
                isEmpty = false;
            }
        });
    if (!isEmpty) {
        saveFile(nativePath(options.output), pages.finish());
    }
    return status;
}

}  // namespace

int runSheet(const Options& options) {
    const fs::path images = options.appFolder / "images";
    if (!fs::is_directory(findFile(images))) {
        throw FileError(images, "is not there; fleetwright-cli unpack unpacks the pictures");
    }
    keepFreedMemory();
    ToolPictures pictures(options.programFolder);
    PictureCache cache(pictures);
    const SSDMaps maps = loadMaps(options.appFolder);
    const SheetTools tools{options.appFolder, cache, pictures, maps};
    if (options.sheetOut == SheetOut::Document) {
        const std::unique_ptr<Pages> pages = pictures.newPages(options.paper);
        return drawDocument(options, tools, *pages);
    }
    return drawFiles(options, tools);
}

}  // namespace fleetwright
