#include "FleetField.h"

#include "text.h"

#include <charconv>
#include <utility>

namespace fleetwright {

FleetField::FleetField(const FleetContext& window, TextBox& box, Rules rules)
    : m_window(window), m_box(box), m_rules(std::move(rules)) {
    box.onChange = [this] { change(); };
    box.onLostFocus = [this] { leave(); };
}

void FleetField::show() {
    const std::string now = m_rules.read();
    std::string shown = m_rules.about() + ' ' + now;
    const bool isNews = shown != m_shown;
    m_shown = std::move(shown);
    // What cannot stand there may be on its way to what can.
    const std::optional<std::string> typed = m_rules.held(m_box.text());
    if (!m_isTyped && typed != now && (typed || isNews)) {
        leave();
    }
}

/// Shows what the fleet holds, as it would write it.
void FleetField::leave() {
    const std::string text = m_rules.read();
    m_isShowing = true;
    m_box.setText(m_box.design().isMultiline ? linesForBox(text) : text);
    m_isShowing = false;
    m_isFaulty = false;
}

void FleetField::change() {
    if (m_isShowing) {
        return;
    }
    const std::optional<std::string> text = m_rules.held(m_box.text());
    const bool isFaulty = !text && !trimmed(m_box.text()).empty();  // an empty one is on its way
    if (isFaulty) {
        m_window.say(quote(m_box.text()) + " is no whole number from " +
                     std::to_string(m_rules.range.least) + " to " +
                     std::to_string(m_rules.range.most));
    } else if (m_isFaulty) {
        m_window.say("");
    }
    m_isFaulty = isFaulty;
    if (text && *text != m_rules.read()) {
        m_isTyped = true;
        m_window.act({m_rules.name, m_box.name() + ' ' + m_rules.about()},
                     [&](Fleet& fleet) { m_rules.write(fleet, *text); });
        m_isTyped = false;
    }
}

std::optional<std::string> numberText(std::string_view text, const NumberRange& range) {
    const std::string_view digits = trimmed(text);
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool isNumber = error == std::errc() && end == digits.data() + digits.size() &&
                          number >= range.least && number <= range.most;
    return isNumber ? std::optional(std::to_string(number)) : std::nullopt;
}

std::string linesIn(const std::string& text) {
    std::string lines = text;
    std::erase(lines, '\r');
    lines.erase(lines.find_last_not_of('\n') + 1);
    return lines;
}

std::string linesForBox(const std::string& text) {
    std::string lines;
    for (const char c : text) {
        lines += c == '\n' ? "\r\n" : std::string(1, c);
    }
    return lines;
}

}  // namespace fleetwright
