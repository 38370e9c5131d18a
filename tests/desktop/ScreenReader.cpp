#include "ScreenReader.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <thread>
#include <utility>

namespace fleetwright {

namespace {

/// Takes a text of the library over.
std::string taken(char* text) {
    const std::unique_ptr<char, void (*)(void*)> owned(text, g_free);
    return text == nullptr ? std::string() : std::string(text);
}

template <typename Kind>
std::unique_ptr<Kind, void (*)(gpointer)> takenObject(Kind* object) {
    return {object, g_object_unref};
}

void reachBus() {
    static const int started = [] {
        // In milliseconds. By default a program that is busy for longer than 800 seems to be gone.
        constexpr int longest = 60'000;
        atspi_set_timeout(longest, longest);
        return atspi_init();
    }();
    if (started > 1) {
        throw std::runtime_error("the accessibility bus cannot be reached");
    }
}

Element desktop() {
    reachBus();
    return Element(atspi_get_desktop(0));
}

/// Something comes to the screen or goes, has the keyboard or loses it, or is described anew.
constexpr const char* heardOf[] = {"object:state-changed:showing", "object:state-changed:focused",
                                   "object:property-change:accessible-description"};

void note(AtspiEvent* event, void* heard) {
    if (event->detail1 != 0 || std::string_view(event->type).starts_with("object:property")) {
        auto* const source = static_cast<AtspiAccessible*>(g_object_ref(event->source));
        static_cast<std::vector<Element>*>(heard)->emplace_back(source);
    }
    g_boxed_free(ATSPI_TYPE_EVENT, event);
}

/// Menus and trees hold many entries and nothing else, most elements nothing at all, and each
/// question takes its time.
bool mayHold(std::string_view whole, std::string_view part) {
    constexpr std::string_view leaves[] = {"check box",    "label",      "push button",
                                           "radio button", "table cell", "text"};
    if (std::ranges::find(leaves, whole) != std::end(leaves)) {
        return false;
    }
    return whole == "menu bar" ? part == "menu item"
           : whole == "tree"   ? part.starts_with("table")
                               : true;
}

void describe(const Element& element, const std::string& indent, std::string& text) {
    text += indent + element.role() + " \"" + element.name() + "\" holds \"" + element.text() +
            '"' + (element.is(ATSPI_STATE_SHOWING) ? "" : " hidden") +
            (element.is(ATSPI_STATE_ENABLED) ? "" : " disabled") +
            (element.is(ATSPI_STATE_FOCUSED) ? " focused" : "") +
            (element.is(ATSPI_STATE_SELECTED) ? " selected\n" : "\n");
    for (const Element& child : element.children()) {
        describe(child, indent + "  ", text);
    }
}

}  // namespace

Element::Element(AtspiAccessible* accessible) : m_accessible(accessible, g_object_unref) {}

std::string Element::role() const {
    const std::string role = taken(atspi_accessible_get_role_name(m_accessible.get(), nullptr));
    return role == "button" ? "push button" : role;  // as newer versions call it
}

std::string Element::name() const {
    return taken(atspi_accessible_get_name(m_accessible.get(), nullptr));
}

std::string Element::text() const {
    if (const auto text = takenObject(atspi_accessible_get_text_iface(m_accessible.get()))) {
        return taken(atspi_text_get_text(text.get(), 0, -1, nullptr));
    }
    if (const auto value = takenObject(atspi_accessible_get_value_iface(m_accessible.get()))) {
        GError* error = nullptr;
        const double number = atspi_value_get_current_value(value.get(), &error);
        if (error == nullptr) {
            return std::to_string(static_cast<int>(number));
        }
        g_error_free(error);
    }
    return {};
}

bool Element::is(AtspiStateType state) const {
    const auto states = takenObject(atspi_accessible_get_state_set(m_accessible.get()));
    return states != nullptr && atspi_state_set_contains(states.get(), state) != 0;
}

AtspiRect Element::place() const {
    const auto component = takenObject(atspi_accessible_get_component_iface(m_accessible.get()));
    if (component == nullptr) {
        return {};
    }
    const std::unique_ptr<AtspiRect, void (*)(gpointer)> rectangle(
        atspi_component_get_extents(component.get(), ATSPI_COORD_TYPE_SCREEN, nullptr), g_free);
    return rectangle == nullptr ? AtspiRect{} : *rectangle;
}

std::vector<Element> Element::children() const {
    std::vector<Element> all;
    const int count = atspi_accessible_get_child_count(m_accessible.get(), nullptr);
    for (int i = 0; i < count; ++i) {
        AtspiAccessible* const child =
            atspi_accessible_get_child_at_index(m_accessible.get(), i, nullptr);
        if (child != nullptr) {
            all.emplace_back(child);
        }
    }
    return all;
}

std::optional<Element> Element::find(std::string_view role,
                                     const std::function<bool(const Element&)>& isMeant) const {
    for (const Element& child : children()) {
        const std::string kind = child.role();
        if (kind == role && isMeant(child)) {
            return child;
        }
        if (mayHold(kind, role)) {
            if (std::optional<Element> found = child.find(role, isMeant)) {
                return found;
            }
        }
    }
    return std::nullopt;
}

std::optional<Element> Element::find(std::string_view role, std::string_view name) const {
    return find(role, [&](const Element& each) { return each.name() == name; });
}

Announcements::Announcements() : m_listener(atspi_event_listener_new(note, &m_heard, nullptr)) {
    reachBus();
    for (const char* const each : heardOf) {
        atspi_event_listener_register(m_listener, each, nullptr);
    }
}

Announcements::~Announcements() {
    for (const char* const each : heardOf) {
        atspi_event_listener_deregister(m_listener, each, nullptr);
    }
    g_object_unref(m_listener);
}

void Announcements::waitFor(const std::string& text, const std::string& role) {
    fleetwright::waitFor(role + " \"" + text + "\" to be said", [&] {
        while (g_main_context_iteration(nullptr, FALSE) != 0) {
        }
        // More may be heard while these are asked.
        const std::vector<Element> heard = std::exchange(m_heard, {});
        const auto found = std::ranges::find_if(
            heard, [&](const Element& each) { return each.role() == role && each.name() == text; });
        if (found == heard.end()) {
            return false;
        }
        m_heard.insert(m_heard.begin(), found + 1, heard.end());
        return true;
    });
}

std::vector<Element> windowsOnScreen() {
    std::vector<Element> all;
    for (const Element& program : desktop().children()) {
        for (const Element& window : program.children()) {
            all.push_back(window);
        }
    }
    return all;
}

std::optional<Element> windowOnScreen(std::string_view title) {
    for (const Element& window : windowsOnScreen()) {
        if (window.name() == title && window.is(ATSPI_STATE_SHOWING)) {
            return window;
        }
    }
    return std::nullopt;
}

std::string describeScreen() {
    std::string text;
    describe(desktop(), "", text);
    return text;
}

void waitFor(const std::string& what, const std::function<bool()>& holds) {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::minutes(1);
    while (!holds()) {
        if (Clock::now() > end) {
            throw std::runtime_error("waited in vain: " + what + "\n\nOn the screen:\n" +
                                     describeScreen());
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

Element waitForElement(const std::string& what,
                       const std::function<std::optional<Element>()>& find) {
    std::optional<Element> found;
    waitFor(what, [&] { return (found = find()).has_value(); });
    return *found;
}

}  // namespace fleetwright
