// The delivered outlines and maps, as they lie in the application folder.

#include "Error.h"
#include "HullRules.h"
#include "OutlineMarks.h"
#include "OutlineScan.h"
#include "QtPictureFiles.h"
#include "ShipOnScreen.h"
#include "TemporaryFolder.h"
#include "TextFile.h"
#include "checkMapPlaces.h"
#include "faults.h"
#include "renderedSets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace fleetwright {
namespace {

namespace fs = std::filesystem;

struct Delivered {
    std::string name;
    OutlineLayout layout;
    Raster picture;
    std::string mapText;
    MapPlaces map;
};

std::set<std::string> namesIn(const fs::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        names.insert(entry.path().stem().string());
    }
    return names;
}

const std::vector<Delivered>& delivered() {
    static const std::vector<Delivered> all = [] {
        std::vector<Delivered> outlines;
        const fs::path app = APP_FOLDER;
        for (const std::string& name : namesIn(projectArtwork().file("outlines"))) {
            Delivered outline{
                .name = name,
                .layout = readOutlineLayout(projectArtwork().file("outlines/" + name + ".svg")),
                .picture = QtPictureFiles().load(app / "shipimages" / (name + ".gif")),
                .mapText = readTextFile(app / "maps" / (name + ".map")),
                .map = {}};
            outline.map = readMapPlaces(outline.mapText);
            outlines.push_back(std::move(outline));
        }
        return outlines;
    }();
    return all;
}

std::string placeText(const std::string& key, int x, int y, const std::string& arc) {
    return key + '(' + std::to_string(x) + ',' + std::to_string(y) + ',' + arc + ')';
}

int count(const Delivered& outline, const std::string& key, const std::string& arc = "") {
    return static_cast<int>(std::count_if(
        outline.map.places.begin(), outline.map.places.end(), [&](const MapPlace& place) {
            return place.key == key && (arc.empty() || place.arc == arc);
        }));
}

TEST(OutlinePictures, EachHasTheMapThatItsScanMakes) {
    ASSERT_GE(delivered().size(), 16U);
    for (const Delivered& outline : delivered()) {
        SCOPED_TRACE(outline.name);
        EXPECT_EQ(outline.mapText,
                  mapFileContents(scanOutline(outline.picture, outline.name + ".gif")));
        std::multiset<std::string> meant, scanned;
        for (const OutlineMark& mark : outline.layout.marks) {
            meant.insert(placeText(mark.kind, mark.box.x(), mark.box.y(),
                                   mark.arc == 0 ? "" : std::string(1, mark.arc)));
        }
        for (const MapPlace& place : outline.map.places) {
            scanned.insert(placeText(place.key, place.x, place.y, place.arc));
        }
        EXPECT_EQ(scanned, meant);
    }
}

TEST(OutlinePictures, BoxesStandApartAndCoverTheirMarks) {
    for (const Delivered& outline : delivered()) {
        SCOPED_TRACE(outline.name);
        EXPECT_EQ(textOf(checkMapPlaces(outline.map, outline.picture)), "");
    }
}

TEST(OutlinePictures, BoxesStandOnWhite) {
    // What a ship does not use is covered in white, and must not cut into the drawing.
    for (const Delivered& outline : delivered()) {
        SCOPED_TRACE(outline.name);
        for (const OutlineMark& mark : outline.layout.marks) {
            const QRect around = mark.box.adjusted(-1, -1, 1, 1);
            int ink = 0;
            for (int y = around.top(); y <= around.bottom(); ++y) {
                for (int x = around.left(); x <= around.right(); ++x) {
                    const bool isMarked = y == mark.box.top() && mark.box.contains(x, y);
                    ink += !isMarked && outline.picture.pixel(x, y) != Raster::white ? 1 : 0;
                }
            }
            EXPECT_EQ(ink, 0) << mark.kind << " at " << mark.box.x() << ", " << mark.box.y();
        }
    }
}

TEST(OutlinePictures, OfferPointsEnough) {
    std::map<int, int> outlines;
    for (const Delivered& outline : delivered()) {
        SCOPED_TRACE(outline.name);
        ++outlines[outline.map.size];
        const int fewest = outline.map.size == escortMass    ? 12
                           : outline.map.size == cruiserMass ? 24
                                                             : 48;
        EXPECT_GE(count(outline, "WEAP"), fewest);
        for (const char* arc : {"F", "P", "S", "A", "B"}) {
            EXPECT_GE(count(outline, "WEAP", arc), fewest / 8) << arc;
        }
        EXPECT_EQ(count(outline, "WEAP", "P"), count(outline, "WEAP", "S"));
        const HullFigures largest = hullFigures({.mass = outline.map.size, .hullType = Warship});
        EXPECT_GE(count(outline, "DCP"), largest.damageControlParties + 3);
        EXPECT_GE(outline.picture.width(), 320) << "names below the outline would be cut";
    }
    for (const int size : {escortMass, cruiserMass, capitalMass}) {
        EXPECT_GE(outlines[size], 5) << size;
    }
}

TEST(OutlinePictures, EverySampleShipFindsOne) {
    int ships = 0;
    for (const auto& entry : fs::directory_iterator(SOURCE_FOLDER "/data/ships")) {
        SCOPED_TRACE(entry.path());
        ShipOnScreen screen(SOURCE_FOLDER "/data");
        ASSERT_FALSE(screen.load(entry.path().string()));
        ShipClass& ship = screen.ship();
        if (ship.mass() > capitalMass) {
            continue;
        }
        ++ships;
        int systems = 0, parties = ship.g_iDCP;
        WeapRec record;
        for (std::int32_t index = 0; index < ship.g_lWeapCount;) {
            ship.listWeap(index, record);
            (record.name == "Damage Control Party" ? parties : systems) += record.amount;
        }
        EXPECT_TRUE(std::any_of(delivered().begin(), delivered().end(), [&](const Delivered& o) {
            return ship.mass() <= o.map.size && systems <= count(o, "WEAP") &&
                   parties <= count(o, "DCP") && ship.g_iFCS <= count(o, "FIRECON");
        })) << systems;
    }
    EXPECT_GT(ships, 30);
}

TEST(OutlinePictures, AFaultyMarkIsNamedWithItsLine) {
    const TemporaryFolder folder;
    const auto faultOf = [&](const std::string& rest) {
        const std::string file =
            folder.write("a.svg", "<svg viewBox=\"0 0 100 80\">\n<rect " + rest + "/>\n</svg>\n");
        const std::string fault = fileFaultOf([&] { readOutlineLayout(file); });
        return fault.substr(std::min(fault.size(), file.size()));
    };
    EXPECT_EQ(faultOf(R"(data-mark="F" x="68" y="48" width="32" height="32")"), "");
    EXPECT_EQ(faultOf(R"(data-mark="F" x="69" y="48" width="32" height="32")"),
              ": line 2: a mark leaves the picture");
    EXPECT_EQ(faultOf(R"(data-mark="F" x="6.5" y="48" width="32" height="32")"),
              ": line 2: \"6.5\" is no whole number of pixels");
    EXPECT_EQ(faultOf(R"(data-mark="FTL" x="6" y="48" width="33" height="32")"),
              ": line 2: nothing is pasted in the size of this mark");
    EXPECT_EQ(faultOf(R"(data-mark="DAMROW" x="6" y="1" width="80" height="43")"), "");
    EXPECT_EQ(faultOf(R"(data-mark="WEAP" x="6" y="48" width="32" height="32")"),
              ": line 2: unknown mark \"WEAP\"");
}

}  // namespace
}  // namespace fleetwright
