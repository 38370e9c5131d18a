// Makes the page of a fleet: makePage APP_FOLDER OUT FLEET_NAME NAME=SHIP...

#include "DrawingPack.h"
#include "SSDMaps.h"
#include "ShipOnScreen.h"
#include "ToolPictures.h"
#include "drawnSheet.h"
#include "playFleet.h"
#include "saveFile.h"

using namespace fleetwright;

int main(int, char** argv) {
    const std::filesystem::path app = argv[1];
    ToolPictures pictures(app);
    const DrawingPack drawings(drawingsFile(app));
    const LoadedMaps maps = loadMaps(app);
    const SheetTools tools{
        app, picturesReadOnce(app, pictures), outlinesReadOnce(pictures), pictures, drawings, maps};
    Fleet fleet;
    fleet.name = argv[3];
    std::vector<std::optional<VectorSheet>> sheets;
    for (char** word = argv + 4; *word != nullptr; ++word) {
        const std::string ship = *word;
        const std::size_t parting = ship.rfind('=');
        ShipOnScreen screen(app);
        screen.load(ship.substr(parting + 1));
        sheets.emplace_back(recordedSheet(screen, tools, ""));
        FleetShip& row = fleet.ships.emplace_back();
        row.names = {ship.substr(0, parting)};
    }
    saveFile(argv[2], playPage(playFleet(fleet, std::move(sheets)), pictures));
}
