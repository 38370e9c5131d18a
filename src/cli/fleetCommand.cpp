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

/// A run of the command. Whatever is wrong is named, and what can be done is done.
class FleetRun {
public:
    FleetRun(const Options& options, const ReadFleet& read)
        : m_options(options), m_file(options.words.front()), m_path(nativePath(m_file)),
          m_read(read), m_files(read, m_path.parent_path()),
          m_catalogue(CatalogueFile::readOnce(options.appFolder / "weaps.dat")),
          m_report{.fleet = read.fleet, .rows = {}} {}

    int run() {
        refuse(m_read.faults);
        beginSheets();
        loadShips();
        sumUp();
        print();
        saveSheets();
        refuse(brokenLimits(m_read, m_report.sum));
        savePlay();
        return m_status;
    }

private:
    void beginSheets();
    Result loadShip(std::size_t index, ShipOnScreen& screen, FleetRows& rows);
    void loadShips();
    void sumUp();
    void print() const;
    void saveSheets();
    void savePlay();

    void refuse(const std::string& line) {
        complain(line);
        m_status = SomeRefused;
    }
    void refuse(const std::vector<Fault>& faults) {
        for (const Fault& fault : faults) {
            refuse(complaint(m_file, fault));
        }
    }
    void attempt(const std::function<void()>& act) {
        try {
            act();
        } catch (const FileError& error) {
            refuse(complaint(error));
        } catch (const Error& error) {
            refuse(complaint(m_path, error));
        }
    }

    const Options& m_options;
    const std::string& m_file;
    fs::path m_path;
    const ReadFleet& m_read;
    FleetFiles m_files;
    CatalogueFile m_catalogue;
    FleetReport m_report;
    std::optional<SheetSupplies> m_supplies;  // of the next
    std::optional<PrintedFleet> m_printed;
    int m_status = Done;
};

void FleetRun::beginSheets() {
    if (!m_options.has(sheetsOption)) {
        return;
    }
    m_supplies.emplace(m_options, m_files.paths.size(), SheetSupplies::Kind::Lines, m_status);
    attempt([&] {
        m_printed.emplace(m_options, m_read.fleet, m_files, m_supplies->tools, m_catalogue);
    });
}

/// Loads a ship of the fleet, by the place of its file, and draws its sheet.
Result FleetRun::loadShip(std::size_t index, ShipOnScreen& screen, FleetRows& rows) {
    const std::string& path = m_files.paths[index];
    auto row = std::make_shared<const FleetRow>(fleetRow(screen, path));
    Result result;
    for (const Fault& fault : row->faults) {
        result.complaints.push_back(m_files.complaintOf(m_file, index, fault));
    }
    try {
        if (m_printed && row->figures) {
            m_printed->draw(index, screen);
        }
    } catch (const Error& error) {
        result.complaints.push_back(complaint(nativePath(path), error));
    }
    rows[index] = std::move(row);
    return result;
}

void FleetRun::loadShips() {
    FleetRows rows(m_files.paths.size());
    ShipScreens screens(m_options.appFolder, m_catalogue);
    const auto work = [&](std::size_t index) {
        return screens.lend([&](ShipOnScreen& screen) { return loadShip(index, screen, rows); });
    };
    m_status = std::max(m_status, printInOrder(rows.size(), work));
    for (const std::size_t file : m_files.ofShip) {
        m_report.rows.push_back(rows[file]);
    }
}

void FleetRun::sumUp() {
    m_report.sum = fleetSum(m_report.fleet, m_report.rows);
    if (!m_report.fleet.catalogue.empty()) {
        m_report.isOtherCatalogue =
            m_report.fleet.catalogue != fingerprint(m_catalogue.read()->text());
    }
}

void FleetRun::print() const {
    if (m_options.has(jsonOption.name)) {
        printJson(m_report, m_file);
    } else if (!m_options.has(sheetsOption)) {
        printTable(m_report);
    }
}

void FleetRun::saveSheets() {
    if (m_printed) {
        attempt([&] {
            std::move(*m_printed).save(nativePath(m_options.value(sheetsOption)), m_report.rows);
        });
    }
}

void FleetRun::savePlay() {
    if (m_options.has(playOption)) {
        attempt([&] {
            m_status =
                std::max(m_status, savePlayedFleet(m_options, m_report.fleet, m_path.parent_path(),
                                                   nativePath(m_options.value(playOption))));
        });
    }
}

int runFleet(const Options& options) {
    const std::string& file = options.words.front();
    ReadFleet read;
    try {
        read = parseFleet(readTextFile(nativePath(file)));
    } catch (const FaultError& error) {
        complain(complaint(file, error.fault()));
        return SomeRefused;
    }
    return FleetRun(options, read).run();
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
