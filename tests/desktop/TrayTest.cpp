// The window minimized, with and without a tray for its icon.

#include "DesktopTest.h"

using namespace fleetwright;

namespace {

/// All that can be seen of the program, by the numbers of the windows, a line each.
std::string onScreen() {
    return outputOf("xdotool search --onlyvisible --class FleetWright");
}

bool isInTaskList() {
    return outputOf("for window in $(xprop -root _NET_CLIENT_LIST | grep -o '0x[0-9a-f]*'); do "
                    "xdotool getwindowname $window; done")
               .find(MainWindow::title) != std::string::npos;
}

class TrayTest : public DesktopTest {
protected:
    void minimize() {
        main = outputOf("xdotool getactivewindow");
        xdotool("getactivewindow windowminimize");
        waitFor("the window to go from the screen",
                [this] { return onScreen().find(main) == std::string::npos; });
    }
    /// Clicks on the icon with a button of the mouse; the number of the icon's window.
    static std::string clickIcon(const std::string& button) {
        waitFor("the icon alone", [] { return !isInTaskList() && !onScreen().empty(); });
        const std::string icon = "search --onlyvisible --class FleetWright ";
        std::string place;
        waitFor("the icon to come to rest in the tray", [&] {
            const std::string before = place;
            place = outputOf("xdotool " + icon + "getwindowgeometry");
            return place == before && place.find("22x24") != std::string::npos;
        });
        const std::string number = onScreen();
        xdotool(icon + "mousemove --window %1 11 11 click " + button + " mousemove 0 0");
        return number.substr(0, number.find('\n'));
    }
    /// Chooses the first entry of the icon's menu.
    static void restoreByMenu() {
        const std::string icon = clickIcon("3");
        std::string menu;
        waitFor("the icon's menu", [&] {
            menu = outputOf("xdotool search --onlyvisible --class FleetWright | grep -vxF " + icon);
            return !menu.empty();
        });
        xdotool("mousemove --window " + menu.substr(0, menu.find('\n')) +
                " 20 12 click 1 mousemove 0 0");
    }
    /// The window is there, with the keyboard, and does what it is told.
    void expectUsable(const std::string& thrust) {
        waitFor("the window to come back alone", [this] { return onScreen() == main; });
        window->waitUntilActive();
        EXPECT_TRUE(isInTaskList());
        setThrust(thrust);
    }

    std::string main;  ///< the number of the window
};

}  // namespace

TEST_F(TrayTest, WindowComesBackFromTheTaskListOrFromItsIcon) {
    start();
    minimize();
    EXPECT_TRUE(isInTaskList());
    xdotool("windowactivate " + main.substr(0, main.find('\n')));
    expectUsable("3");

    const std::string tray =
        outputOf("trayer --edge bottom --widthtype request >/dev/null & echo $!");
    waitFor("the tray", [] { return !outputOf("xdotool search --class Trayer").empty(); });
    minimize();
    clickIcon("1");
    expectUsable("4");
    minimize();
    restoreByMenu();
    expectUsable("5");
    outputOf("kill " + tray);
}
