#include "clsMRUFiles.h"

#include "fakeServices.h"

#include <gtest/gtest.h>

#include <memory>

using namespace fleetwright;

namespace {

std::string all(const clsMRUFiles& list) {
    std::string text;
    for (std::int16_t i = 0; i <= list.MaxFiles() + 1; ++i) {
        text += list.getFile(i) + '.';
    }
    return text;
}

TEST(ClsMRUFiles, KeepsTheLastFiveAndMovesAKnownOneToTheTop) {
    MemorySettings store;
    store.values = {{"Files/File1", "a"}, {"Files/File2", "b"}};
    auto list = std::make_unique<clsMRUFiles>(store);
    EXPECT_EQ(all(*list), ".......");
    list->BaseName("FleetWright");
    list->BaseName("Other");
    EXPECT_EQ(list->BaseName(), "FleetWright");
    EXPECT_EQ(all(*list), ".a.b.....");
    list->addFile("a");
    list->addFile("A");
    EXPECT_EQ(all(*list), ".A.a.b....");
    list->addFile("b");
    EXPECT_EQ(all(*list), ".b.A.a....");
    for (const char* const file : {"c", "d", "e"}) {
        list->addFile(file);
    }
    EXPECT_EQ(all(*list), ".e.d.c.b.A..");
    list->addFile("c");
    EXPECT_EQ(all(*list), ".c.e.d.b.A..");
    EXPECT_EQ(store.values.at("Files/File1"), "a") << "written at the end only";
    list.reset();
    EXPECT_EQ(store.values.at("Files/File1") + store.values.at("Files/File5"), "cA");
}

TEST(ClsMRUFiles, IsClearedInTheStoreToo) {
    MemorySettings store;
    {
        clsMRUFiles nameless(store);
        nameless.addFile("x");
        nameless.clearList();
        EXPECT_EQ(nameless.getFile(1), "x");
    }
    EXPECT_TRUE(store.values.empty());
    clsMRUFiles list(store);
    list.BaseName("FleetWright");
    list.addFile("x");
    list.clearList();
    EXPECT_EQ(store.values.size(), 5U);
    EXPECT_EQ(all(list), ".......");

    list.addFile("y");
    store.isReadOnly = true;  // and its end goes without a word
    EXPECT_THROW(list.clearList(), FileError);
    EXPECT_EQ(list.getFile(1), "y");
}

}  // namespace
