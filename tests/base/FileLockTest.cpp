#include "FileLock.h"

#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <thread>

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
    // One that waits has it when the other one ends.
    std::optional<FileLock> first(folder.path());
    std::thread later([&first] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        first.reset();
    });
    EXPECT_TRUE(FileLock(folder.path(), FileLock::IfTaken::Wait).isHeld());
    later.join();
    const FileLock none(folder.path() / "none");
    EXPECT_TRUE(none.isLost() && !none.isHeld() && !none.isWithOthers());
}
