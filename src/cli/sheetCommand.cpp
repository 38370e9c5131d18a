#include "commands.h"

#include "Error.h"
#include "PictureCache.h"
#include "ShipOnScreen.h"
#include "ToolPictures.h"
#include "carriedShips.h"
#include "drawnSheet.h"
#include "paths.h"
#include "saveResult.h"
#include "text.h"

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace fleetwright {

namespace {

namespace fs = std::filesystem;

/// Where sheets go: a file each in a folder, one picture file, one document for all of them.
enum class SheetOut { Folder, Picture, Document };

/// The format that the ending of a sheet's file means, or nothing.
std::optional<std::string> sheetFormat(std::string_view file) {
    for (const char* const format : {"bmp", "png", "pdf"}) {
        if (toCapitals(file).ends_with('.' + toCapitals(format))) {
            return format;
        }
    }
    return std::nullopt;
}

/// What `-o` names: an ending says that it is a file, unless there is a folder of that name.
SheetOut sheetOut(const Options& options) {
    const std::string output = options.value(outOption.name);
    const fs::path out = nativePath(output);
    std::error_code ignored;
    if (!out.has_extension() || fs::is_directory(out, ignored)) {
        return SheetOut::Folder;
    }
    const std::optional<std::string> format = sheetFormat(output);
    if (!format) {
        throw UsageError("-o: a sheet is a .bmp, .png or .pdf file: " + shownText(output));
    }
    if (format == "pdf") {
        return SheetOut::Document;
    }
    if (options.words.size() > 1) {
        throw UsageError("-o: several sheets need a folder or a .pdf file");
    }
    return SheetOut::Picture;
}

void checkSheet(const Options& options) {
    sheetOut(options);
}

Paper paperOf(const std::string& name) {
    if (toCapitals(name) == "A4") {
        return Paper::A4;
    }
    if (toCapitals(name) == "LETTER") {
        return Paper::Letter;
    }
    throw UsageError("--paper is A4 or Letter");
}

void checkPaper(std::string_view, const std::string& name) {
    paperOf(name);
}

/// Where the sheet of each ship goes.
class SheetFiles {
public:
    explicit SheetFiles(const Options& options) : m_out(nativePath(options.value(outOption.name))) {
        if (sheetOut(options) == SheetOut::Picture) {
            m_files.push_back(m_out);
            return;
        }
        if (!m_out.empty()) {
            makeFolder(m_out);
        }
        for (const std::string& ship : options.words) {
            m_files.push_back(m_out / nativePath(ship).stem().concat(".bmp"));
            m_firstShips.try_emplace(m_files.back(), m_files.size() - 1);
        }
    }

    /// The file of a ship. Throws Error if it is that of a ship before it.
    const fs::path& of(std::size_t index) const {
        const fs::path& file = m_files[index];
        const auto first = m_firstShips.find(file);
        if (first != m_firstShips.end() && first->second != index) {
            throw Error("another ship's sheet goes to " + shownText(pathText(file)));
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

/// The bytes of a picture file that carries its ship where the format has a place for it.
std::string pictureFile(const Raster& sheet, const ShipClass& ship, const std::string& format,
                        PictureEncoder& encoder) {
    const std::string bytes = encoder.encode(sheet, format);
    return format == "png" ? withShip(bytes, ship.shipFile()) : bytes;
}

int drawFiles(const Options& options, const SheetTools& tools) {
    const SheetFiles files(options);
    return forEachShip(
        options, RefusedLines::AsComplaints, [&](std::size_t index, ShipOnScreen& screen) {
            const fs::path& file = files.of(index);
            const Raster sheet = drawnSheet(screen, tools, options.value("--map"));
            saveResult(file, pictureFile(sheet, screen.ship(), formatOf(file), tools.encoder));
            return std::string();
        });
}

int drawDocument(const Options& options, const SheetTools& tools, Pages& pages) {
    std::vector<Raster> sheets(options.words.size());  // until their pages are made
    bool isEmpty = true;
    const int status = forEachShip(
        options, RefusedLines::AsComplaints,
        [&](std::size_t index, ShipOnScreen& screen) {
            sheets[index] = drawnSheet(screen, tools, options.value("--map"));
            return std::string();
        },
        [&](std::size_t index) {
            if (!sheets[index].isEmpty()) {
                pages.add(std::exchange(sheets[index], {}));
                isEmpty = false;
            }
        });
    if (!isEmpty) {
        saveResult(nativePath(options.value(outOption.name)), pages.finish());
    }
    return status;
}

int runSheet(const Options& options) {
    const fs::path images = options.appFolder / "images";
    if (!fs::is_directory(findFile(images))) {
        throw FileError(images, "is not there; fleetwright-cli unpack unpacks the pictures");
    }
    ToolPictures pictures(options.programFolder);
    if (sheetOut(options) == SheetOut::Document) {
        pictures.prepareForPdf();
    }
    PictureCache cache(pictures);
    int status = Done;
    const LoadedMaps maps = mapsOf(options, status);
    // The outline of a single ship is read once in any case, and is the largest picture.
    PictureFiles& outlines =
        options.words.size() > 1 ? static_cast<PictureFiles&>(cache) : pictures;
    const SheetTools tools{options.appFolder, cache, outlines, pictures, maps};
    if (sheetOut(options) == SheetOut::Document) {
        const std::unique_ptr<Pages> pages = pictures.newPages(paperOf(options.value("--paper")));
        return std::max(status, drawDocument(options, tools, *pages));
    }
    return std::max(status, drawFiles(options, tools));
}

}  // namespace

constexpr OptionRow sheetOptions[] = {
    {.name = "--map",
     .value = "NAME",
     .help = "The map to draw on, by default the one that fits best"},
    outOption,
    {.name = "--paper",
     .value = "A4|Letter",
     .help = "The paper of a .pdf",
     .byDefault = "A4",
     .check = checkPaper},
};

extern const CommandRow sheetCommand = {
    .name = "sheet",
    .words = "SHIP... [--map NAME] [-o OUT]",
    .least = 1,
    .most = CommandRow::any,
    .options = sheetOptions,
    .help = "Draw the sheets of ships: OUT is a .bmp, .png or .pdf file, or a folder",
    .details =
        "The sheet is drawn on the outline of the map NAME, or else of the one that fits the ship "
        "best. A folder is made if it is not there, and gets a .bmp file "
        "each, named after the ship files. Maps that cannot be used are named as errors. A .pdf "
        "takes any number of ships, a page each; "
        "the sheets have their natural size or are shrunk to the margins of the paper. The "
        "pictures must have been unpacked.",
    .check = checkSheet,
    .run = runSheet,
};

}  // namespace fleetwright
