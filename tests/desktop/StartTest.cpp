// Starts that end before there is a main window.

#include "Hands.h"
#include "RunningProgram.h"
#include "ScreenReader.h"

using namespace fleetwright;

TEST(StartTest, BrokenCatalogueEndsTheStartWithOneMessageThatNamesFileAndLine) {
    RunningProgram program;
    const std::string file =
        program.folder().write("weaps.dat", "# One, two\n"
                                            "Gun,1,1,BEAM,NOWHERE,F,gun.gif\n");
    program.start();
    const Element box = waitForElement("a message", [] { return windowOnScreen("FleetWright"); });
    const std::string text = box.find("label", "")->name();
    EXPECT_EQ(text.rfind(file + ":2: ", 0), 0U) << text;
    EXPECT_NE(text.find("NOWHERE"), std::string::npos) << text;
    waitFor("the message to have the keyboard", [&] { return box.is(ATSPI_STATE_ACTIVE); });
    press({"Return"});
    EXPECT_EQ(program.waitForEnd(), 1);
}
