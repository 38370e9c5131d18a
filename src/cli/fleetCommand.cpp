#include "commands.h"

#include "CatalogueFile.h"
#include "Error.h"
#include "ShipOnScreen.h"
#include "console.h"
#include "fingerprint.h"
#include "fleetFile.h"
#include "fleetPaths.h"
#include "fleetRows.h"
#include "fleetTable.h"
#include "fleetWords.h"
#include "paths.h"
#include "playedFleet.h"
#include "text.h"

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace fleetwright {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view playOption = "--play";

/// The ships of a fleet that have to be loaded: each file once.
struct FleetFiles {
    std::vector<std::string> paths;
    std::vector<std::size_t> ofShip;  ///< the path of each ship of the fleet
};

FleetFiles filesOf(const Fleet& fleet, const fs::path& folder) {
    FleetFiles files;
    std::unordered_map<std::string, std::size_t> known;
    std::unordered_map<std::string, std::size_t> named;  // spares a look at the disk
    for (const FleetShip& ship : fleet.ships) {
        const auto [name, isNew] = named.try_emplace(ship.file, 0);
        if (isNew) {
            const std::string path = shipPath(folder, ship);
            const auto [place, isFirst] = known.try_emplace(path, files.paths.size());
            name->second = place->second;
            if (isFirst) {
                files.paths.push_back(path);
            }
        }
        files.ofShip.push_back(name->second);
    }
    return files;
}

/// Loads all ships of a fleet and names what is wrong with them.
FleetRows rowsOf(const Options& options, const FleetFiles& files, const CatalogueFile& catalogue,
                 int& status) {
    FleetRows loaded(files.paths.size());
    const auto load = [&](std::size_t index) {
        ShipOnScreen screen(options.appFolder, catalogue);
        auto row = std::make_shared<const FleetRow>(fleetRow(screen, files.paths[index]));
        Result result;
        for (const Fault& fault : row->faults) {
            result.complaints.push_back(complaint(files.paths[index], fault));
        }
        loaded[index] = std::move(row);
        return result;
    };
    status = std::max(status, printInOrder(files.paths.size(), load));
    FleetRows rows;
    for (const std::size_t file : files.ofShip) {
        rows.push_back(loaded[file]);
    }
    return rows;
}

int runFleet(const Options& options) {
    const std::string& file = options.words.front();
    const fs::path path = nativePath(file);
    ReadFleet read = readFleet(path);
    int status = Done;
    const auto refuse = [&status](const std::string& line) {
        complain(line);
        status = SomeRefused;
    };
    for (const Fault& fault : read.faults) {
        refuse(complaint(file, fault));
    }
    const auto catalogue = CatalogueFile::readOnce(options.appFolder / "weaps.dat");
    const FleetFiles files = filesOf(read.fleet, path.parent_path());
    FleetReport report;
    report.fleet = std::move(read.fleet);
    report.rows = rowsOf(options, files, catalogue, status);
    report.sum = fleetSum(report.fleet, report.rows);
    if (!report.fleet.catalogue.empty()) {
        report.isOtherCatalogue = report.fleet.catalogue != fingerprint(catalogue.read()->text());
    }
    options.has("--json") ? printJson(report, file) : printTable(report);
    for (const LimitWords& limit : limitWords(report.fleet, report.sum)) {
        if (limit.isBroken) {
            refuse(complaint(file, Fault{0, limit.text}));
        }
    }
    if (options.has(playOption)) {
        try {
            status = std::max(status, savePlayedFleet(options, report.fleet, path.parent_path(),
                                                      nativePath(options.value(playOption))));
        } catch (const FileError& error) {
            refuse(complaint(error));
        } catch (const Error& error) {
            refuse(complaint(path, error));
        }
    }
    return status;
}

}  // namespace

constexpr OptionRow fleetOptions[] = {
    jsonOption,
    {.name = playOption,
     .value = "OUT.html",
     .help = "Save a page by which the fleet is played in a browser",
     .check =
         [](std::string_view, const std::string& value) {
             if (!toCapitals(value).ends_with(".HTML")) {
                 throw UsageError("--play: a page is an .html file: " + shownText(value));
             }
         }},
};

extern const CommandRow fleetCommand = {
    .name = "fleet",
    .words = "FLEET [--json] [--play OUT]",
    .least = 1,
    .most = 1,
    .options = fleetOptions,
    .help = "Add up the ships of a fleet and hold them against its limits",
    .details =
        "The ships are those of the fleet file, each with its count, class, mass, points and "
        "their sum; below them stands what is left of the limits. A limit that is broken and "
        "a ship that does not load are errors. A * behind a ship, and a word on the "
        "catalogue, say that they have changed since the fleet was written, which is none. "
        "--play saves one file for any browser, with the sheets of all ships, on which damage and "
        "systems are marked at the table; it works without a network. The pictures must have been "
        "unpacked for that.",
    .run = runFleet,
};

}  // namespace fleetwright
