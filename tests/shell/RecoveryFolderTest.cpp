#include "RecoveryFolder.h"

#include "TemporaryFolder.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

namespace fs = std::filesystem;

class Recovery : public testing::Test {
protected:
    RecoveryFolder open(const std::string& mark) {
        return RecoveryFolder(temporary.path() / "recovered",
                              {mark, [this](const std::string& other) { return other == running; }},
                              [this] { return "t" + std::to_string(++time); });
    }

    std::string files() {
        std::vector<std::string> names;
        for (const auto& design : RecoveryFolder::list(temporary.path() / "recovered")) {
            names.push_back(design.file.filename().string());
        }
        std::sort(names.begin(), names.end());
        std::string text;
        for (const std::string& name : names) {
            text += name + ' ';
        }
        return text;
    }

    TemporaryFolder temporary;
    std::string running;
    int time = 0;
};

TEST_F(Recovery, FindsWhatACrashHasLeftAndLeavesARunningProgramAlone) {
    RecoveryFolder crashed = open("11");
    crashed.put("Wasp", "one");
    crashed.put("Wasp", "two");
    RecoveryFolder other = open("12");
    other.put("Bee", "three");
    running = "12";
    RecoveryFolder next = open("13");
    next.put("Ant", "four");
    const auto found = next.keepLeftBehind();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].name, "Wasp t1");
    EXPECT_EQ(found[0].file.filename(), "Wasp t1.shp");
    EXPECT_EQ(temporary.read("recovered/Wasp t1.shp"), "two");
    EXPECT_EQ(files(), "Ant t3.shp~13 Bee t2.shp~12 Wasp t1.shp ");
    EXPECT_TRUE(next.keepLeftBehind().empty());
    next.forget();
    other.keep();
    EXPECT_EQ(files(), "Bee t2.shp Wasp t1.shp ");
}

TEST_F(Recovery, TakesAnyNameAndKeepsTheLastTen) {
    RecoveryFolder folder = open("1");
    folder.put("../a:b\n", "x");
    folder.put("", "y");
    EXPECT_EQ(files(), "Unnamed t2.shp~1 ") << "a new name is a new file, and the old one goes";
    folder.forget();
    const auto now = fs::file_time_type::clock::now();
    for (int i = 0; i < 12; ++i) {
        folder.put("../" + std::string(300, 'n'), "x");
        folder.keep();
        for (const auto& design : RecoveryFolder::list(temporary.path() / "recovered")) {
            if (design.name.ends_with(" t" + std::to_string(time))) {
                fs::last_write_time(design.file, now - std::chrono::seconds(100 - i));
            }
        }
    }
    const auto designs = RecoveryFolder::list(temporary.path() / "recovered");
    EXPECT_EQ(designs.size(), RecoveryFolder::mostKept);
    EXPECT_TRUE(designs.front().name.ends_with(" t14"));
    EXPECT_TRUE(designs.back().name.ends_with(" t5"));

    std::string longest;  // in bytes: file systems count those
    for (int i = 0; i < 60; ++i) {
        longest += "\U0001F680";
    }
    open("1234567-4294967295").put(longest, "x");
}

TEST_F(Recovery, NeverWritesOverADesignThatIsKept) {
    RecoveryFolder folder = open("1");
    for (int i = 0; i < 2; ++i) {
        time = 6;
        folder.put("Wasp", "x");
        folder.keep();
    }
    EXPECT_EQ(files(), "Wasp t7 (2).shp Wasp t7.shp ");
}

}  // namespace
