// Map files: how they are read, what is said of their faults, and which maps are offered.

#include "SSDMap.h"

#include "SSDMapCheck.h"
#include "SSDMaps.h"
#include "caseFile.h"
#include "faults.h"
#include "sheetWorld.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

std::string pointText(int x, int y) {
    return ' ' + std::to_string(x) + ',' + std::to_string(y);
}

/// All that a map says.
std::string textOf(const SSDMap& map) {
    std::string text = map.sDisplayName + ' ' + std::to_string(map.iMaxMass) +
                       (map.sImgFile.empty() ? "" : " on ") +
                       fs::path(map.sImgFile).filename().string() + "\ntrack" +
                       pointText(map.getDAMPntX(), map.getDAMPntY()) + " ftl" +
                       pointText(map.getFTLPntX(), map.getFTLPntY()) + " thrust" +
                       pointText(map.getThrustPntX(), map.getThrustPntY()) + "\nweapons";
    for (std::int16_t i = 0; i < map.iWeapNDX; ++i) {
        text += pointText(map.getWeapPntX(i), map.getWeapPntY(i)) + ',' + map.getWeapPntArc(i);
    }
    text += "\nparties";
    for (std::int16_t i = 0; i < map.iDCPNDX; ++i) {
        text += pointText(map.getDCPPntX(i), map.getDCPPntY(i));
    }
    text += "\nfire controls";
    for (std::int16_t i = 0; i < map.iFIRECONNDX; ++i) {
        text += pointText(map.getFIRECONPntX(i), map.getFIRECONPntY(i));
    }
    return text + '\n';
}

/// What a map's file says, or why it does not load, and what an author is told of it.
std::string readAndChecked(std::string_view file) {
    const MapFolder folder;
    folder.writeFile("shipimages/Ship.gif", "");
    folder.write("test", file);
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

/// The maps of a folder as a start finds them, and which of them a ship fits on.
struct Scan {
    explicit Scan(const MapFolder& folder) {
        scanMaps(folder.path(), maps, largest,
                 [this](const std::string& text) { shown += text + '\n'; });
    }

    std::string fitting(std::int32_t mass, std::int32_t systems) const {
        std::string names;
        for (const std::string& name : fittingMaps(maps, mass, systems)) {
            names += name + ' ';
        }
        return names;
    }

    SSDMaps maps;
    std::int16_t largest = 0;
    std::string shown;
};

}  // namespace

TEST(SSDMap, IsReadAndCheckedLineByLine) {
    expectCases("ssd/golden/maps.txt",
                [](const Case& given) { return readAndChecked(given["map"]); });
}

TEST(SSDMap, HoldsAsManyPointsAsItsCounts) {
    std::string most;
    for (int i = 0; i < 32'767; ++i) {
        most += "DCP:(1,2)\n";
    }
    const SSDMap map = MapFolder().map(most);
    EXPECT_EQ(map.getDCPPntY(32'766), 2);
    EXPECT_THROW(map.getDCPPntX(32'767), Error);
    EXPECT_THROW(map.getWeapPntArc(0), Error);
    EXPECT_THROW(map.getFIRECONPntX(-1), Error);
    EXPECT_EQ(readAndChecked(most + "DCP:(1,2)\nDCP:(1,2)"),
              "refused: 32768: number too large\n32768: more than 32767 lines \"DCP\"\n"
              "0: no line \"IMAGE\"\n");
}

TEST(SSDMap, FindsFilesWhateverTheCaseOfTheirNames) {
    const MapFolder folder;
    folder.writeFile("maps/Long Ship.MAP", "IMAGE: sub\\long.GIF\nSIZE: 7");
    folder.writeFile("shipimages/Sub/Long.gif", "");
    SSDMap map(folder.path());
    map.ImageFile("Long Ship");
    EXPECT_EQ(map.sImgFile, folder.path().string() + "/shipimages/SUB/LONG.GIF");
    EXPECT_EQ(outlineFile(map), folder.path() / "shipimages/Sub/Long.gif");
    EXPECT_THROW(map.ImageFile("Long"), FileError);
    EXPECT_EQ(map.fileFault()->text, "cannot be read: No such file or directory");
    EXPECT_EQ(map.fileFault()->line, 0);
}

TEST(SSDMaps, AreScannedByNameAndFaultyOnesPassedOver) {
    const MapFolder folder;
    folder.write("beta", "SIZE: 36");
    folder.write("Alpha", "SIZE: 18");
    folder.write("broken", "SIZE: big");
    folder.write("garbled", std::string("SIZE\0:\xFF\x1B\nDCP: \xFE\n", 16));
    folder.write("Éclair", "SIZE: 5");
    folder.write("éclair", "SIZE: 37");
    for (const char* const name : {"Gamma.MAP", "notes.txt", "x.mapx", "folder.map/x"}) {
        folder.writeFile(std::string("maps/") + name, "SIZE: 90");
    }
    fs::create_symlink("nowhere", folder.path() / "maps/link.map");
    ASSERT_EQ(mkfifo((folder.path() / "maps/pipe.map").c_str(), 0600), 0);
    Scan scan(folder);
    EXPECT_EQ(scan.shown, "Adding SSD Map: Alpha\nAdding SSD Map: beta\nAdding SSD Map: Gamma\n"
                          "Adding SSD Map: Éclair\nAdding SSD Map: éclair\n");
    EXPECT_EQ(scan.fitting(0, 0), "Alpha beta Gamma Éclair ");
    EXPECT_EQ(scan.largest, 90);
    EXPECT_EQ(scan.maps.at("éCLAIR")->iMaxMass, 5);
    EXPECT_THROW(scan.maps.at("Eclair"), Error);
    EXPECT_THROW(scan.maps.add(scan.maps.at("éclair")), Error);
    EXPECT_EQ(Scan(MapFolder()).largest, 0);
}

TEST(SSDMaps, AreOfferedToShipsThatTheyHaveRoomFor) {
    const MapFolder folder;
    folder.write("b", "SIZE: 101\nWEAP: (1,2,F)\nWEAP: (1,2,X)");
    folder.write("a", "SIZE: 120\nWEAP: (1,2,F)");
    const Scan scan(folder);
    EXPECT_EQ(scan.largest, 100);
    EXPECT_EQ(scan.fitting(101, 1), "a b ");
    EXPECT_EQ(scan.fitting(102, 1), "a ");
    EXPECT_EQ(scan.fitting(101, 2), "b ");
    EXPECT_EQ(scan.fitting(101, 3), "");
    EXPECT_EQ(scan.fitting(121, 0), "");
}
