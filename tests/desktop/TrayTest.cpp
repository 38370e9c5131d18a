// The window minimized, with and without a tray for its icon.

#include "Hands.h"
#include "MainWindow.h"
#include "RunningProgram.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

using namespace fleetwright;

namespace {

/// A tray at the lower edge of the screen.
class Tray {
public:
    Tray() : m_process(fork()) {
        if (m_process == 0) {
            execlp("trayer", "trayer", "--edge", "bottom", "--widthtype", "request", nullptr);
            _exit(126);
        }
        waitFor("the tray", [] { return !outputOf("xdotool search --class Trayer").empty(); });
    }
    Tray(const Tray&) = delete;
    Tray& operator=(const Tray&) = delete;
    ~Tray() {
        kill(m_process, SIGTERM);
        waitpid(m_process, nullptr, 0);
    }

private:
    pid_t m_process;
};

/// All that can be seen of the program, by the numbers of the windows.
std::string onScreen() {
    return outputOf("xdotool search --onlyvisible --class FleetWright");
}

bool isInTaskList() {
    const std::string titles =
        outputOf("for window in $(xprop -root _NET_CLIENT_LIST | grep -o '0x[0-9a-f]*'); do "
                 "xdotool getwindowname $window; done");
    return titles.find(MainWindow::title) != std::string::npos;
}

class TrayTest : public testing::Test {
protected:
    void start() {
        program.start();
        window.emplace();
    }
    void minimize() {
        main = outputOf("xdotool getactivewindow");
        outputOf("xdotool getactivewindow windowminimize");
        waitFor("the window to go from the screen",
                [this] { return onScreen().find(main) == std::string::npos; });
    }
    /// Clicks on the icon with a button of the mouse; the number of the icon's window.
    static std::string clickIcon(int button) {
        waitFor("the icon alone", [] { return !isInTaskList() && !onScreen().empty(); });
        std::string place;
        waitFor("the icon to come to rest in the tray", [&place] {
            const std::string before = place;
            place = outputOf("xdotool search --onlyvisible --class FleetWright getwindowgeometry");
            return place == before && place.find("22x24") != std::string::npos;
        });
        std::string icon = onScreen();
        icon.erase(icon.find('\n'));
        outputOf("xdotool search --onlyvisible --class FleetWright mousemove --window %1 11 11 "
                 "click " +
                 std::to_string(button) + " mousemove 0 0");
        return icon;
    }
    /// Chooses the first entry of the icon's menu.
    static void restoreByMenu() {
        const std::string icon = clickIcon(3);
        std::string menu;
        waitFor("the icon's menu", [&] {
            menu = outputOf("xdotool search --onlyvisible --class FleetWright | grep -vxF " + icon);
            return !menu.empty();
        });
        outputOf("xdotool mousemove --window " + menu.substr(0, menu.find('\n')) +
                 " 20 12 click 1 mousemove 0 0");
    }
    /// The window is there, with the keyboard, and does what it is told.
    void expectUsable(int thrust) {
        waitFor("the window to come back",
                [this] { return onScreen().find(main) != std::string::npos; });
        window->waitUntilActive();
        EXPECT_TRUE(isInTaskList());
        window->click("check box", "Thrust " + std::to_string(thrust));
        window->waitFor(Design{.thrust = thrust});
    }

    RunningProgram program;
    std::optional<MainWindow> window;
    std::string main;  ///< the number of the window
};

}  // namespace

TEST_F(TrayTest, IconBringsTheWindowBack) {
    const Tray tray;
    start();
    for (int thrust = 3; thrust <= 5; ++thrust) {
        minimize();
        if (thrust == 4) {
            restoreByMenu();
        } else {
            clickIcon(1);
        }
        waitFor("the icon to go", [this] { return onScreen() == main; });
        expectUsable(thrust);
    }
}

TEST_F(TrayTest, WithoutATrayTheWindowStaysInTheTaskList) {
    start();
    minimize();
    EXPECT_TRUE(isInTaskList());
    outputOf("xdotool windowactivate " + main.substr(0, main.find('\n')));
    expectUsable(3);
}
