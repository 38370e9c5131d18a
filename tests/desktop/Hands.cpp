#include "Hands.h"

#include <cstdlib>
#include <stdexcept>

namespace fleetwright {

namespace {

void xdotool(const std::string& arguments) {
    if (std::system(("xdotool " + arguments).c_str()) != 0) {
        throw std::runtime_error("xdotool " + arguments + " has failed");
    }
}

std::string moveTo(int x, int y) {
    return "mousemove " + std::to_string(x) + ' ' + std::to_string(y) + ' ';
}

constexpr const char* outOfTheWay = " mousemove 0 0";

/// The middle of an element that has come to rest: a window is still on its way when the program
/// shows it already.
Point middleOf(const Element& element) {
    Rectangle place;
    waitFor("\"" + element.name() + "\" to have its place", [&] {
        const Rectangle before = place;
        place = element.place();
        return place == before && place.width > 0 && element.is(ATSPI_STATE_SHOWING);
    });
    return {place.left + place.width / 2, place.top + place.height / 2};
}

std::string moveTo(const Element& element) {
    const Point middle = middleOf(element);
    return moveTo(middle.x, middle.y);
}

}  // namespace

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

void drag(Point from, Point to) {
    xdotool(moveTo(from.x, from.y) + "mousedown 1 " +
            moveTo((from.x + to.x) / 2, (from.y + to.y) / 2) + moveTo(to.x, to.y) + "mouseup 1" +
            outOfTheWay);
}

void press(const std::vector<std::string>& keys) {
    std::string arguments = "key";
    for (const std::string& key : keys) {
        arguments += ' ' + key;
    }
    xdotool(arguments);
}

}  // namespace fleetwright
