#include "commands.h"

#include "CatalogueCheck.h"
#include "CatalogueFile.h"
#include "DrawingPack.h"
#include "Error.h"
#include "FaultError.h"
#include "FleetFiles.h"
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
#include "fleetFile.h"
#include "fleetName.h"
#include "paths.h"
#include "readFile.h"
#include "readShip.h"
#include "text.h"

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// What is wrong with a ship. If it loads, it stays on the screen, and it has figures.
std::vector<Fault> checkShip(ShipOnScreen& screen, const std::string& file,
                             std::optional<ShipFigures>* figures = nullptr) {
    const std::string text = readShip(file).text;
    // Asked here, for the window drops a ship that does not load, and its fault with it.
    const std::optional<Fault> loadFault = screen.load(file);
    if (figures != nullptr && !loadFault) {
        *figures = shipFigures(screen.ship());
    }
    return checkShipFile(text, screen.ship(), loadFault);
}

/// The faults of a catalogue, those of its pictures included where the folder beside it is there.
std::vector<Fault> checkCatalogueFile(const Options& options, const fs::path& file) {
    const CatalogueText catalogue = readTextFile(file);
    std::vector<Fault> faults = checkCatalogue(catalogue);
    const fs::path images = file.parent_path() / "images";
    if (std::error_code unknown; fs::is_directory(images, unknown)) {
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
    if (std::error_code unknown; !fs::is_directory(images, unknown)) {
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

/// What is wrong with a fleet and with its ships, as lines: all that can be said of it, not only
/// what keeps it from being added up.
std::vector<std::string> checkFleet(const Options& options, const CatalogueFile& catalogueFile,
                                    const std::string& file) {
    std::vector<std::string> lines;
    ReadFleet read;
    try {
        read = parseFleet(readTextFile(nativePath(file)));
    } catch (const FaultError& error) {
        return {complaint(file, error.fault())};
    }
    for (const Fault& fault : read.faults) {
        lines.push_back(complaint(file, fault));
    }
    const FleetFiles files(read, nativePath(file).parent_path());
    std::vector<std::shared_ptr<FleetRow>> checked;
    ShipOnScreen screen(options.appFolder, catalogueFile);
    for (std::size_t i = 0; i < files.paths.size(); ++i) {
        const std::string& path = files.paths[i];
        FleetRow& row = *checked.emplace_back(std::make_shared<FleetRow>());
        try {
            if (!path.empty()) {  // else its line is at fault
                row.faults = isFleet(readShip(path).text) ? std::vector<Fault>{{0, fleetIsNoShip}}
                                                          : checkShip(screen, path, &row.figures);
            }
        } catch (const FileError& error) {
            row.faults = {{0, faultOf(nativePath(path), error)}};
        }
        for (const Fault& fault : row.faults) {
            lines.push_back(files.complaintOf(file, i, fault));
        }
    }
    FleetRows rows;
    for (const std::size_t design : files.ofShip) {
        rows.push_back(checked[design]);
    }
    for (const Fault& fault : brokenLimits(read, fleetSum(read.fleet, rows))) {
        lines.push_back(complaint(file, fault));
    }
    return lines;
}

std::vector<Fault> checkFile(const Options& options, const CatalogueFile& catalogueFile,
                             const std::string& file) {
    const auto check = [&] {
        ShipOnScreen screen(options.appFolder, catalogueFile);
        return checkShip(screen, file);
    };
    try {
        const std::string extension = toSmallLetters(nativePath(file).extension().string());
        if (extension == shipExtension || isDesignCode(file)) {
            return check();
        }
        if (extension == ".dat") {
            return checkCatalogueFile(options, nativePath(file));
        }
        if (extension == ".map") {
            return checkMap(options, readTextFile(nativePath(file)));
        }
        if (isSheet(readBytes(nativePath(file)))) {
            return check();
        }
        return {
            {0, "no catalogue (.dat), ship (.shp, sheet or code), fleet (.fleet) or map (.map)"}};
    } catch (const FileError& error) {
        return {{0, faultOf(nativePath(file), error)}};
    }
}

/// The same as lines, of fleets, too.
std::vector<std::string> linesOn(const Options& options, const CatalogueFile& catalogueFile,
                                 const std::string& file) {
    if (isFleetName(file) && !isDesignCode(file)) {
        try {
            return checkFleet(options, catalogueFile, file);
        } catch (const FileError& error) {
            return {complaint(file, Fault{0, faultOf(nativePath(file), error)})};
        }
    }
    std::vector<std::string> lines;
    for (const Fault& fault : checkFile(options, catalogueFile, file)) {
        lines.push_back(complaint(file, fault));
    }
    return lines;
}

int runCheck(const Options& options) {
    int status = Done;
    std::set<std::string> said;  // ships of several fleets, or of a fleet and by themselves
    const auto reportLine = [&](const std::string& line) {
        if (said.insert(line).second) {
            printResults(resultLine(line));
        }
        status = SomeRefused;
    };
    const auto report = [&](const std::string& file, const Fault& fault) {
        reportLine(complaint(file, fault));
    };
    const auto catalogueFile = CatalogueFile::readOnce(options.appFolder / "weaps.dat");
    std::vector<std::string> files = options.words;
    if (files.empty()) {
        files.push_back(catalogueFile.path().string());
        for (const auto& [folder, ending] :
             {std::pair("ships", shipExtension), {"fleets", fleetExtension}, {"maps", ".map"}}) {
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
        for (const std::string& line : linesOn(options, catalogueFile, file)) {
            reportLine(line);
        }
    }
    return status;
}

}  // namespace

extern const CommandRow checkCommand = {
    .name = "check",
    .words = "[FILE...]",
    .most = CommandRow::any,
    .help = "Say what is wrong with .dat, .shp, .fleet and .map files, or all of the folder",
    .details = "These are catalogues, ships, fleets with their ships and limits, and maps. Sheets "
               "that carry a ship and codes are ships as well. Without a FILE, all of the "
               "application folder is looked through, its pictures included.",
    .run = runCheck,
};

}  // namespace fleetwright
