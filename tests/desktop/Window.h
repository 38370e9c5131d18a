#pragma once

#include "ScreenReader.h"

#include <string>

namespace fleetwright {

/// A window of the program, by its title.
class Window {
public:
    /// Waits for the window, and for the keyboard to be its own.
    explicit Window(std::string title);

    /// Something in the window; waits for it.
    Element get(const std::string& role, const std::string& name) const;
    /// Clicks on something in the window once the keyboard is the window's: as long as a dialog is
    /// about to go, clicks on the window behind it are lost.
    void click(const std::string& role, const std::string& name) const;
    /// Waits for the keyboard to be the window's again.
    void waitUntilActive() const;
    void waitUntilGone() const;
    /// Moves the keyboard to an element, with the keyboard.
    void tabTo(const std::string& role, const std::string& name) const;

protected:
    Element window() const;

private:
    std::string m_title;
};

}  // namespace fleetwright
