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
    /// Clicks on the icon once it has come to rest in the tray.
    static void clickIcon() {
        waitFor("the icon alone", [] { return !isInTaskList() && !onScreen().empty(); });
        const std::string icon = "search --onlyvisible --class FleetWright ";
        std::string place;
        waitFor("the icon to come to rest in the tray", [&] {
            const std::string before = place;
            place = outputOf("xdotool " + icon + "getwindowgeometry");
            return place == before && place.find("22x24") != std::string::npos;
        });
        xdotool(icon + "mousemove --window %1 11 11 click 1 mousemove 0 0");
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
    clickIcon();
    expectUsable("4");
    outputOf("kill " + tray);
}
