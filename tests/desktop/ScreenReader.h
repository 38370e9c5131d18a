#pragma once

// What is on the screen, read over the accessibility bus as a screen reader does it. Every look-up
// asks the program anew; nothing is remembered.

#include <atspi/atspi.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// One thing on the screen. It may be gone by the time that it is asked; its texts are empty then.
class Element {
public:
    explicit Element(AtspiAccessible* accessible);  ///< takes the reference over

    std::string role() const;
    std::string name() const;
    /// What it holds: the text of a text box, the number of a slider.
    std::string text() const;
    bool is(AtspiStateType state) const;
    AtspiRect place() const;  ///< in pixels of the screen
    std::vector<Element> children() const;
    /// The first element inside this one with such a role, and of which this is true or which has
    /// this name.
    std::optional<Element> find(std::string_view role,
                                const std::function<bool(const Element&)>& isMeant) const;
    std::optional<Element> find(std::string_view role, std::string_view name) const;

private:
    std::shared_ptr<AtspiAccessible> m_accessible;
};

/// What programs tell screen readers without being asked, from the moment on that somebody listens:
/// what has come to the screen, what has the keyboard now, and what is described anew.
class Announcements {
public:
    Announcements();
    Announcements(const Announcements&) = delete;
    Announcements& operator=(const Announcements&) = delete;
    ~Announcements();

    /// Waits until this has been said, or something else with such a role and this name.
    void waitFor(const std::string& text, const std::string& role = "notification");

private:
    std::vector<Element> m_heard;
    AtspiEventListener* m_listener;
};

/// All windows of all programs.
std::vector<Element> windowsOnScreen();
std::optional<Element> windowOnScreen(std::string_view title);

/// Everything on the screen, a line for each element, to be looked at.
std::string describeScreen();

/// Waits until a condition holds; a minute at the most, then it throws and says what is on the
/// screen.
void waitFor(const std::string& what, const std::function<bool()>& holds);

/// Waits for an element to appear.
Element waitForElement(const std::string& what,
                       const std::function<std::optional<Element>()>& find);

}  // namespace fleetwright
