#include "Hands.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace fleetwright {

namespace {

void xdotool(const std::string& arguments) {
    if (std::system(("xdotool " + arguments).c_str()) != 0) {
        throw std::runtime_error("xdotool " + arguments + " has failed");
    }
}

/// The title of the window that the window manager gives the keyboard to.
std::string activeTitle() {
    const std::string title = outputOf("xdotool getactivewindow getwindowname");
    return title.substr(0, title.find('\n'));
}

/// How many windows there are for the screen, which counts a dragged picture as one.
auto windowCount() {
    const std::string windows = outputOf("xdotool search --onlyvisible --class FleetWright");
    return std::count(windows.begin(), windows.end(), '\n');
}

std::string moveTo(int x, int y) {
    return "mousemove " + std::to_string(x) + ' ' + std::to_string(y) + ' ';
}

constexpr const char* outOfTheWay = " mousemove 0 0";

Point middleOf(const Element& element) {
    const Rectangle place = restingPlace(element);
    return {place.left + place.width / 2, place.top + place.height / 2};
}

std::string moveTo(const Element& element) {
    const Point middle = middleOf(element);
    return moveTo(middle.x, middle.y);
}

}  // namespace

std::string outputOf(const std::string& command) {
    std::FILE* const pipe = popen((command + " 2>/dev/null").c_str(), "r");
    char buffer[2000] = {};
    const std::size_t count = std::fread(buffer, 1, sizeof buffer, pipe);
    pclose(pipe);
    return {buffer, count};
}

Rectangle restingPlace(const Element& element) {
    Rectangle place;
    waitFor("\"" + element.name() + "\" to have its place", [&] {
        const Rectangle before = place;
        place = element.place();
        return place == before && place.width > 0 && element.is(ATSPI_STATE_SHOWING);
    });
    return place;
}

void click(const Element& element) {
    xdotool(moveTo(element) + "click 1" + outOfTheWay);
}

void rightClick(const Element& element) {
    xdotool(moveTo(element) + "click 3" + outOfTheWay);
}

void doubleClick(const Element& element) {
    xdotool(moveTo(element) + "click --repeat 2 --delay 10 1" + outOfTheWay);
}

void pointAt(const Element& element) {
    const Point middle = middleOf(element);
    xdotool(moveTo(middle.x - 1, middle.y) + moveTo(middle.x, middle.y));
}

void clickToClose(const std::string& title) {
    waitForKeyboard(title);
    const Rectangle window = restingPlace(*windowOnScreen(title));
    // The title is the window manager's, which puts this button into its right end.
    constexpr int fromRight = 9, above = 10;
    xdotool(moveTo(window.left + window.width - fromRight, window.top - above) + "click 1" +
            outOfTheWay);
}

void drag(Point from, Point to, const std::string& what, const std::function<bool()>& isDone) {
    xdotool(moveTo(from.x, from.y) + "mousedown 1 " + moveTo(to.x, to.y));
    waitFor(what, isDone);
    xdotool(std::string("mouseup 1") + outOfTheWay);
}

void dragOnto(const Element& from, const Element& to) {
    const Point start = middleOf(from), end = middleOf(to);
    const auto before = windowCount();
    constexpr int farEnough = 20;
    xdotool(moveTo(start.x, start.y) + "mousedown 1 " +
            moveTo(start.x + farEnough, start.y + farEnough));
    waitFor("the picture of what is dragged", [&] { return windowCount() > before; });
    xdotool(moveTo(end.x, end.y) + "mouseup 1" + outOfTheWay);
    waitFor("that picture to go", [&] { return windowCount() == before; });
}

void waitForKeyboard(const std::string& title) {
    waitFor("\"" + title + "\" to have the keyboard", [&] {
        const auto window = windowOnScreen(title);
        return window && window->is(ATSPI_STATE_ACTIVE) && activeTitle() == title;
    });
}

void press(const std::vector<std::string>& keys) {
    std::string arguments = "key";
    for (const std::string& key : keys) {
        arguments += ' ' + key;
    }
    xdotool(arguments);
}

void type(const std::string& text) {
    xdotool("type --delay 1 '" + text + '\'');
}

void chooseFile(const std::string& title, const std::filesystem::path& file) {
    waitForKeyboard(title);
    type(file.string());
    waitFor("the path to stand in \"" + title + '"', [&] {
        const auto dialog = windowOnScreen(title);
        const auto box = dialog ? dialog->find("text", "File name:") : std::nullopt;
        return box && box->text() == file.string();
    });
    press({"Return"});
    waitFor('"' + title + "\" to go", [&] { return !windowOnScreen(title); });
}

}  // namespace fleetwright
