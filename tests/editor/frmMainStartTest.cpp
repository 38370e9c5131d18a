// The main window before anything is done.

#include "testWindow.h"

#include "caseFile.h"
#include "formTexts.h"
#include "frmAmountSlider.h"

#include <gtest/gtest.h>

#include <string>

using namespace fleetwright;

TEST(FrmMain, AndItsOtherWindowsAreLaidOutAsTheyAre) {
    TestWindow test;
    test.window().show();
    test.fleet().show();
    expectCases("editor/golden/layout.txt", [&](const Case& each) {
        if (!each["fleet"].empty()) {
            test.fleet().resize(std::stoi(each["fleet"]), std::stoi(each["fleet"]));
            return layoutOf(test.fleet());
        }
        const std::string& window = each["window"];
        return window == "findings"  ? layoutOf(test.window().findings.list)
               : window == "compare" ? layoutOf(test.window().compare.beside)
               : window == "amount"  ? layoutOf(frmAmountSlider())
                                     : layoutOf(test.window());
    });
}

TEST(FrmMain, WithoutACatalogueSaysSoAndEnds) {
    TestWindow test;
    std::filesystem::remove(test.folder().path() / "weaps.dat");
    EXPECT_THROW(test.window().load(), EndOfProgram);
    EXPECT_EQ(test.takeLog(), "box: Error Creating Ship Object; ");
    EXPECT_FALSE(test.window().g_bLoaded);
}
