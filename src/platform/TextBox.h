#pragma once

#include "PointedControl.h"

namespace fleetwright {

/// A text of one line. Its change event is raised whenever the text changes, whoever changed it.
class TextBox : public PointedControl {
public:
    TextBox(Container& container, ControlDesign design, Handler change = {})
        : PointedControl(&container, std::move(design)), onChange(std::move(change)) {}

    const std::string& text() const { return design().text; }

    void setText(const std::string& text) {
        if (text != design().text) {
            changeableDesign().text = text;
            Changed.raise();
            raise(onChange);
        }
    }

    bool isLocked() const { return design().isLocked; }

    void setLocked(bool isLocked) {
        if (isLocked != design().isLocked) {
            changeableDesign().isLocked = isLocked;
            Changed.raise();
        }
    }

    /// The user has made the text this.
    void type(const std::string& text) {
        if (takesActs() && !isLocked()) {
            setText(text);
        }
    }

    /// The keyboard's focus has gone elsewhere.
    void loseFocus() { raise(onLostFocus); }

    Handler onChange;
    Handler onLostFocus;
};

}  // namespace fleetwright
