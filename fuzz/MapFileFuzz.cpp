// The map file, and a sheet that is drawn by what it says. An input is its bytes.

#include "Error.h"
#include "RasterSheet.h"
#include "SSDMap.h"
#include "SSDMapCheck.h"
#include "SheetImages.h"
#include "SheetPictures.h"
#include "ShipClass.h"
#include "TemporaryFolder.h"
#include "checkMapPlaces.h"
#include "drawSSD.h"
#include "files.h"
#include "mapMarks.h"
#include "require.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

using namespace fleetwright;

namespace {

constexpr const char* catalogue = "CATEGORY,0,0,BEAM,GUNS,O,guns.gif\r\n"
                                  "Gun,amount,amount,BEAM,GUNS,FPSAB,gun.gif\r\n"
                                  "Hold,amount,amount,SYSTEMS,SYSTEMS,O,hold.gif\r\n"
                                  "Cloaking Field,1,1,SPECIAL,SPECIAL,6,cloak.gif\r\n"
                                  "Damage Control Party,amount,1,SYSTEMS,SYSTEMS,O,party.gif\r\n";

/// White pictures of the size that all have.
SheetImages whiteImages() {
    static const Raster picture{systemPictureSize, systemPictureSize};
    return {.file =
                [](std::string_view name) {
                    static const std::vector<std::string> files = sheetPictures();
                    require(std::find(files.begin(), files.end(), name) != files.end(),
                            "a sheet asks for delivered pictures only");
                    return picture;
                },
            .system = [](std::string_view) -> const Raster& { return picture; }};
}

/// The other reader, which passes over what it cannot read, must see the same in a map that loads.
void checkPlaces(const SSDMap& map, const MapPlaces& places) {
    require(places.unread.empty(), "all places of a map that loads can be read");
    require(places.sizeLine == 0 || places.size == map.iMaxMass, "both readers see one SIZE");
    require((places.imageLine == 0) == map.sImgFile.empty(), "both readers see the outline");
    std::int16_t weapons = 0;
    std::int16_t parties = 0;
    std::int16_t controls = 0;
    for (const MapPlace& place : places.places) {
        bool isSame = true;
        if (place.keyword == MapKeyword::Weap) {
            isSame = place.x == map.getWeapPntX(weapons) && place.y == map.getWeapPntY(weapons) &&
                     place.arc == map.getWeapPntArc(weapons);
            ++weapons;
        } else if (place.keyword == MapKeyword::Dcp) {
            isSame = place.x == map.getDCPPntX(parties) && place.y == map.getDCPPntY(parties);
            ++parties;
        } else if (place.keyword == MapKeyword::FireCon) {
            isSame =
                place.x == map.getFIRECONPntX(controls) && place.y == map.getFIRECONPntY(controls);
            ++controls;
        }
        require(isSame, "both readers see one place");
    }
    require(weapons == map.iWeapNDX && parties == map.iDCPNDX && controls == map.iFIRECONNDX,
            "both readers see all places");
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
        drawSSD(sheet, whiteImages(), map, lists,
                {.txtDP = std::to_string(ship.g_iDP),
                 .txtDCP = std::to_string(ship.g_iDCP),
                 .txtFireCon = std::to_string(ship.g_iFCS),
                 .txtShipName = ship.g_sShipName,
                 .txtDesigner = ship.g_sDesignerName,
                 .txtCost = std::to_string(ship.g_lCost),
                 .ship = ship});
    } catch (const Error&) {
        return;
    }
    require(lists.lstShipWeap.empty() && lists.lstFirecons.empty() && lists.lstDCP.empty() &&
                lists.lstWeaponsF.empty() && lists.lstWeaponsP.empty() &&
                lists.lstWeaponsS.empty() && lists.lstWeaponsA.empty() && lists.lstWeaponsB.empty(),
            "a full drawing uses all lists up");
    require(picture.width() == outline.width() && picture.height() > 0,
            "a sheet is as wide as its outline");
}

/// What all inputs share.
struct World {
    TemporaryFolder folder;
    Raster outline{50, 40};
    ShipClass ship{{.catalogueFile = folder.write("weaps.dat", catalogue),
                    .formula = formula_calculate,
                    .eventLoopTurn = {}}};

    World() {
        folder.write("shipimages/OUTLINE.GIF", "");
        outline.pixel(3, 2) = Yellow;
        outline.pixel(4, 2) = Red;
        outline.pixel(10, 20) = Magenta;
        std::fill(outline.row(20).begin() + 11, outline.row(20).end(), std::uint32_t{Black});
        ship.mass(30);
        ship.addWeap("Gun", 2);
        ship.addWeap("Hold", 1);
        ship.addWeap(Catalogue::partyName, 1);
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static World world;
    const std::string text = readTextFile(
        world.folder.write("maps/input.map", {reinterpret_cast<const char*>(data), size}));
    const MapPlaces places = readMapPlaces(text);
    const std::vector<Fault> faults = checkMapFile(text, world.folder.path());
    for (const Raster& outline : {world.outline, Raster()}) {
        for (const Fault& fault : checkMapPlaces(places, outline)) {
            require(fault.line >= 0 && !fault.text.empty(), "a fault is put into words");
        }
    }
    SSDMap map(world.folder.path());
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
    drawSheet(map, world.ship, world.outline);
    return 0;
}
