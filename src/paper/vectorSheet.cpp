#include "Error.h"
#include "RecordingSheet.h"
#include "SSDMap.h"
#include "SheetImages.h"
#include "ShipClass.h"
#include "damageTrackDrawing.h"
#include "sheetDocument.h"
#include "sheetFacts.h"

#include <memory>
#include <string>
#include <utility>

namespace fleetwright {

namespace {

/// The damage track of a map that is too large for one with a picture. It is pasted as those are:
/// before all others. A map that names no place for it has none. Throws Error if it has no room.
void addGreatTrack(SheetRecord& record, const ShipClass& ship, const SSDMap& map) {
    const bool hasPlace = map.getDAMPntX() != 0 || map.getDAMPntY() != 0;
    if (map.iMaxMass <= capitalMass || !hasPlace) {
        return;
    }
    const auto track = std::make_shared<const Drawing>(
        damageTrackDrawing(ship.g_iDP, ship.g_iDamRows, trackRoom(map.iMaxMass)));
    if (track->shapes.empty() && ship.g_iDP > 0) {
        throw Error("no room for " + std::to_string(ship.g_iDP) + " damage points");
    }
    record.pastes.insert(
        record.pastes.begin(),
        {{track, nullptr}, map.getDAMPntX(), map.getDAMPntY(), track->width, track->height, {}});
}

}  // namespace

VectorSheet vectorSheet(const SheetShip& ship, const std::vector<ListView::Row>& lvCurrentWeapons,
                        const SSDMap& map, const SheetSources& sources) {
    SheetLists lists;
    lists.fillShipWeap(lvCurrentWeapons);
    lists.fillPoints(map);
    RecordingSheet sheet(sources.drawings);
    sheet.setPicture(sources.outlines(map));
    drawSSD(sheet, sources.images, map, lists, ship);
    SheetRecord record = sheet.takeRecord();
    addGreatTrack(record, ship.ship, map);
    return {.record = std::move(record),
            .facts = sheetFacts(ship, lvCurrentWeapons, sources),
            .mapMass = map.iMaxMass,
            .shipFile = ship.ship.shipFile(),
            .date = std::nullopt};
}

}  // namespace fleetwright
