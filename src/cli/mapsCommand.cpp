#include "commands.h"

#include "SheetLists.h"
#include "ShipOnScreen.h"
#include "console.h"
#include "frmMain.h"

#include <algorithm>

namespace fleetwright {

namespace {

std::string mapsFor(const LoadedMaps& loaded, ShipOnScreen& screen) {
    SheetLists lists;
    const std::int32_t count = lists.fillShipWeap(screen.window().aboard.lvCurrentWeapons.rows());
    const std::int32_t mass = screen.ship().mass();
    std::string names;
    if (getsSheet(mass, loaded.g_iLargestSSD)) {
        for (const std::string& name : fittingMaps(loaded.maps, mass, count)) {
            names += resultLine(name);
        }
    }
    return names;
}

int runMaps(const Options& options) {
    int status = Done;
    const LoadedMaps loaded = mapsOf(options, status);
    if (!options.words.empty()) {
        const int shipStatus = forEachShip(
            options, RefusedLines::AsComplaints,
            [&loaded](std::size_t, ShipOnScreen& screen) { return mapsFor(loaded, screen); });
        return std::max(status, shipStatus);
    }
    for (const SSDMaps::Map& map : loaded.maps.all()) {
        printResults(resultLine(map->sDisplayName));
    }
    return status;
}

}  // namespace

LoadedMaps mapsOf(const Options& options, int& status) {
    LoadedMaps loaded = loadMaps(options.appFolder);
    for (const DroppedMap& map : loaded.dropped) {
        complain(complaint(map.file.string(), map.fault));
        status = SomeRefused;
    }
    return loaded;
}

extern const CommandRow mapsCommand = {
    .name = "maps",
    .words = "[SHIP]",
    .most = 1,
    .help = "List all maps for sheets, or those that a ship fits on",
    .details = "Maps that cannot be used are named as errors. A ship that is too heavy for a sheet "
               "fits on none.",
    .run = runMaps,
};

}  // namespace fleetwright
