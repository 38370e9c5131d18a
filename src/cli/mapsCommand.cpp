#include "commands.h"

#include "SSDMaps.h"
#include "SheetLists.h"
#include "ShipOnScreen.h"

#include <cstdio>

namespace fleetwright {

namespace {

/// The maps as the start of the program loads them.
SSDMaps loadMaps(const Options& options) {
    SSDMaps maps;
    std::int16_t largest = 0;
    scanMaps(options.appFolder, maps, largest, [](const std::string&) {});
    return maps;
}

std::string mapsFor(const SSDMaps& maps, ShipOnScreen& screen) {
    SheetLists lists;
    const std::int32_t count = lists.fillShipWeap(screen.lvCurrentWeapons().rows());
    std::string names;
    for (const std::string& name : fittingMaps(maps, screen.ship().mass(), count)) {
        names += name + '\n';
    }
    return names;
}

}  // namespace

int runMaps(const Options& options) {
    const SSDMaps maps = loadMaps(options);
    if (!options.files.empty()) {
        return forEachShip(
            options, RefusedLines::AsComplaints,
            [&maps](const std::string&, ShipOnScreen& screen) { return mapsFor(maps, screen); });
    }
    for (const SSDMaps::Map& map : maps.all()) {
        std::printf("%s\n", map->sDisplayName.c_str());
    }
    return Done;
}

}  // namespace fleetwright
