// Starts that end before there is a main window.

#include "Hands.h"
#include "RunningProgram.h"
#include "ScreenReader.h"

#include <gtest/gtest.h>

using namespace fleetwright;

TEST(StartTest, BrokenCatalogueEndsTheStartWithOneMessageThatNamesFileAndLine) {
    RunningProgram program;
    const std::string file =
        program.folder().write("weaps.dat", "# One, two\n"
                                            "Gun,1,1,BEAM,NOWHERE,F,gun.gif\n");
    program.start();
    waitForKeyboard("FleetWright");
    const std::string text = windowOnScreen("FleetWright")->find("label", "")->name();
    EXPECT_EQ(text.rfind(file + ":2: ", 0), 0U) << text;
    EXPECT_NE(text.find("NOWHERE"), std::string::npos) << text;
    press({"Return"});
    EXPECT_EQ(program.waitForEnd(), 1);
}
