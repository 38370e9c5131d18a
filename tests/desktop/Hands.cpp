#include "Hands.h"

#include "runCommand.h"

#include <algorithm>
#include <stdexcept>

namespace fleetwright {

namespace {

constexpr const char* outOfTheWay = " mousemove 0 0";

/// Moves to the middle of an element that has come to rest, or somewhere beside it: a window is
/// still on its way when the program shows it already.
std::string moveTo(const Element& element, int beside = 0) {
    AtspiRect place = {};
    waitFor("\"" + element.name() + "\" to have its place", [&] {
        const AtspiRect before = place;
        place = element.place();
        return place.x == before.x && place.y == before.y && place.width > 0 &&
               place.width == before.width && element.is(ATSPI_STATE_SHOWING);
    });
    return "mousemove " + std::to_string(place.x + place.width / 2 + beside) + ' ' +
           std::to_string(place.y + place.height / 2 + beside) + ' ';
}

/// How many windows there are for the screen, which counts a dragged picture as one.
auto windowCount() {
    const std::string windows = outputOf("xdotool search --onlyvisible --class FleetWright");
    return std::ranges::count(windows, '\n');
}

}  // namespace

std::string outputOf(const std::string& command) {
    return runCommand("(exec 2>/dev/null; " + command + ')').output;
}

void xdotool(const std::string& arguments) {
    if (const CommandResult result = runCommand("xdotool " + arguments); result.status != 0) {
        throw std::runtime_error("xdotool " + arguments + ": " + result.output);
    }
}

void click(const Element& element, const char* how) {
    xdotool(moveTo(element) + "click " + how + outOfTheWay);
}

void pressAndClick(const std::string& keys, const Element& element, const char* how) {
    const std::string there = moveTo(element);
    xdotool("key " + keys + ' ' + there + "click " + how + outOfTheWay);
}

void pointAt(const Element& element) {
    xdotool(moveTo(element, -1) + moveTo(element));
}

void dragOnto(const Element& from, const Element& to) {
    const std::string end = moveTo(to);
    const auto before = windowCount();
    constexpr int farEnough = 20;
    xdotool(moveTo(from) + "mousedown 1 " + moveTo(from, farEnough));
    waitFor("the picture of what is dragged", [&] { return windowCount() > before; });
    xdotool(end + "mouseup 1" + outOfTheWay);
    waitFor("that picture to go", [&] { return windowCount() == before; });
}

void waitForKeyboard(const std::string& title) {
    waitFor("\"" + title + "\" to have the keyboard", [&] {
        const auto window = windowOnScreen(title);
        return window && window->is(ATSPI_STATE_ACTIVE) &&
               outputOf("xdotool getactivewindow getwindowname") == title + '\n';
    });
}

void press(const std::string& keys) {
    xdotool("key " + keys);
}

void type(const std::string& text) {
    xdotool("type --delay 1 '" + text + '\'');
}

void close(const std::string& title) {
    waitForKeyboard(title);
    press("alt+F4");
}

void chooseFile(const std::string& title, const std::filesystem::path& file) {
    waitForKeyboard(title);
    type(file.string());
    waitFor("the path to stand in \"" + title + '"', [&] {
        const auto dialog = windowOnScreen(title);
        const auto box = dialog ? dialog->find("text", "File name:") : std::nullopt;
        return box && box->text() == file.string();
    });
    press("Return");
    waitFor('"' + title + "\" to go", [&] { return !windowOnScreen(title); });
}

}  // namespace fleetwright
