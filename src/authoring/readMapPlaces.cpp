#include "Error.h"
#include "SSDMapLine.h"
#include "TextFile.h"
#include "checkMapPlaces.h"
#include "mapMarks.h"

namespace fleetwright {

namespace {

void readLine(MapPlaces& map, const SSDMapLine& line, int number) {
    const auto addPlace = [&](std::string_view key) {
        try {
            const SSDPoint point =
                line.key == MapKey::Weap ? parseWeapPoint(line.value) : parsePoint(line.value);
            map.places.push_back({.key = std::string(key),
                                  .x = point.iPntX,
                                  .y = point.iPntY,
                                  .arc = point.sArc,
                                  .line = number});
        } catch (const Error&) {
            map.unread.emplace_back(key);
        }
    };
    switch (line.key) {
    case MapKey::Size:
        map.sizeLine = number;
        try {
            map.size = mapNumber(line.value);
        } catch (const Error&) {
        }
        return;
    case MapKey::Image:
        map.imageLine = number;
        map.image = line.value;
        return;
    case MapKey::Weap:
        return addPlace(weaponKey);
    case MapKey::FireCon:
        return addPlace(fireControlKey);
    case MapKey::Dcp:
        return addPlace(partyKey);
    case MapKey::DamRow:
        return addPlace(trackKey);
    case MapKey::Ftl:
        return addPlace(driveKey);
    case MapKey::Thrust:
        return addPlace(thrustKey);
    case MapKey::Unknown:
        return;
    }
}

}  // namespace

MapPlaces readMapPlaces(std::string_view text) {
    MapPlaces map;
    LineReader lines(text);
    std::string_view line;
    while (lines.next(line)) {
        if (!isMapComment(line)) {
            readLine(map, cutMapLine(line), lines.lineNumber());
        }
    }
    return map;
}

}  // namespace fleetwright
