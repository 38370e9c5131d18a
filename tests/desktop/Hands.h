#pragma once

// A user's hands: real events of mouse and keyboard, which go where the screen sends them.

#include "ScreenReader.h"

#include <string>
#include <vector>

namespace fleetwright {

/// Pixels of the screen.
struct Point {
    int x;
    int y;
};

/// Acts on the middle of an element. Clicks take the pointer out of the way again, so that no tool
/// tip comes up in front of the next thing.
void click(const Element& element);
void rightClick(const Element& element);
void doubleClick(const Element& element);
void pointAt(const Element& element);
/// Moves with the left button held down.
void drag(Point from, Point to);
/// Presses keys, one after the other: "Return", "alt+F4".
void press(const std::vector<std::string>& keys);

}  // namespace fleetwright
