// Acts at random on the program's windows with mouse and keyboard. Every few acts what is in front
// is closed and the design is saved; then the window has to show what the rules make of that file,
// and under its name. Only for those who have the time: FLEETWRIGHT_SOAK in the environment is how
// many seconds it takes.

#include "Choices.h"
#include "DesktopTest.h"
#include "forSeeds.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>

using namespace fleetwright;

namespace {

const std::vector<std::string> keys = {
    "Escape", "Return", "Tab",  "shift+Tab", "space",  "Up",     "Down",   "Left",
    "Right",  "Home",   "End",  "Next",      "Prior",  "Delete", "F2",     "F10",
    "F1",     "F12",    "Menu", "BackSpace", "ctrl+n", "ctrl+l", "ctrl+s", "ctrl+a",
    "ctrl+p", "alt+f",  "a",    "7",         "minus",  "g",      "v"};
const std::vector<std::string> files = {"ships/Provost.shp", "ships/new", "none.shp",
                                        "weaps.dat",         "ships",     "ssds/sheet"};
/// What the mouse does at one place; "AND" is another place in the same window.
const std::vector<std::string> mouseActs = {"click 1",
                                            "click 1",
                                            "click --repeat 2 --delay 10 1",
                                            "click --repeat 3 4",
                                            "click 3",
                                            "click --repeat 3 5",
                                            "mousedown 1 AND AND mouseup 1"};

class AnyActsTest : public DesktopTest {
protected:
    static std::vector<Element> windows() {
        std::vector<Element> found = windowsOnScreen();
        std::erase_if(found, [](const Element& each) { return !each.is(ATSPI_STATE_SHOWING); });
        return found;
    }

    /// What fails does so because a window has just gone.
    void use(const std::string& arguments) {
        trail += arguments + '\n';
        outputOf("xdotool " + arguments);
    }

    void act(Choices& choices) {
        const std::vector<Element> reachable = windows();
        if (reachable.empty() || choices.oneIn(4)) {
            return use("key " + choices.pick(keys));
        }
        const Element& element = choices.pick(reachable);
        if (element.find("text", "File name:") && choices.oneIn(2)) {
            return use("type --delay 1 '" + path(choices.pick(files)).string() + "\n'");
        }
        std::string arguments = "AND" + choices.pick(mouseActs);
        const Rectangle place = element.place();
        for (std::size_t at = 0; (at = arguments.find("AND")) != std::string::npos;) {
            const int x = place.left + choices.below(std::max(1, place.width));
            const int y = place.top + choices.below(std::max(1, place.height));
            arguments.replace(at, 3,
                              "mousemove " + std::to_string(x) + ' ' + std::to_string(y) + ' ');
        }
        use(arguments);
    }

    /// Closes what is in front of the main window; false if the program has ended, which it has to
    /// do well.
    bool clearTheScreen() {
        use("mouseup 1 key Escape key Escape key Escape");
        for (int tries = 0; program.isRunning(); ++tries) {
            const std::vector<Element> open = windows();
            const auto other = std::ranges::find_if(
                open, [](const Element& each) { return each.name() != MainWindow::title; });
            use("search --name '^" + (other == open.end() ? MainWindow::title : other->name()) +
                "$' windowactivate");
            if (other == open.end() && !open.empty() && open.front().is(ATSPI_STATE_ACTIVE)) {
                return true;
            }
            // The window on top closes with one of these, or the one below it does.
            use("key Escape");
            if (activeTitle() != MainWindow::title) {
                use("key alt+F4");
            }
            constexpr int mostTries = 40;
            if (tries == mostTries) {
                throw std::runtime_error("windows do not close:\n" + describeScreen());
            }
        }
        EXPECT_EQ(program.waitForEnd(), 0);
        return false;
    }

    void look() {
        const std::string name = "look" + std::to_string(looks++) + ".shp";
        window->choose("File", "Save As");  // the key may be that of an open name
        chooseFile("Save As", path(name));
        waitForFile(name, "FTL: ");
        const std::string saved = program.folder().read(name);
        const bool isRefused = saved.find("Cloaking Field") != std::string::npos &&
                               saved.find("Type: Warship") == std::string::npos;
        if (!isRefused) {
            window->waitFor(expectedOf(path(name)));
        }
        const std::string shown = window->get("text", "Ship name").text();
        EXPECT_TRUE(saved.starts_with("Ship Name: " + shown + "\r\n")) << shown << ":\n" << saved;
    }

    std::string trail;  ///< what was done since the last look
    int looks = 0;
};

}  // namespace

TEST_F(AnyActsTest, LeaveTheWindowInOrder) {
    const char* const seconds = std::getenv("FLEETWRIGHT_SOAK");
    if (seconds == nullptr) {
        GTEST_SKIP();
    }
    forSeeds([&](std::mt19937& random) {
        using Clock = std::chrono::steady_clock;
        const auto end = Clock::now() + std::chrono::seconds(std::atoi(seconds)) / 2;
        Dice dice(random());
        while (Clock::now() < end && !HasFailure()) {
            if (!program.isRunning()) {
                start();
            }
            trail.clear();
            for (int acts = 0; acts < 30 && program.isRunning(); ++acts) {
                act(dice);
            }
            try {
                if (clearTheScreen()) {
                    look();
                }
            } catch (const std::exception& error) {
                ADD_FAILURE() << trail << error.what();
            }
        }
    });
    EXPECT_TRUE(program.isRunning() || program.waitForEnd() == 0);
}
