#pragma once

#include "Control.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace fleetwright {

/// A text that is typed in or taken from a list that drops down.
class ComboBox : public Control {
public:
    ComboBox(Container& container, ControlDesign design) : Control(&container, std::move(design)) {}

    const std::string& text() const { return design().text; }
    /// The entries of the list, in the order in which they were added.
    const std::vector<std::string>& items() const { return m_items; }

    void setText(const std::string& text) {
        if (text != design().text) {
            changeableDesign().text = text;
            Changed.raise();
        }
    }

    void addItem(const std::string& text) {
        m_items.push_back(text);
        Changed.raise();
    }

    /// Empties list and text.
    void clear() {
        m_items.clear();
        changeableDesign().text.clear();
        Changed.raise();
    }

    /// The user has typed this text.
    void type(const std::string& text) {
        if (takesActs()) {
            setText(text);
        }
    }

    /// The user has pressed the Enter key.
    void pressEnter() {
        if (takesActs()) {
            raise(onEnter);
        }
    }

    /// The user has taken an entry of the list.
    void choose(std::size_t item) {
        if (takesActs() && item < m_items.size()) {
            setText(m_items[item]);
        }
    }

    Handler onEnter;

private:
    std::vector<std::string> m_items;
};

}  // namespace fleetwright
