// The map file, and a sheet that is drawn by what it says. An input is its bytes.

#include "Error.h"
#include "RasterSheet.h"
#include "SSDMap.h"
#include "SSDMapCheck.h"
#include "SheetImages.h"
#include "SheetPictures.h"
#include "ShipClass.h"
#include "TemporaryFolder.h"
#include "TextFile.h"
#include "capitals.h"
#include "checkMapPlaces.h"
#include "drawSSD.h"
#include "mapMarks.h"
#include "require.h"
#include "wholeNumber.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

using namespace fleetwright;

namespace {

constexpr const char* catalogue = "CATEGORY,0,0,BEAM,GUNS,O,guns.gif\r\n"
                                  "Gun,amount,amount,BEAM,GUNS,FPSAB,gun.gif\r\n"
                                  "Hold,amount,amount,SYSTEMS,SYSTEMS,O,hold.gif\r\n"
                                  "Cloaking Field,1,1,SPECIAL,SPECIAL,6,cloak.gif\r\n"
                                  "Damage Control Party,amount,1,SYSTEMS,SYSTEMS,O,party.gif\r\n";

/// Black pictures of the size that all have.
class Images : public SheetImages {
public:
    Raster file(std::string_view name) override {
        static const std::vector<std::string> files = sheetPictures();
        require(std::find(files.begin(), files.end(), name) != files.end(),
                "a sheet asks for delivered pictures only");
        return m_picture;
    }
    const Raster& system(std::string_view) override { return m_picture; }

private:
    Raster m_picture{systemPictureSize, systemPictureSize};
};

std::optional<SSDMap> loaded(const TemporaryFolder& folder, const std::string& name,
                             std::optional<Fault>& fault) {
    SSDMap map(folder.path());
    try {
        map.ImageFile(name);
    } catch (const Error& error) {
        require(map.fileFault().has_value() && map.fileFault()->text == error.what(),
                "a failure is remembered in its words");
        fault = map.fileFault();
        return std::nullopt;
    }
    require(!map.fileFault(), "a map that loads has no fault");
    return map;
}

std::string line(std::string_view key, int x, int y, const std::string& arc = {}) {
    return std::string(key) + ": (" + std::to_string(x) + ',' + std::to_string(y) +
           (key == weaponKey ? ',' + arc : std::string()) + ")\r\n";
}

/// A map as a file that says the same and nothing else.
std::string plainText(const SSDMap& map, const TemporaryFolder& folder) {
    const std::string outlines = outlinePath(folder.path(), "");
    require(map.sImgFile.empty() || map.sImgFile.starts_with(outlines),
            "outlines are below their folder");
    std::string text = "SIZE: " + std::to_string(map.iMaxMass) + "\r\n";
    if (!map.sImgFile.empty()) {
        text += "IMAGE: " + map.sImgFile.substr(outlines.size()) + "\r\n";
    }
    for (std::int16_t i = 0; i < map.iWeapNDX; ++i) {
        require(map.getWeapPntArc(i) == toCapitals(trimmed(map.getWeapPntArc(i))),
                "arcs are in capitals, without blanks around them");
        text += line(weaponKey, map.getWeapPntX(i), map.getWeapPntY(i), map.getWeapPntArc(i));
    }
    for (std::int16_t i = 0; i < map.iDCPNDX; ++i) {
        text += line(partyKey, map.getDCPPntX(i), map.getDCPPntY(i));
    }
    for (std::int16_t i = 0; i < map.iFIRECONNDX; ++i) {
        text += line(fireControlKey, map.getFIRECONPntX(i), map.getFIRECONPntY(i));
    }
    return text + line(trackKey, map.getDAMPntX(), map.getDAMPntY()) +
           line(driveKey, map.getFTLPntX(), map.getFTLPntY()) +
           line(thrustKey, map.getThrustPntX(), map.getThrustPntY());
}

template <typename Get>
void requireNoPoint(Get get) {
    try {
        get();
    } catch (const Error&) {
        return;
    }
    require(false, "there is no point beyond the last one");
}

void checkEnds(const SSDMap& map) {
    for (const std::int16_t index : {std::int16_t{-1}, map.iWeapNDX}) {
        requireNoPoint([&] { map.getWeapPntArc(index); });
    }
    requireNoPoint([&] { map.getDCPPntX(map.iDCPNDX); });
    requireNoPoint([&] { map.getFIRECONPntY(map.iFIRECONNDX); });
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
        if (place.key == weaponKey) {
            isSame = place.x == map.getWeapPntX(weapons) && place.y == map.getWeapPntY(weapons) &&
                     place.arc == map.getWeapPntArc(weapons);
            ++weapons;
        } else if (place.key == partyKey) {
            isSame = place.x == map.getDCPPntX(parties) && place.y == map.getDCPPntY(parties);
            ++parties;
        } else if (place.key == fireControlKey) {
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
    Images images;
    try {
        drawSSD(sheet, images, map, lists,
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
    std::optional<Fault> fault;
    const std::optional<SSDMap> map = loaded(world.folder, "input", fault);
    if (!map) {
        require(std::find(faults.begin(), faults.end(), *fault) != faults.end(),
                "what ends a load is a fault of the file");
        return 0;
    }
    checkEnds(*map);
    checkPlaces(*map, places);
    const std::string plain = plainText(*map, world.folder);
    world.folder.write("maps/plain.map", plain);
    const std::optional<SSDMap> again = loaded(world.folder, "plain", fault);
    require(again.has_value(), "a map that is written anew loads");
    requireSame(plainText(*again, world.folder), plain, "a map that is written anew is the same");
    drawSheet(*map, world.ship, world.outline);
    return 0;
}
