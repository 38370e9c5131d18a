// Closing the main window.

#include "Hands.h"
#include "MainWindow.h"
#include "RunningProgram.h"

using namespace fleetwright;

namespace {

constexpr const char* question = "Ship not saved!";

Element theQuestion() {
    const Element box = waitForElement("the question", [] { return windowOnScreen(question); });
    waitFor("the question to have the keyboard", [&] { return box.is(ATSPI_STATE_ACTIVE); });
    return box;
}

}  // namespace

TEST(ClosingTest, UnsavedShipIsAskedAboutAndNoKeepsIt) {
    RunningProgram program;
    program.start();
    const MainWindow window;
    click(window.get("check box", "Thrust 4"));
    window.waitFor({.thrust = 4});
    press({"alt+F4"});
    EXPECT_TRUE(theQuestion().find("label", "Ship not saved, continue with exit?"));
    click(*theQuestion().find("push button", "No"));
    waitFor("the question to go", [] { return !windowOnScreen(question); });
    window.waitUntilActive();
    click(window.get("check box", "Thrust 5"));
    window.waitFor({.thrust = 5});
    press({"alt+F4"});
    theQuestion();
    press({"Escape"});  // the same as No
    waitFor("the question to go", [] { return !windowOnScreen(question); });
    window.waitUntilActive();
    press({"alt+F4"});
    click(*theQuestion().find("push button", "Yes"));
    EXPECT_EQ(program.waitForEnd(), 0);
}
