#include "commands.h"

#include "CatalogueCheck.h"
#include "CatalogueFile.h"
#include "DrawingPack.h"
#include "Error.h"
#include "PictureCheck.h"
#include "PictureFiles.h"
#include "SSDMap.h"
#include "SSDMapCheck.h"
#include "ShipFileCheck.h"
#include "ShipOnScreen.h"
#include "ToolPictures.h"
#include "carriedShips.h"
#include "checkMapPlaces.h"
#include "console.h"
#include "designCode.h"
#include "paths.h"
#include "readFile.h"
#include "readShip.h"
#include "text.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

std::vector<Fault> checkShip(const Options& options, const CatalogueFile& catalogueFile,
                             const std::string& file) {
    const std::string text = readShip(file).text;
    ShipOnScreen screen(options.appFolder, catalogueFile);
    // Asked here, for the window drops a ship that does not load, and its fault with it.
    const std::optional<Fault> loadFault = screen.load(file);
    return checkShipFile(text, screen.ship(), loadFault);
}

/// The faults of a catalogue, those of its pictures included where the folder beside it is there.
std::vector<Fault> checkCatalogueFile(const Options& options, const fs::path& file) {
    const CatalogueText catalogue = readTextFile(file);
    std::vector<Fault> faults = checkCatalogue(catalogue);
    const fs::path images = file.parent_path() / "images";
    if (fs::is_directory(images)) {
        ToolPictures pictures(options.programFolder);
        try {
            for (Fault& fault : PictureCheck(images, pictures).checkCatalogue(catalogue)) {
                faults.push_back(std::move(fault));
            }
        } catch (const FileError& error) {
            faults.push_back({0, complaint(error)});
        }
        sortByLine(faults);
    }
    return faults;
}

/// What is wrong in the delivered folder of pictures beyond what the catalogue's lines say.
std::vector<PictureFault> checkDeliveredPictures(const Options& options,
                                                 const CatalogueFile& catalogueFile) {
    const fs::path images = options.appFolder / "images";
    std::shared_ptr<const CatalogueText> catalogue;
    try {
        catalogue = catalogueFile.read();
    } catch (const FileError&) {
        return {};  // said already, and without it every picture would seem unused
    }
    if (!fs::is_directory(images)) {
        complain(complaint(images.string(), {0, "not unpacked yet, so no picture was looked at"}));
        return {};
    }
    ToolPictures pictures(options.programFolder);
    PictureCheck check(images, pictures);
    try {
        check.checkCatalogue(*catalogue);
        return check.checkRest();
    } catch (const FileError& error) {
        return {{error.file(), {0, error.what()}}};
    }
}

std::optional<Fault> checkDrawings(const fs::path& file) {
    std::error_code unknown;
    if (!fs::is_directory(file.parent_path(), unknown)) {
        return std::nullopt;
    }
    if (fs::status(file, unknown).type() == fs::file_type::not_found) {
        complain(complaint(file.string(), {0, "not there, so .svg and .pdf sheets are of pixels"}));
        return std::nullopt;
    }
    try {
        return DrawingPack(file).fault();
    } catch (const FileError& error) {
        return Fault{0, error.what()};
    }
}

/// The outline of a map; empty if there is none, which the check of the lines says.
Raster outlineOf(const Options& options, const MapPlaces& places, std::vector<Fault>& faults) {
    fs::path outline;
    try {
        outline = outlineFile(options.appFolder, places.image);
        if (std::error_code unknown; fs::is_regular_file(outline, unknown)) {
            return ToolPictures(options.programFolder).load(outline);
        }
    } catch (const FileError& error) {
        if (error.file() == outline) {
            faults.push_back({places.imageLine, "the outline " + std::string(error.what())});
        } else if (!outline.empty()) {
            faults.push_back({places.imageLine, complaint(error)});
        }
    }
    return {};
}

std::vector<Fault> checkMap(const Options& options, const std::string& text) {
    std::vector<Fault> faults = checkMapFile(text, options.appFolder);
    const MapPlaces places = readMapPlaces(text);
    for (Fault& fault : checkMapPlaces(places, outlineOf(options, places, faults))) {
        faults.push_back(std::move(fault));
    }
    sortByLine(faults);
    return faults;
}

std::vector<Fault> checkFile(const Options& options, const CatalogueFile& catalogueFile,
                             const std::string& file) {
    try {
        const std::string extension = toCapitals(nativePath(file).extension().string());
        if (extension == ".SHP" || isDesignCode(file)) {
            return checkShip(options, catalogueFile, file);
        }
        if (extension == ".DAT") {
            return checkCatalogueFile(options, nativePath(file));
        }
        if (extension == ".MAP") {
            return checkMap(options, readTextFile(nativePath(file)));
        }
        std::error_code unknown;
        if (fs::is_regular_file(nativePath(file), unknown) &&
            isSheet(readBytes(nativePath(file)))) {
            return checkShip(options, catalogueFile, file);
        }
        return {{0, "neither a catalogue (.dat), a ship file (.shp) nor a map (.map)"}};
    } catch (const FileError& error) {
        return {{0, faultOf(nativePath(file), error)}};
    }
}

int runCheck(const Options& options) {
    int status = Done;
    const auto report = [&status](const std::string& file, const Fault& fault) {
        printResults(resultLine(complaint(file, fault)));
        status = SomeRefused;
    };
    const auto catalogueFile = CatalogueFile::readOnce(options.appFolder / "weaps.dat");
    std::vector<std::string> files = options.words;
    if (files.empty()) {
        files.push_back(catalogueFile.path().string());
        for (const auto& [folder, ending] : {std::pair("ships", ".shp"), {"maps", ".map"}}) {
            try {
                for (const fs::path& file : listFolder(options.appFolder / folder, ending)) {
                    files.push_back(file.string());
                }
            } catch (const FileError& error) {
                report(error.file().string(), {0, error.what()});
            }
        }
        for (const PictureFault& fault : checkDeliveredPictures(options, catalogueFile)) {
            report(fault.file.string(), fault.fault);
        }
        if (const auto fault = checkDrawings(drawingsFile(options.appFolder))) {
            report(drawingsFile(options.appFolder).string(), *fault);
        }
    }
    for (const std::string& file : files) {
        for (const Fault& fault : checkFile(options, catalogueFile, file)) {
            report(file, fault);
        }
    }
    return status;
}

}  // namespace

extern const CommandRow checkCommand = {
    .name = "check",
    .words = "[FILE...]",
    .most = CommandRow::any,
    .help = "Say what is wrong with .dat, .shp and .map files, or with all of the folder",
    .details =
        "These are catalogues, ships and maps. Without a FILE, all of the application folder is "
        "looked through, its pictures included.",
    .run = runCheck,
};

}  // namespace fleetwright
