// Map files: how they are read, what is said of their faults, and which maps are offered.

#include "SSDMap.h"
#include "bringInOrder.h"

#include "SSDMapCheck.h"
#include "SSDMaps.h"
#include "bestMap.h"
#include "caseFile.h"
#include "faults.h"
#include "sheetWorld.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

/// What a map says; the golden sheets hold its other points.
std::string textOf(const SSDMap& map) {
    std::ostringstream text;
    text << map.sDisplayName << ' ' << map.iMaxMass << ':'
         << fs::path(map.sImgFile).filename().string() << "\ntrack " << map.getDAMPntX() << ','
         << map.getDAMPntY() << "\nftl " << map.getFTLPntX() << ',' << map.getFTLPntY() << '\n';
    for (std::int16_t i = 0; i < map.iWeapNDX; ++i) {
        text << "weapon " << map.getWeapPntX(i) << ',' << map.getWeapPntY(i) << ','
             << map.getWeapPntArc(i) << '\n';
    }
    for (std::int16_t i = 0; i < map.iDCPNDX; ++i) {
        text << "party " << map.getDCPPntX(i) << ',' << map.getDCPPntY(i) << '\n';
    }
    return text.str();
}

/// What a map's file says, or why it does not load, and what an author is told of it.
std::string readAndChecked(std::string_view file) {
    const TemporaryFolder folder;
    folder.write("shipimages/Ship.gif", "");
    folder.write("maps/test.map", file);
    SSDMap map(folder.path());
    std::string text;
    try {
        map.ImageFile("test");
        EXPECT_FALSE(map.fileFault());
        text = textOf(map);
    } catch (const Error& error) {
        EXPECT_EQ(map.fileFault()->text, error.what());
        text = "refused: " + textOf(std::vector{map.fileFault().value()});
    }
    return text + textOf(checkMapFile(file, folder.path()));
}

/// Which of the maps "name=text" each ship "mass hull" takes.
std::string taken(const Case& given) {
    const TemporaryFolder folder;
    for (const std::string& line : linesOf(given["maps"])) {
        const std::size_t end = line.find('=');
        folder.write("maps/" + line.substr(0, end) + ".map",
                     replaced(line.substr(end + 1), ";", "\n"));
    }
    const SSDMaps maps = loadMaps(folder.path()).maps;
    const ShipYard yard(arcCatalogue);
    std::string text;
    for (const std::string& line : linesOf(given["ships"])) {
        const auto [mass, hull] = cut(line);
        const auto ship = yard.loaded("Mass: " + mass + "\nType: " + hull);
        bringInOrder(*ship);
        const SSDMaps::Map map = bestMap(maps, *ship, linesOf(given["systems"]));
        text += line + ": " + (map ? map->sDisplayName : "none") + '\n';
    }
    return text;
}

}  // namespace

TEST(SSDMaps, AreTakenBySizeThenKindThenPlacesThenName) {
    expectCases("ssd/golden/best.txt", taken);
}

TEST(SSDMap, IsReadAndCheckedLineByLine) {
    expectCases("ssd/golden/maps.txt",
                [](const Case& given) { return readAndChecked(given["map"]); });
}

TEST(SSDMap, HoldsAsManyPointsAsItsCounts) {
    std::string most;
    while (most.size() < 327'670) {
        most += "DCP:(1,2)\n";
    }
    const SSDMap map = mapOf(most);
    EXPECT_EQ(map.getDCPPntY(32'766), 2);
    EXPECT_THROW(map.getDCPPntX(32'767), Error);
    EXPECT_THROW(map.getFIRECONPntX(-1), Error);
    EXPECT_EQ(readAndChecked(most + "DCP:(1,2)\nDCP:(1,2)"),
              "refused: 32768: number too large\n32768: more than 32767 lines \"DCP\"\n"
              "0: no line \"IMAGE\"\n");
}

TEST(SSDMap, FindsFilesWhateverTheCaseOfTheirNames) {
    const TemporaryFolder folder;
    folder.write("maps/Long Ship.MAP", "IMAGE: sub\\long.GIF\nSIZE: 7");
    folder.write("shipimages/Sub/Long.gif", "");
    SSDMap map(folder.path());
    map.ImageFile("Long Ship");
    EXPECT_EQ(inAppFolder(map.sImgFile, folder.path().string()), "APP/shipimages/SUB/LONG.GIF");
    EXPECT_TRUE(fs::equivalent(map.outlineFile(), folder.path() / "shipimages/Sub/Long.gif"));
    EXPECT_THROW(map.ImageFile("Long"), FileError);
    EXPECT_EQ(map.fileFault()->text, "cannot be read: No such file or directory");
    EXPECT_EQ(map.fileFault()->line, 0);
}

TEST(SSDMaps, AreScannedByNameAndOfferedToShipsThatTheyHaveRoomFor) {
    const TemporaryFolder folder;
    folder.write("maps/beta.map", "SIZE: 101\nWEAP: (1,2,F)\nWEAP: (1,2,X)");
    folder.write("maps/Alpha.map", "SIZE: 120\nWEAP: (1,2,F)");
    folder.write("maps/broken.map", "SIZE: big");
    folder.write("maps/garbled.map", std::string("SIZE\0:\xFF\x1B\nDCP: \xFE\n", 16));
    folder.write("maps/Éclair.map", "SIZE: 5");
    for (const char* const name : {"Gamma.MAP", "notes.txt", "x.mapx", "y.map/x"}) {
        folder.write(std::string("maps/") + name, "SIZE: 7");
    }
    SSDMaps maps;
    std::int16_t largest = 0;
    const std::string shown = shownScan(folder.path(), maps, largest);
    EXPECT_EQ(shown, "Adding SSD Map: Alpha\nAdding SSD Map: beta\nAdding SSD Map: Gamma\n"
                     "Adding SSD Map: Éclair\n"
                     "broken.map:1: \"big\" is no number\n"
                     "garbled.map:2: \"þ\" is too short for a point\n");
    EXPECT_EQ(largest, 100);
    const auto fitting = [&maps](std::int32_t mass, std::int32_t systems) {
        std::string names;
        for (const std::string& name : fittingMaps(maps, mass, systems)) {
            names += name + ' ';
        }
        return names;
    };
    EXPECT_EQ(fitting(5, 0), "Alpha beta Gamma Éclair ");
    EXPECT_EQ(fitting(101, 1), "Alpha beta ");
    EXPECT_EQ(fitting(102, 1), "Alpha ");
    EXPECT_EQ(fitting(101, 2), "beta ");
    EXPECT_EQ(fitting(101, 3) + fitting(121, 0), "");
    EXPECT_EQ(maps.at("éCLAIR")->iMaxMass, 5);
    EXPECT_THROW(maps.at("Eclair"), Error);
    EXPECT_THROW(maps.add(maps.at("éclair")), Error);
    EXPECT_TRUE(loadMaps(TemporaryFolder().path()).maps.all().empty());
}
