#include "commands.h"

#include "CatalogueFile.h"
#include "Error.h"
#include "FaultError.h"
#include "FleetFiles.h"
#include "PrintedFleet.h"
#include "SheetSupplies.h"
#include "ShipScreens.h"
#include "console.h"
#include "fingerprint.h"
#include "fleetFile.h"
#include "fleetRows.h"
#include "fleetTable.h"
#include "pageOptions.h"
#include "paths.h"
#include "playedFleet.h"
#include "readFile.h"
#include "text.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fleetwright {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view playOption = "--play";
constexpr std::string_view sheetsOption = "--sheets";

void checkSheets(std::string_view, const std::string& out) {
    if (!toCapitals(out).ends_with(".PDF")) {
        throw UsageError("--sheets: a fleet is printed as a .pdf file: " + shownText(out));
    }
}

/// Loads all ships of a fleet and names what is wrong with them; a row for each. What prints the
/// fleet draws their sheets.
FleetRows loadShips(const Options& options, const FleetFiles& files, const CatalogueFile& catalogue,
                    PrintedFleet* printed, int& status) {
    FleetRows rows(files.paths.size());
    const std::string& fleetFile = options.words.front();
    const auto load = [&](std::size_t index, ShipOnScreen& screen) {
        const std::string& path = files.paths[index];
        auto row = std::make_shared<const FleetRow>(fleetRow(screen, path));
        Result result;
        for (const Fault& fault : row->faults) {
            result.complaints.push_back(files.complaintOf(fleetFile, index, fault));
        }
        try {
            if (printed != nullptr && row->figures) {
                printed->draw(index, screen);
            }
        } catch (const Error& error) {
            result.complaints.push_back(complaint(nativePath(path), error));
        }
        rows[index] = std::move(row);
        return result;
    };
    ShipScreens screens(options.appFolder, catalogue);
    const auto work = [&](std::size_t index) {
        return screens.lend([&](ShipOnScreen& screen) { return load(index, screen); });
    };
    status = std::max(status, printInOrder(files.paths.size(), work));
    FleetRows ofShips;
    for (const std::size_t file : files.ofShip) {
        ofShips.push_back(rows[file]);
    }
    return ofShips;
}

/// Reads a fleet, and refuses what is wrong with it; nothing if it is none.
std::optional<ReadFleet> readAndRefuse(const std::string& file,
                                       const std::function<void(const std::string&)>& refuse) {
    std::optional<ReadFleet> read;
    try {
        read = parseFleet(readTextFile(nativePath(file)));
    } catch (const FaultError& error) {
        refuse(complaint(file, error.fault()));
        return read;
    }
    for (const Fault& fault : read->faults) {
        refuse(complaint(file, fault));
    }
    return read;
}

int runFleet(const Options& options) {
    const std::string& file = options.words.front();
    const fs::path path = nativePath(file);
    int status = Done;
    const auto refuse = [&status](const std::string& line) {
        complain(line);
        status = SomeRefused;
    };
    const auto attempt = [&](const std::function<void()>& act) {
        try {
            act();
        } catch (const FileError& error) {
            refuse(complaint(error));
        } catch (const Error& error) {
            refuse(complaint(path, error));
        }
    };
    const std::optional<ReadFleet> given = readAndRefuse(file, refuse);
    if (!given) {
        return status;
    }
    const ReadFleet& read = *given;
    const auto catalogue = CatalogueFile::readOnce(options.appFolder / "weaps.dat");
    const FleetFiles files(read, path.parent_path());
    std::optional<SheetSupplies> supplies;
    if (options.has(sheetsOption)) {
        supplies.emplace(options, files.paths.size(), SheetSupplies::Kind::Pdf, status);
    }
    std::optional<PrintedFleet> printed;
    if (supplies) {
        attempt([&] { printed.emplace(options, read.fleet, files, *supplies, catalogue); });
    }
    FleetReport report{
        .fleet = read.fleet,
        .rows = loadShips(options, files, catalogue, printed ? &*printed : nullptr, status)};
    report.sum = fleetSum(report.fleet, report.rows);
    if (!report.fleet.catalogue.empty()) {
        report.isOtherCatalogue = report.fleet.catalogue != fingerprint(catalogue.read()->text());
    }
    if (options.has(jsonOption.name)) {
        printJson(report, file);
    } else if (!supplies) {
        printTable(report);
    }
    if (printed) {
        attempt([&] {
            std::move(*printed).save(nativePath(options.value(sheetsOption)), report.rows);
        });
    }
    for (const Fault& fault : brokenLimits(read, report.sum)) {
        refuse(complaint(file, fault));
    }
    if (options.has(playOption)) {
        attempt([&] {
            status = std::max(status, savePlayedFleet(options, report.fleet, path.parent_path(),
                                                      nativePath(options.value(playOption))));
        });
    }
    return status;
}

}  // namespace

constexpr OptionRow fleetOptions[] = {
    jsonOption,
    {.name = sheetsOption,
     .value = "OUT",
     .help = "Make a .pdf of the fleet: its roster, and the sheets of all of its ships",
     .check = checkSheets},
    {.name = playOption,
     .value = "OUT.html",
     .help = "Save a page by which the fleet is played in a browser",
     .check =
         [](std::string_view, const std::string& value) {
             if (!toCapitals(value).ends_with(".HTML")) {
                 throw UsageError("--play: a page is an .html file: " + shownText(value));
             }
         }},
    paperOption,
    perPageOption,
    plainOption,
};

extern const CommandRow fleetCommand = {
    .name = "fleet",
    .words = "FLEET [--json] [--sheets OUT] [--play OUT]",
    .least = 1,
    .most = 1,
    .options = fleetOptions,
    .help = "Add up the ships of a fleet and hold them against its limits",
    .details =
        "The ships are those of the fleet file, each with its count, class, mass, points and "
        "their sum; below them stands what is left of the limits. A limit that is broken and "
        "a ship that does not load are errors. A * behind a ship, and a word on the "
        "catalogue, say that they have changed since the fleet was written, which is no error. "
        "With --sheets there is no table, but still what --json prints, and a document: a roster "
        "with all of that and the notes, and behind it the sheet of each ship under its own name, "
        "or the name and a number. Small ones share a page, unless --per-page says otherwise. "
        "--play saves one file for any browser, with the sheets of all ships, on which damage and "
        "systems are marked at the table; it works without a network. For sheets and for play the "
        "pictures must have been unpacked.",
    .run = runFleet,
};

}  // namespace fleetwright
