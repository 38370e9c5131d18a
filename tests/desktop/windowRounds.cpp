// Acts at random on the program's windows with mouse and keyboard. Every few acts what is in front
// is closed and the design is saved; then the window has to show what the rules make of that file,
// and under its name. In a desktop session of its own:
//
//     in-session soak-window [SECONDS [SEED]]     300 and 1 if they are not said

#include "Dice.h"
#include "Hands.h"
#include "RunningProgram.h"
#include "Window.h"
#include "files.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <stdexcept>

using namespace fleetwright;

namespace {

const std::vector<std::string> keys = {
    "Escape", "Return", "Tab",  "shift+Tab", "space",  "Up",     "Down",   "Left",
    "Right",  "Home",   "End",  "Next",      "Prior",  "Delete", "F2",     "F10",
    "F1",     "F12",    "Menu", "BackSpace", "ctrl+n", "ctrl+l", "ctrl+s", "ctrl+a",
    "ctrl+p", "alt+f",  "a",    "7",         "minus",  "g",      "v"};

class WindowRounds {
public:
    explicit WindowRounds(std::uint64_t seed) : m_dice(seed) { start(); }

    /// Some acts, and a look at what has come of them.
    void run() {
        constexpr int actsToALook = 30;
        for (int acts = 0; acts < actsToALook && m_program.isRunning(); ++acts, ++m_acts) {
            act();
        }
        if (clearTheScreen()) {
            look();
        }
    }

    int acts() const { return m_acts; }
    int ends() const { return m_ends; }
    std::string trail() const {
        std::string all;
        for (const std::string& act : m_trail) {
            all += act + '\n';
        }
        return all;
    }

private:
    void start() {
        m_program.start();
        const MainWindow window;
    }

    /// The windows on the screen besides the main one.
    static std::vector<std::string> titles() {
        std::vector<std::string> found;
        for (const Element& window : windowsOnScreen()) {
            if (window.is(ATSPI_STATE_SHOWING) && window.name() != MainWindow::title) {
                found.push_back(window.name());
            }
        }
        return found;
    }

    void use(const std::string& arguments) {
        constexpr std::size_t longest = 60;
        m_trail.push_back(arguments);
        if (m_trail.size() > longest) {
            m_trail.pop_front();
        }
        outputOf("xdotool " + arguments);
    }

    std::string anywhereIn(const Rectangle& place) {
        return "mousemove " + std::to_string(place.left + m_dice.below(std::max(1, place.width))) +
               ' ' + std::to_string(place.top + m_dice.below(std::max(1, place.height))) + ' ';
    }

    void act() {
        if (m_dice.oneIn(4)) {
            use("key " + m_dice.pick(keys));
            return;
        }
        std::vector<Element> windows = windowsOnScreen();
        std::erase_if(windows, [](const Element& each) { return !each.is(ATSPI_STATE_SHOWING); });
        if (windows.empty()) {
            return;
        }
        const Element& window = m_dice.pick(windows);
        const Rectangle place = window.place();
        if (window.find("text", "File name:") && m_dice.oneIn(2)) {
            use("type --delay 1 '" + (m_program.folder().path() / anyFile()).string() + "\n'");
            return;
        }
        const std::string somewhere = anywhereIn(place);
        switch (m_dice.below(8)) {
        case 0:
            use(somewhere + "click 3");
            break;
        case 1:
            use(somewhere + "mousedown 1 " + anywhereIn(place) + anywhereIn(place) + "mouseup 1");
            break;
        case 2:
            use(somewhere + "click --repeat 3 " + (m_dice.oneIn(2) ? "4" : "5"));
            break;
        case 3:
        case 4:
            use(somewhere + "click --repeat 2 --delay 10 1");
            break;
        default:
            use(somewhere + "click 1");
        }
    }

    std::string anyFile() {
        const std::vector<std::string> files = {"ships/Provost.shp", "ships/new", "none.shp",
                                                "weaps.dat",         "ships",     "ssds/sheet"};
        return m_dice.pick(files);
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
                ++m_ends;
                start();
                return false;
            }
            const std::vector<std::string> others = titles();
            if (others.empty()) {
                outputOf("xdotool search --name '^" + std::string(MainWindow::title) +
                         "$' windowactivate --sync");
                return true;
            }
            // The window on top closes with one of these, or the one below it does.
            use("key Escape");
            for (const std::string& title : others) {
                use("search --name '^" + title + "$' windowactivate");
                if (activeTitle() != MainWindow::title) {
                    use("key alt+F4");
                }
            }
        }
        throw std::runtime_error("windows do not close:\n" + describeScreen());
    }

    void look() {
        const MainWindow window;
        const std::filesystem::path file =
            m_program.folder().path() / ("look" + std::to_string(m_looks++) + ".shp");
        window.choose("File", "Save As");  // the key may be that of an open name
        chooseFile("Save As", file);
        waitFor("the save", [&] { return std::filesystem::exists(file); });
        const std::string design = readTextFile(file);
        const bool isRefused = design.find("Cloaking Field") != std::string::npos &&
                               design.find("Type: Warship") == std::string::npos;
        if (!isRefused) {
            window.waitFor(expectedOf(file));
        }
        const std::string name = window.get("text", "Ship name").text();
        if (!design.starts_with("Ship Name: " + name + "\r\n")) {
            throw std::runtime_error("the name is \"" + name + "\" in front of\n" + design);
        }
    }

    Dice m_dice;
    RunningProgram m_program;
    std::deque<std::string> m_trail;
    int m_acts = 0;
    int m_looks = 0;
    int m_ends = 0;
};

}  // namespace

int main(int argc, char** argv) {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::seconds(argc > 1 ? std::atoi(argv[1]) : 300);
    const std::uint64_t seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
    WindowRounds rounds(seed);
    try {
        while (Clock::now() < end) {
            rounds.run();
        }
    } catch (const std::exception& error) {
        std::printf("%sseed %llu, act %d: %s\n", rounds.trail().c_str(),
                    static_cast<unsigned long long>(seed), rounds.acts(), error.what());
        return 1;
    }
    std::printf("%d acts, %d ends\n", rounds.acts(), rounds.ends());
    return 0;
}
