#include "RecoveryFolder.h"

#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <regex>

using namespace fleetwright;

namespace {

namespace fs = std::filesystem;

class Recovery : public testing::Test {
protected:
    RecoveryFolder open() {
        return RecoveryFolder(place, [this] { return "t" + std::to_string(++time); });
    }

    /// Names of the designs, with MARK for a run's mark.
    std::string files() {
        std::vector<std::string> names;
        for (const auto& design : RecoveryFolder::list(place)) {
            names.push_back(std::regex_replace(design.file.filename().string(),
                                               std::regex("~[0-9]+$"), "~MARK"));
        }
        std::sort(names.begin(), names.end());
        std::string text;
        for (const std::string& name : names) {
            text += name + ' ';
        }
        return text;
    }

    std::ptrdiff_t entries() { return std::distance(fs::directory_iterator(place), {}); }

    TemporaryFolder temporary;
    fs::path place = temporary.path() / "recovered";
    int time = 0;
};

TEST_F(Recovery, FindsWhatACrashHasLeftAndLeavesARunningProgramAlone) {
    temporary.write("recovered/12.lock", "");  // of a run that has left nothing else
    {
        RecoveryFolder crashed = open();
        crashed.put("Wasp", "one");
        crashed.put("Wasp", "two");
    }
    RecoveryFolder other = open();
    other.put("Bee", "three");
    RecoveryFolder next = open();
    const auto found = next.keepLeftBehind();
    next.put("Ant", "four");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].name, "Wasp t1");
    EXPECT_EQ(found[0].file.filename(), "Wasp t1.shp");
    EXPECT_EQ(temporary.read("recovered/Wasp t1.shp"), "two");
    EXPECT_EQ(files(), "Ant t3.shp~MARK Bee t2.shp~MARK Wasp t1.shp ");
    EXPECT_EQ(entries(), 5) << "three designs, and the locks of two runs";
    EXPECT_TRUE(next.keepLeftBehind().empty());
    next.forget();
    other.keep();
    EXPECT_EQ(files(), "Bee t2.shp Wasp t1.shp ");
}

TEST_F(Recovery, TakesAnyNameAndKeepsTheLastTen) {
    RecoveryFolder folder = open();
    folder.put("../a:b\n", "x");
    folder.put("", "y");
    EXPECT_EQ(files(), "Unnamed t2.shp~MARK ") << "a new name is a new file, and the old one goes";
    folder.forget();
    const auto now = fs::file_time_type::clock::now();
    for (int i = 0; i < 12; ++i) {
        folder.put("../" + std::string(300, 'n'), "x");
        folder.keep();
        for (const auto& design : RecoveryFolder::list(place)) {
            if (design.name.ends_with(" t" + std::to_string(time))) {
                fs::last_write_time(design.file, now - std::chrono::seconds(100 - i));
            }
        }
    }
    const auto designs = RecoveryFolder::list(place);
    EXPECT_EQ(designs.size(), RecoveryFolder::mostKept);
    EXPECT_TRUE(designs.front().name.ends_with(" t14"));
    EXPECT_TRUE(designs.back().name.ends_with(" t5"));

    std::string longest;  // in bytes: file systems count those
    for (int i = 0; i < 60; ++i) {
        longest += "\U0001F680";
    }
    folder.put(longest, "x");
}

TEST_F(Recovery, NeverWritesOverADesignThatIsKept) {
    RecoveryFolder folder = open();
    for (int i = 0; i < 2; ++i) {
        time = 6;
        folder.put("Wasp", "x");
        folder.keep();
    }
    EXPECT_EQ(files(), "Wasp t7 (2).shp Wasp t7.shp ");
}

}  // namespace
