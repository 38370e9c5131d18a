#pragma once

// A user's hands: real events of mouse and keyboard, which go where the screen sends them.

#include "ScreenReader.h"

#include <filesystem>
#include <string>
#include <vector>

namespace fleetwright {

/// Pixels of the screen.
struct Point {
    int x;
    int y;
};

/// The place of an element that has come to rest: a window is still on its way when the program
/// shows it already.
Rectangle restingPlace(const Element& element);

/// Acts on the middle of an element. Clicks take the pointer out of the way again, so that no tool
/// tip comes up in front of the next thing.
void click(const Element& element);
void rightClick(const Element& element);
void doubleClick(const Element& element);
void pointAt(const Element& element);
/// Clicks on the button in a window's title that closes it.
void clickToClose(const std::string& title);
/// Moves with the left button held down, and lets it go when what was wanted has come about.
void drag(Point from, Point to, const std::string& what, const std::function<bool()>& isDone);
/// Drags what an element stands for onto another element.
void dragOnto(const Element& from, const Element& to);
/// What a command prints that looks at the screen or acts on it.
std::string outputOf(const std::string& command);
/// Waits until the keyboard is a window's, for the program and for the window manager.
void waitForKeyboard(const std::string& title);
/// Presses keys, one after the other, by their names as X knows them.
void press(const std::vector<std::string>& keys);
/// Types a text.
void type(const std::string& text);
/// Types the path of a file into the dialog with this title, and takes it.
void chooseFile(const std::string& title, const std::filesystem::path& file);

}  // namespace fleetwright
