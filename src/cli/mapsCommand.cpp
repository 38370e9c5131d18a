#include "commands.h"

#include "SSDMaps.h"
#include "SheetLists.h"
#include "ShipOnScreen.h"
#include "console.h"
#include "frmMain.h"

namespace fleetwright {

namespace {

std::string mapsFor(const SSDMaps& maps, ShipOnScreen& screen) {
    SheetLists lists;
    const std::int32_t count = lists.fillShipWeap(screen.window().aboard.lvCurrentWeapons.rows());
    std::string names;
    for (const std::string& name : fittingMaps(maps, screen.ship().mass(), count)) {
        names += resultLine(name);
    }
    return names;
}

int runMaps(const Options& options) {
    const SSDMaps maps = loadMaps(options.appFolder);
    if (!options.words.empty()) {
        return forEachShip(
            options, RefusedLines::AsComplaints,
            [&maps](std::size_t, ShipOnScreen& screen) { return mapsFor(maps, screen); });
    }
    for (const SSDMaps::Map& map : maps.all()) {
        printResults(resultLine(map->sDisplayName));
    }
    return Done;
}

}  // namespace

extern const CommandRow mapsCommand = {
    .name = "maps",
    .words = "[SHIP]",
    .most = 1,
    .help = "List all maps for sheets, or those that a ship fits on",
    .details = "Maps that do not load are not listed.",
    .run = runMaps,
};

}  // namespace fleetwright
