#include "commands.h"

#include "ShipOnScreen.h"
#include "console.h"
#include "paths.h"
#include "saveResult.h"
#include "shipJson.h"

#include <filesystem>
#include <string>
#include <vector>

namespace fleetwright {

namespace {

/// The name of a ship's file without its folder; nothing for a ship that is given in another way.
std::string fileOf(const std::string& ship) {
    const std::filesystem::path file = nativePath(ship);
    std::error_code ignored;
    return std::filesystem::exists(file, ignored) ? pathText(file.filename()) : std::string();
}

int runExport(const Options& options) {
    std::vector<std::string> ships(options.words.size());
    const int status =
        forEachShip(options, RefusedLines::AsComplaints, [&](std::size_t index, auto& screen) {
            refuseFleet(options.words[index]);
            ships[index] = shipJson(screen.ship(), fileOf(options.words[index]));
            return std::string();
        });
    std::erase_if(ships, [](const std::string& ship) { return ship.empty(); });
    if (ships.empty()) {
        return status;
    }
    const std::string json =
        (options.words.size() == 1 ? ships.front() : arrayOfShips(ships)) + '\n';
    if (options.has(outOption.name)) {
        saveResultOf(options.words, nativePath(options.value(outOption.name)), json);
    } else {
        printResults(json);
    }
    return status;
}

}  // namespace

constexpr OptionRow exportOptions[] = {
    jsonOption,
    outOption,
};

extern const CommandRow exportCommand = {
    .name = "export",
    .words = "SHIP... [--json] [-o OUT]",
    .least = 1,
    .most = CommandRow::any,
    .options = exportOptions,
    .help = "Write ships as JSON, for other programs",
    .details = "A ship is an object, several are an array of objects, which keep to "
               "ship.schema.json of the documentation. They hold all that a ship file does, and "
               "the figures for readers. import makes ship files of them again, the same to the "
               "byte that save writes. --json may be said, but is what export does in any case.",
    .run = runExport,
};

}  // namespace fleetwright
