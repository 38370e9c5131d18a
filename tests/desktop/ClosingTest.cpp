// Closing the main window.

#include "Hands.h"
#include "MainWindow.h"
#include "RunningProgram.h"

#include <gtest/gtest.h>

using namespace fleetwright;

TEST(ClosingTest, UnsavedShipIsAskedAboutAndNoKeepsIt) {
    RunningProgram program;
    program.start();
    const MainWindow window;
    window.click("check box", "Thrust 4");
    window.waitFor({.thrust = 4});
    clickToClose(MainWindow::title);
    Window(MainWindow::notSaved).get("label", "Ship not saved, continue with exit?");
    Window(MainWindow::notSaved).click("push button", "No");
    window.click("check box", "Thrust 5");
    window.waitFor({.thrust = 5});
    clickToClose(MainWindow::title);
    waitForKeyboard(MainWindow::notSaved);
    press({"Escape"});  // the same as No
    clickToClose(MainWindow::title);
    Window(MainWindow::notSaved).click("push button", "Yes");
    EXPECT_EQ(program.waitForEnd(), 0);
}
