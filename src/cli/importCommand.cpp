#include "commands.h"

#include "CatalogueFile.h"
#include "Error.h"
#include "FaultError.h"
#include "ResultFiles.h"
#include "ShipClass.h"
#include "console.h"
#include "paths.h"
#include "readFile.h"
#include "saveResult.h"
#include "shipJson.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace fleetwright {

namespace {

namespace fs = std::filesystem;

bool isIntoFolder(const Options& options) {
    return options.has(outOption.name) && isOutFolder(nativePath(options.value(outOption.name)));
}

void checkImport(const Options& options) {
    if (isIntoFolder(options)) {
        return;
    }
    const std::string out = options.value(outOption.name);
    if (!out.empty() && ShipClass::withExtension(out) != out) {
        throw UsageError("-o: a ship is a .shp file: " + shownText(out));
    }
    if (options.words.size() > 1) {
        throw UsageError("import: several files need a folder, -o FOLDER");
    }
}

/// Puts the ships of JSON files where they belong.
class Import {
public:
    explicit Import(const Options& options)
        : m_isIntoFolder(isIntoFolder(options)), m_out(nativePath(options.value(outOption.name))),
          m_services{
              CatalogueFile::readOnce(options.appFolder / "weaps.dat"), formula_calculate, {}} {
        if (m_isIntoFolder) {
            makeFolder(m_out);
        }
    }

    int take(const std::vector<std::string>& files) {
        for (const std::string& file : files) {
            m_file = file;
            try {
                takeFile();
            } catch (const FaultError& error) {
                refuse(error.fault());
            } catch (const Error& error) {
                refuse({0, faultOf(nativePath(file), error)});
            }
        }
        return m_status;
    }

private:
    void takeFile() {
        const std::vector<JsonShip> ships = shipsInJson(readBytes(nativePath(m_file)));
        if (ships.empty()) {
            throw Error("holds no ship");
        }
        if (ships.size() > 1 && !m_isIntoFolder) {
            throw Error("holds " + std::to_string(ships.size()) +
                        " ships, which need a folder: -o FOLDER");
        }
        for (const JsonShip& ship : ships) {
            takeShip(ship);
        }
    }

    /// What the catalogue has no system for stays in the ship file, for one that has, and is named.
    void takeShip(const JsonShip& ship) {
        const std::string shipFile = shipFileOf(ship.design);
        if (!std::in_range<std::int16_t>(ship.design.hull.thrust)) {
            refuse({ship.line, OverflowError().what()});  // the window could not show it
            return;
        }
        ShipClass loaded(m_services);
        if (!loaded.loadText(shipFile)) {
            refuse({ship.lineOf(loaded.fileFault()->line), loaded.fileFault()->text});
            return;
        }
        for (const RefusedLine& line : loaded.refusedLines()) {
            refuse({ship.lineOf(line.fault.line), line.fault.text});
        }
        if (m_isIntoFolder) {
            const std::string name =
                fileNameOf(ship.file.empty() ? ship.design.shipName : ship.file);
            save(m_out / nativePath(name + shipExtension), shipFile, ship.line);
        } else if (!m_out.empty()) {
            save(m_out, shipFile, ship.line);
        } else {
            printResults(shipFile);
        }
    }

    void save(const fs::path& file, const std::string& shipFile, int line) {
        if (m_written.takenBy(file, m_file) == nullptr) {
            saveResult(file, shipFile);
        } else {
            refuse({line, "another ship goes to " + shownText(pathText(file))});
        }
    }

    void refuse(const Fault& fault) {
        complain(complaint(m_file, fault));
        m_status = SomeRefused;
    }

    bool m_isIntoFolder;
    fs::path m_out;
    ShipServices m_services;
    ResultFiles m_written;
    std::string m_file;
    int m_status = Done;
};

int runImport(const Options& options) {
    return Import(options).take(options.words);
}

}  // namespace

constexpr OptionRow importOptions[] = {outOption};

extern const CommandRow importCommand = {
    .name = "import",
    .words = "JSON... [-o OUT]",
    .least = 1,
    .most = CommandRow::any,
    .options = importOptions,
    .help = "Make ship files of JSON; OUT is a .shp file or, for several ships, a folder",
    .details = "The JSON is that of export. Figures in it are passed over. A folder is made if it "
               "is not there; the files in it get the names that the ships once came from, or else "
               "those of the ships. Systems that the catalogue does not know stay in the ship "
               "files and are named as errors.",
    .check = checkImport,
    .run = runImport,
};

}  // namespace fleetwright
