#include "Window.h"

#include "Hands.h"

namespace fleetwright {

Window::Window(std::string title) : m_title(std::move(title)) {
    waitUntilActive();
}

Element Window::window() const {
    return waitForElement(m_title, [this] { return windowOnScreen(m_title); });
}

Element Window::get(const std::string& role, const std::string& name) const {
    return waitForElement(role + " \"" + name + '"', [&] { return window().find(role, name); });
}

void Window::click(const std::string& role, const std::string& name) const {
    waitUntilActive();
    fleetwright::click(get(role, name));
}

void Window::waitUntilActive() const {
    waitForKeyboard(m_title);
}

void Window::waitUntilGone() const {
    waitFor('"' + m_title + "\" to go", [this] { return !windowOnScreen(m_title); });
}

void Window::tabTo(const std::string& role, const std::string& name) const {
    const auto isThere = [&] { return get(role, name).is(ATSPI_STATE_FOCUSED); };
    constexpr int mostStops = 60;
    for (int i = 0; i < mostStops && !isThere(); ++i) {
        press({"Tab"});
    }
    waitFor("the keyboard to come to \"" + name + '"', isThere);
}

}  // namespace fleetwright
