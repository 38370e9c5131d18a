#pragma once

// A user's hands: real events of mouse and keyboard, which go where the screen sends them.

#include "ScreenReader.h"

#include <filesystem>
#include <string>

namespace fleetwright {

/// What a command prints that looks at the screen or acts on it.
std::string outputOf(const std::string& command);
/// Has xdotool act. Throws if it fails.
void xdotool(const std::string& arguments);

/// How the mouse is pressed.
inline constexpr const char* leftOnce = "1";
inline constexpr const char* leftTwice = "--repeat 2 --delay 10 1";
inline constexpr const char* leftTwiceAtOnce = "--repeat 2 --delay 0 1";
inline constexpr const char* rightOnce = "3";

/// Clicks on the middle of an element once it has come to rest, and takes the pointer out of the
/// way again, so that no tool tip comes up in front of the next thing.
void click(const Element& element, const char* how = leftOnce);
/// The same at once behind some keys, as no hand can.
void pressAndClick(const std::string& keys, const Element& element, const char* how);
void pointAt(const Element& element);
/// Drags what an element stands for onto another element.
void dragOnto(const Element& from, const Element& to);

/// Waits until the keyboard is a window's, for the program and for the window manager.
void waitForKeyboard(const std::string& title);
/// Presses keys, one after the other, by their names as X knows them, with blanks between.
void press(const std::string& keys);
void type(const std::string& text);
/// Has the window manager close a window once it has the keyboard.
void close(const std::string& title);
/// Types the path of a file into the dialog with this title, and takes it.
void chooseFile(const std::string& title, const std::filesystem::path& file);

}  // namespace fleetwright
