// A fleet whose save fails: at each of its calls to the system in turn.

#include "FleetDocument.h"

#include "Error.h"
#include "FileFaults.h"
#include "TemporaryFolder.h"
#include "fleetFile.h"

#include <gtest/gtest.h>

using namespace fleetwright;

TEST(FleetDocument, StaysAtHandWhicheverCallOfItsSaveFails) {
    int calls = 1, failed = 0;
    for (int nth = 1; nth <= calls; ++nth) {
        SCOPED_TRACE(nth);
        const TemporaryFolder folder;
        const std::filesystem::path file = folder.write("a.fleet", "FleetWright fleet 1\n");
        FleetDocument fleet(folder.path());
        fleet.open(file);
        fleet.act({"Name"}, [](Fleet& changed) { changed.name = "New"; }, 0);
        bool isTold = false;
        {
            const FileFaults faults(nth);
            try {
                fleet.save(file, {}, {});
            } catch (const FileError& error) {
                EXPECT_EQ(error.file(), file);
                isTold = true;
            }
            calls = faults.calls();
        }
        failed += isTold ? 1 : 0;
        EXPECT_EQ(fleet.isSaved(), !isTold);
        EXPECT_EQ(fleet.fleet().name, "New");
        EXPECT_FALSE(fleet.isFileOther()) << "nobody else was there";
        fleet.save(file, {}, {});
        EXPECT_TRUE(fleet.isSaved() && fleet.history().canUndo());
        EXPECT_EQ(readFleet(file).fleet.name, "New");
    }
    EXPECT_GT(failed, 3);
}
