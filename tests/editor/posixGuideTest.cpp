// What can stand in the place of the guide on POSIX alone.

#include "testWindow.h"

#include <gtest/gtest.h>

using namespace fleetwright;

TEST(PosixGuide, IsMissingWhereItsFolderIsALinkToItself) {
    TestWindow test;
    std::filesystem::create_symlink("guide", test.folder().path() / "guide");
    test.window().load();
    test.window().guide.mnuGuide.choose();
    EXPECT_TRUE(test.window().sbStatus.text().starts_with("The guide is missing: "));
}
