// The delivered outlines and maps, as they lie in the application folder.

#include "DamageTrack.h"
#include "HullRules.h"
#include "OutlineMarks.h"
#include "QtPictureFiles.h"
#include "checkMapPlaces.h"
#include "paths.h"
#include "readFile.h"
#include "testShip.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

struct Outline {
    std::string name;
    std::vector<OutlineMark> marks;
    Raster picture;
    MapPlaces map;

    std::ptrdiff_t count(MapKeyword keyword, const std::string& arc = "") const {
        return std::ranges::count_if(map.places, [&](const MapPlace& place) {
            return place.keyword == keyword && (arc.empty() || place.arc == arc);
        });
    }
};

const std::vector<Outline>& outlines() {
    static const std::vector<Outline> all = [] {
        std::vector<Outline> found;
        for (const fs::path& source : listFolder(ARTWORK_FOLDER "/outlines", ".svg")) {
            const std::string name = source.stem().string();
            found.push_back(
                {.name = name,
                 .marks = readOutlineLayout(source).marks,
                 .picture = QtPictureFiles().load(APP_FOLDER "/shipimages/" + name + ".gif"),
                 .map = readMapPlaces(readTextFile(APP_FOLDER "/maps/" + name + ".map"))});
        }
        return found;
    }();
    return all;
}

/// How many pixels at the edges of a box or inside it are neither white nor a mark.
int inkUnder(const QRect& box, const Raster& picture) {
    int ink = 0;
    for (int y = box.top() - 1; y <= box.bottom() + 1; ++y) {
        for (int x = box.left() - 1; x <= box.right() + 1; ++x) {
            const bool isMarked = y == box.top() && box.contains(x, y);
            ink += !isMarked && picture.pixel(x, y) != Raster::white ? 1 : 0;
        }
    }
    return ink;
}

std::string placeText(MapKeyword keyword, int x, int y) {
    return std::string(mapWord(keyword)) + std::to_string(x) + ',' + std::to_string(y);
}

}  // namespace

TEST(Outlines, HaveTheMapsOfTheirMarksWhichStandOnWhite) {
    ASSERT_GE(outlines().size(), 34U);
    for (const Outline& outline : outlines()) {
        std::multiset<std::string> meant, scanned;
        for (const OutlineMark& mark : outline.marks) {
            const std::string place = placeText(mark.keyword, mark.box.x(), mark.box.y());
            meant.insert(place + (mark.arc == 0 ? "" : std::string(1, mark.arc)));
            // What a ship does not use is covered in white, and must not cut into the drawing.
            EXPECT_EQ(inkUnder(mark.box, outline.picture), 0) << outline.name << " at " << place;
        }
        for (const MapPlace& place : outline.map.places) {
            scanned.insert(placeText(place.keyword, place.x, place.y) + place.arc);
        }
        EXPECT_EQ(scanned, meant) << outline.name;
    }
}

TEST(Outlines, OfferEnoughForEachSizeAndSideAndALightOneOfEachKind) {
    // How few weapons an outline of a size may have.
    const std::map<int, int> fewest = {
        {escortMass, 8}, {cruiserMass, 12}, {capitalMass, 16}, {300, 28}, {greatMass, 48}};
    std::map<std::string, std::set<std::ptrdiff_t>> weaponsOfKind;
    for (const Outline& outline : outlines()) {
        SCOPED_TRACE(outline.name);
        const std::ptrdiff_t weapons = outline.count(MapKeyword::Weap);
        weaponsOfKind[outline.name.substr(0, outline.name.find(" - "))].insert(weapons);
        EXPECT_GE(weapons, fewest.at(outline.map.size));
        for (const char* const arc : {"F", "P", "S", "A", "B"}) {
            EXPECT_GE(outline.count(MapKeyword::Weap, arc), fewest.at(outline.map.size) / 8) << arc;
        }
        EXPECT_EQ(outline.count(MapKeyword::Weap, "P"), outline.count(MapKeyword::Weap, "S"));
        EXPECT_GE(outline.picture.width(), 320) << "names below the outline would be cut";
        EXPECT_TRUE(checkMapPlaces(outline.map, outline.picture).empty());
    }
    for (const auto& [kind, weapons] : weaponsOfKind) {
        EXPECT_LE(*weapons.begin() * 3, *weapons.rbegin() * 2) << kind;
    }
}

TEST(Outlines, FillAPageWithSymbolsAndDamageBoxesOfASizeForTheTable) {
    constexpr double roomWidth = 190, roomHeight = 253;  // millimetres on A4 with its margins
    for (const Outline& outline : outlines()) {
        QRect ink;
        for (int y = 0; y < outline.picture.height(); ++y) {
            for (int x = 0; x < outline.picture.width(); ++x) {
                ink |= outline.picture.pixel(x, y) != Raster::white ? QRect(x, y, 1, 1) : QRect();
            }
        }
        const double scale = std::min(roomWidth / ink.width(), roomHeight / ink.height());
        EXPECT_GE(scale * systemPictureSize, 9) << outline.name;
        const HullFigures most = hullFigures({.mass = outline.map.size, .hullType = Warship});
        const DamageTrack track =
            damageTrack(most.damagePoints, most.damageRows, trackRoom(outline.map.size));
        EXPECT_GE(scale * (track.side - 1), 4.5) << outline.name;
    }
}

TEST(Outlines, EverySampleShipFindsOne) {
    const ShipYard yard(readTextFile(CATALOGUE_FILE));
    const std::vector<fs::path> files = listFolder(SOURCE_FOLDER "/data/ships", ".shp");
    EXPECT_GT(files.size(), 30U);
    for (const fs::path& file : files) {
        const auto ship = yard.loaded(readTextFile(file));
        ASSERT_FALSE(ship->fileFault()) << file;
        int systems = 0, parties = ship->g_iDCP;
        for (const WeapRec& record : ship->systemsAboard()) {
            (record.name == "Damage Control Party" ? parties : systems) += record.amount;
        }
        const auto hasRoom = [&](const Outline& outline) {
            return ship->mass() <= outline.map.size && systems <= outline.count(MapKeyword::Weap) &&
                   parties <= outline.count(MapKeyword::Dcp) &&
                   ship->g_iFCS <= outline.count(MapKeyword::FireCon);
        };
        EXPECT_TRUE(std::ranges::any_of(outlines(), hasRoom)) << file;
    }
}
