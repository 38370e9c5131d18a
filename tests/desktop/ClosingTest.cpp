// Closing the main window.

#include "Hands.h"
#include "MainWindow.h"
#include "RunningProgram.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

constexpr const char* question = "Ship not saved!";

Element theQuestion() {
    waitForKeyboard(question);
    return *windowOnScreen(question);
}

}  // namespace

TEST(ClosingTest, UnsavedShipIsAskedAboutAndNoKeepsIt) {
    RunningProgram program;
    program.start();
    const MainWindow window;
    click(window.get("check box", "Thrust 4"));
    window.waitFor({.thrust = 4});
    clickToClose(MainWindow::title);
    EXPECT_TRUE(theQuestion().find("label", "Ship not saved, continue with exit?"));
    click(*theQuestion().find("push button", "No"));
    waitFor("the question to go", [] { return !windowOnScreen(question); });
    window.waitUntilActive();
    click(window.get("check box", "Thrust 5"));
    window.waitFor({.thrust = 5});
    clickToClose(MainWindow::title);
    theQuestion();
    press({"Escape"});  // the same as No
    waitFor("the question to go", [] { return !windowOnScreen(question); });
    clickToClose(MainWindow::title);
    click(*theQuestion().find("push button", "Yes"));
    EXPECT_EQ(program.waitForEnd(), 0);
}
