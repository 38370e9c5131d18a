#include "SSDMaps.h"

#include "sheetWorld.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

/// What a scan of a folder has brought.
struct Scan {
    explicit Scan(const MapFolder& folder) {
        scanMaps(folder.path(), maps, largest,
                 [this](const std::string& text) { shown += text + '\n'; });
    }

    std::string names() const {
        std::string text;
        for (const SSDMaps::Map& map : maps.all()) {
            text += map->sDisplayName + ' ';
        }
        return text;
    }

    SSDMaps maps;
    std::int16_t largest = 0;
    std::string shown;
};

std::string fitting(const Scan& scan, std::int32_t mass, std::int32_t systems) {
    std::string text;
    for (const std::string& name : fittingMaps(scan.maps, mass, systems)) {
        text += name + ' ';
    }
    return text;
}

}  // namespace

TEST(SSDMaps, AreScannedByNameAndFaultyOnesPassedOver) {
    const MapFolder folder;
    folder.write("beta", "SIZE: 36");
    folder.write("Alpha", "SIZE: 18");
    folder.write("broken", "SIZE: big");
    folder.writeFile("maps/Gamma.MAP", "SIZE: 4");
    folder.writeFile("maps/notes.txt", "SIZE: 90");
    folder.writeFile("maps/x.mapx", "SIZE: 90");
    folder.writeFile("maps/folder.map/x", "");
    folder.writeFile("maps/empty.map", "");
    folder.writeFile("maps/garbled.map", std::string("SIZE\0:\xFF\x1B\nDCP: \xFE\n", 16));
    fs::create_symlink("nowhere", folder.path() / "maps/link.map");
    ASSERT_EQ(mkfifo((folder.path() / "maps/pipe.map").c_str(), 0600), 0);
    const Scan scan(folder);
    EXPECT_EQ(scan.names(), "Alpha beta empty Gamma ");
    EXPECT_EQ(scan.shown, "Adding SSD Map: Alpha\nAdding SSD Map: beta\n"
                          "Adding SSD Map: empty\nAdding SSD Map: Gamma\n");
    EXPECT_EQ(scan.largest, 36);

    const Scan none((MapFolder()));
    EXPECT_EQ(none.names(), "");
    EXPECT_EQ(none.largest, 0);
}

TEST(SSDMaps, ServeNoMassAbove100) {
    const MapFolder folder;
    folder.write("giant", "SIZE: 150\nWEAP: (1,2,F)");
    const Scan scan(folder);
    EXPECT_EQ(scan.largest, 100);
    EXPECT_EQ(fitting(scan, 120, 1), "giant ");
}

TEST(SSDMaps, AreFoundByNameWithoutRegardToCase) {
    const MapFolder folder;
    folder.write("Éclair", "SIZE: 5");
    folder.write("éclair", "SIZE: 7");
    Scan scan(folder);
    ASSERT_EQ(scan.maps.all().size(), 1U);
    EXPECT_EQ(scan.maps.at("éCLAIR"), scan.maps.all().front());
    EXPECT_EQ(scan.largest, 7);
    EXPECT_THROW(scan.maps.at("Eclair"), Error);
    EXPECT_THROW(scan.maps.add(scan.maps.at("éclair")), Error);
}

TEST(SSDMaps, AreOfferedToShipsThatTheyHaveRoomFor) {
    const MapFolder folder;
    folder.write("b", "SIZE: 18\nWEAP: (1,2,F)\nWEAP: (1,2,X)");
    folder.write("a", "SIZE: 36\nWEAP: (1,2,F)");
    const Scan scan(folder);
    EXPECT_EQ(fitting(scan, 18, 1), "a b ");
    EXPECT_EQ(fitting(scan, 19, 1), "a ");
    EXPECT_EQ(fitting(scan, 18, 2), "b ");
    EXPECT_EQ(fitting(scan, 18, 3), "");
    EXPECT_EQ(fitting(scan, 37, 0), "");
}
