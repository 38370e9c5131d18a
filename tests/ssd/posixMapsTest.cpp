// Folders of maps as there can be on POSIX alone.

#include "SSDMaps.h"
#include "TemporaryFolder.h"
#include "sheetWorld.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace fleetwright;
namespace fs = std::filesystem;

TEST(PosixMaps, AreDroppedIfTheyAreNoFilesAndFoundByNamesThatDifferInCase) {
    const TemporaryFolder folder;
    folder.write("maps/Éclair.map", "SIZE: 5");
    folder.write("maps/éclair.map", "SIZE: 7");
    fs::create_symlink("nowhere", folder.path() / "maps/link.map");
    ASSERT_EQ(mkfifo((folder.path() / "maps/pipe.map").c_str(), 0600), 0);
    SSDMaps maps;
    std::int16_t largest = 0;
    const std::string shown = shownScan(folder.path(), maps, largest);
    EXPECT_EQ(shown, "Adding SSD Map: Éclair\nAdding SSD Map: éclair\n"
                     "link.map: cannot be read: No such file or directory\n"
                     "pipe.map: cannot be read: Not a plain file\n");
    EXPECT_EQ(maps.at("éCLAIR")->iMaxMass, 5);
    EXPECT_THROW(maps.add(maps.at("éclair")), Error);
}
