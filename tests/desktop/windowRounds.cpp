// Acts at random on the program's windows with mouse and keyboard. Every few acts what is in front
// is closed and the design is saved; then the window has to show what the rules make of that file,
// and under its name. In a desktop session of its own:
//
//     in-session soak-window [SECONDS [SEED]]     300 and 1 if they are not said

#include "Choices.h"
#include "Hands.h"
#include "RunningProgram.h"
#include "Window.h"
#include "files.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

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

class WindowRounds {
public:
    explicit WindowRounds(std::uint64_t seed) : m_dice(seed) { start(); }

    /// Some acts, and a look at what has come of them.
    void run() {
        constexpr int actsToALook = 30;
        trail.clear();
        for (int acts = 0; acts < actsToALook && m_program.isRunning(); ++acts) {
            act();
        }
        if (clearTheScreen()) {
            look();
        }
    }

    std::string trail;  ///< what was done since the last look

private:
    void start() {
        m_program.start();
        const MainWindow window;
    }

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

    std::string anywhereIn(const Rectangle& place) {
        return "mousemove " + std::to_string(place.left + m_dice.below(std::max(1, place.width))) +
               ' ' + std::to_string(place.top + m_dice.below(std::max(1, place.height))) + ' ';
    }

    void act() {
        const std::vector<Element> reachable = windows();
        if (reachable.empty() || m_dice.oneIn(4)) {
            return use("key " + m_dice.pick(keys));
        }
        const Element& window = m_dice.pick(reachable);
        const Rectangle place = window.place();
        if (window.find("text", "File name:") && m_dice.oneIn(2)) {
            const std::string file = m_program.folder().path() / m_dice.pick(files);
            return use("type --delay 1 '" + file + "\n'");
        }
        std::string arguments = anywhereIn(place) + m_dice.pick(mouseActs);
        for (std::size_t at = 0; (at = arguments.find("AND")) != std::string::npos;) {
            arguments.replace(at, 3, anywhereIn(place));
        }
        use(arguments);
    }

    /// Closes what is in front of the main window; false if the program has ended, which it has to
    /// do well, and is started anew.
    bool clearTheScreen() {
        use("mouseup 1 key Escape key Escape key Escape");
        constexpr int mostWindows = 40;
        for (int i = 0; i < mostWindows; ++i) {
            if (!m_program.isRunning()) {
                if (const int status = m_program.waitForEnd(); status != 0) {
                    throw std::runtime_error("ended with status " + std::to_string(status));
                }
                start();
                return false;
            }
            const std::vector<Element> open = windows();
            const auto other = std::ranges::find_if(
                open, [](const Element& each) { return each.name() != MainWindow::title; });
            use("search --name '^" + (other == open.end() ? MainWindow::title : other->name()) +
                "$' windowactivate");
            if (other == open.end()) {
                return true;
            }
            // The window on top closes with one of these, or the one below it does.
            use("key Escape");
            if (activeTitle() != MainWindow::title) {
                use("key alt+F4");
            }
        }
        throw std::runtime_error("windows do not close:\n" + describeScreen());
    }

    void look() {
        const MainWindow window;
        const std::string name = "look" + std::to_string(m_looks++) + ".shp";
        const std::filesystem::path file = m_program.folder().path() / name;
        window.choose("File", "Save As");  // the key may be that of an open name
        chooseFile("Save As", file);
        waitFor("the save", [&] { return std::filesystem::exists(file); });
        const std::string design = m_program.folder().read(name);
        const bool isRefused = design.find("Cloaking Field") != std::string::npos &&
                               design.find("Type: Warship") == std::string::npos;
        if (!isRefused) {
            window.waitFor(expectedOf(file));
        }
        const std::string shown = window.get("text", "Ship name").text();
        if (!design.starts_with("Ship Name: " + shown + "\r\n")) {
            throw std::runtime_error("the name is \"" + shown + "\" in front of\n" + design);
        }
    }

    Dice m_dice;
    RunningProgram m_program;
    int m_looks = 0;
};

}  // namespace

int main(int argc, char** argv) {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::seconds(argc > 1 ? std::atoi(argv[1]) : 300);
    const char* const seed = argc > 2 ? argv[2] : "1";
    WindowRounds rounds(std::strtoull(seed, nullptr, 10));
    int count = 0;
    try {
        for (; Clock::now() < end; ++count) {
            rounds.run();
        }
    } catch (const std::exception& error) {
        std::printf("%sseed %s, round %d: %s\n", rounds.trail.c_str(), seed, count, error.what());
        return 1;
    }
    std::printf("%d rounds\n", count);
    return 0;
}
