#include "checkMapPlaces.h"

#include "caseFile.h"
#include "faults.h"
#include "outlines.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

/// What is read of a map, and what is said of it on an outline.
std::string checked(const Case& given) {
    const MapPlaces map = readMapPlaces(given["map"]);
    std::string text = "size " + std::to_string(map.size) + " of line " +
                       std::to_string(map.sizeLine) + ", outline \"" + map.image + "\" of line " +
                       std::to_string(map.imageLine);
    for (const MapKeyword keyword : map.unread) {
        text += ", unread " + std::string(mapWord(keyword));
    }
    text += "\nplaces";
    for (const MapPlace& place : map.places) {
        text += ' ' + std::to_string(place.line) + std::string(mapWord(place.keyword)) +
                std::to_string(place.x) + ',' + std::to_string(place.y) + place.arc;
    }
    return text + '\n' + textOf(checkMapPlaces(map, outlineOf(given["outline"])));
}

}  // namespace

TEST(CheckMapPlaces, NamesWhatAnAuthorMayNotHaveMeant) {
    expectCases("authoring/golden/places.txt", checked);
}
