#include "FileLock.h"

#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <optional>

using namespace fleetwright;

TEST(FileLock, IsHeldByOneUntilItEnds) {
    const TemporaryFolder folder;
    for (const auto& path : {folder.path(), std::filesystem::path(folder.write("file", ""))}) {
        std::optional<FileLock> first(path);
        EXPECT_TRUE(first->isHeld() && !first->isLost());
        const FileLock second(path);
        EXPECT_TRUE(!second.isHeld() && second.isWithOthers() && second.isLost());
        first.reset();
        EXPECT_TRUE(FileLock(path).isHeld());
    }
    const FileLock none(folder.path() / "none");
    EXPECT_TRUE(none.isLost() && !none.isHeld() && !none.isWithOthers());
}
