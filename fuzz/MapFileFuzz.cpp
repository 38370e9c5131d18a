// The map file, and a sheet that is drawn by what it says. An input is its bytes.

#include "Error.h"
#include "RasterSheet.h"
#include "SSDMap.h"
#include "SSDMapCheck.h"
#include "SheetImages.h"
#include "SheetPictures.h"
#include "checkMapPlaces.h"
#include "drawSSD.h"
#include "mapMarks.h"
#include "readFile.h"
#include "require.h"
#include "testShip.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

using namespace fleetwright;

namespace {

/// White pictures of the size that all have.
SheetImages whiteImages() {
    static const Raster picture{systemPictureSize, systemPictureSize};
    return {.file = [](std::string_view) { return picture; },
            .system = [](std::string_view) -> const Raster& { return picture; }};
}

/// The other reader, which passes over what it cannot read, must see the same in a map that loads.
void checkPlaces(const SSDMap& map, const MapPlaces& places) {
    require(places.unread.empty(), "all places of a map that loads can be read");
    require(places.sizeLine == 0 || places.size == map.iMaxMass, "both readers see one SIZE");
    require((places.imageLine == 0) == map.sImgFile.empty(), "both readers see the outline");
    std::map<MapKeyword, std::string> seen, loaded;
    const auto put = [](std::string& all, int x, int y, const std::string& arc = "") {
        all += std::to_string(x) + ',' + std::to_string(y) + arc + ' ';
    };
    for (const MapPlace& place : places.places) {
        if (isAppending(place.keyword)) {
            put(seen[place.keyword], place.x, place.y, place.arc);
        }
    }
    for (std::int16_t i = 0; i < map.iWeapNDX; ++i) {
        put(loaded[MapKeyword::Weap], map.getWeapPntX(i), map.getWeapPntY(i), map.getWeapPntArc(i));
    }
    for (std::int16_t i = 0; i < map.iDCPNDX; ++i) {
        put(loaded[MapKeyword::Dcp], map.getDCPPntX(i), map.getDCPPntY(i));
    }
    for (std::int16_t i = 0; i < map.iFIRECONNDX; ++i) {
        put(loaded[MapKeyword::FireCon], map.getFIRECONPntX(i), map.getFIRECONPntY(i));
    }
    require(seen == loaded, "both readers see all places");
}

Raster paintedOutline() {
    Raster outline(50, 40);
    outline.pixel(3, 2) = Yellow;
    outline.pixel(4, 2) = Red;
    std::ranges::fill(outline.row(20), std::uint32_t{Black});
    outline.pixel(10, 20) = Magenta;
    return outline;
}

/// A sheet is drawn, or the drawing fails with an error, wherever the points are.
void drawSheet(const SSDMap& map, ShipClass& ship, const Raster& outline) {
    SheetLists lists;
    lists.fillPoints(map);
    for (const WeapRec& record : ship.systemsAboard()) {
        lists.lstShipWeap.insert(lists.lstShipWeap.end(), static_cast<std::size_t>(record.amount),
                                 std::string(record.name));
    }
    Raster picture = outline;
    RasterSheet sheet(picture);
    try {
        drawSSD(sheet, whiteImages(), map, lists, sheetShipOf(ship));
    } catch (const Error&) {
        return;
    }
    require(lists.lstShipWeap.empty(), "a full drawing uses all systems up");
    require(picture.width() == outline.width() && picture.height() > 0,
            "a sheet is as wide as its outline");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ShipYard yard;
    static const auto ship = yard.loaded("Mass: 30\nSystem: Gun, 2\nSystem: Ballast, 1\n");
    static const std::string outlineFile = yard.folder().write("shipimages/OUTLINE.GIF", "");
    static const Raster outline = paintedOutline();
    const std::string text = readTextFile(
        yard.folder().write("maps/input.map", {reinterpret_cast<const char*>(data), size}));
    const MapPlaces places = readMapPlaces(text);
    const std::vector<Fault> faults = checkMapFile(text, yard.folder().path());
    for (const Raster& picture : {outline, Raster()}) {
        requireInOrder(checkMapPlaces(places, picture), text);
    }
    SSDMap map(yard.folder().path());
    try {
        map.ImageFile("input");
    } catch (const Error& error) {
        require(map.fileFault().has_value() && map.fileFault()->text == error.what() &&
                    std::find(faults.begin(), faults.end(), *map.fileFault()) != faults.end(),
                "what ends a load is a fault of the file");
        return 0;
    }
    require(!map.fileFault(), "a map that loads has no fault");
    checkPlaces(map, places);
    drawSheet(map, *ship, outline);
    return 0;
}
