#include "commands.h"

#include "SSDMaps.h"
#include "SheetLists.h"
#include "ShipOnScreen.h"
#include "frmMain.h"

#include <cstdio>

namespace fleetwright {

namespace {

std::string mapsFor(const SSDMaps& maps, ShipOnScreen& screen) {
    SheetLists lists;
    const std::int32_t count = lists.fillShipWeap(screen.window().aboard.lvCurrentWeapons.rows());
    std::string names;
    for (const std::string& name : fittingMaps(maps, screen.ship().mass(), count)) {
        names += name + '\n';
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
        std::printf("%s\n", map->sDisplayName.c_str());
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
