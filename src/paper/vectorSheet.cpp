#include "PictureFiles.h"
#include "RecordingSheet.h"
#include "SSDMap.h"
#include "ShipClass.h"
#include "sheetDocument.h"
#include "sheetFacts.h"

namespace fleetwright {

VectorSheet vectorSheet(const SheetShip& ship, const std::vector<ListView::Row>& lvCurrentWeapons,
                        const SSDMap& map, const SheetSources& sources) {
    SheetLists lists;
    lists.fillShipWeap(lvCurrentWeapons);
    lists.fillPoints(map);
    RecordingSheet sheet(sources.drawings);
    sheet.setPicture(sources.pictures.load(map.outlineFile()));
    drawSSD(sheet, sources.images, map, lists, ship);
    return {.record = sheet.takeRecord(),
            .facts = sheetFacts(ship, lvCurrentWeapons, sources),
            .shipFile = ship.ship.shipFile(),
            .date = std::nullopt};
}

}  // namespace fleetwright
