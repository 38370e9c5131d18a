#include "saveFile.h"

#include "TemporaryFolder.h"
#include "testSystem.h"

#include <gtest/gtest.h>

using namespace fleetwright;
namespace fs = std::filesystem;

TEST(SaveFile, WritesNewFilesAndReplacesOldOnes) {
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "ship.shp";
    saveFile(file, "first");
    saveFile(file, std::string("sec\0nd", 6));
    EXPECT_EQ(folder.read("ship.shp"), std::string("sec\0nd", 6));
    EXPECT_EQ(folder.entries(), 1);

    const fs::path longName = folder.path() / std::string(255, 'n');
    saveFile(longName, "x");
    EXPECT_TRUE(fs::exists(longName));
}

TEST(SaveFile, LeavesWhatMayBeADesignPutAside) {
    const TemporaryFolder folder;
    setVariable(userDataVariable, (folder.path() / "home").string());
    const std::string recovered = "home/FleetWright/recovered/", left = ".fleetwright-a.tmp";
    for (const std::string& place : {recovered, std::string("home/")}) {
        folder.write(place + left, "a design");
        saveFile(folder.path() / (place + "ship.shp"), "new");
    }
    unsetVariable(userDataVariable);
    EXPECT_EQ(folder.read(recovered + left), "a design");
    EXPECT_FALSE(fs::exists(folder.path() / ("home/" + left)));
}

TEST(SaveFile, SaysWhichOtherNamesKeepTheOldContents) {
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "ship.shp";
    EXPECT_EQ(otherNamesNotice(file), "");
    folder.write("ship.shp", "old");
    EXPECT_EQ(otherNamesNotice(file), "");
    EXPECT_EQ(otherNamesNotice(folder.path()), "");
    fs::create_hard_link(file, folder.path() / "twin");
    EXPECT_EQ(otherNamesNotice(file),
              file.string() + ": has another name (a hard link), which keeps the old contents");
    saveFile(file, "new");
    EXPECT_EQ(folder.read("twin"), "old");
    EXPECT_EQ(otherNamesNotice(file), "");
}
