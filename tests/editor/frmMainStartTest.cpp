// The main window before anything is done.

#include "testWindow.h"

#include "caseFile.h"
#include "formTexts.h"

#include <gtest/gtest.h>

using namespace fleetwright;

TEST(FrmMain, IsLaidOutAsItIs) {
    TestWindow test;
    test.window().show();
    expectCases("editor/golden/layout.txt", [&](const Case&) { return layoutOf(test.window()); });
}

TEST(FrmMain, WithoutACatalogueSaysSoAndEnds) {
    TestWindow test;
    std::filesystem::remove(test.folder().path() / "weaps.dat");
    EXPECT_THROW(test.window().load(), EndOfProgram);
    EXPECT_EQ(test.takeLog(), "box: Error Creating Ship Object; ");
    EXPECT_FALSE(test.window().g_bLoaded);
}
