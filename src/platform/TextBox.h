#pragma once

#include "Control.h"

namespace fleetwright {

/// A text of one line. Its change event is raised whenever the text changes, whoever changed it.
class TextBox : public Control {
public:
    TextBox(Container& container, ControlDesign design, Handler change = {})
        : Control(&container, std::move(design)), onChange(std::move(change)) {}

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

    void pressMouse(const MousePress& press) {
        if (takesActs() && onMouseDown) {
            onMouseDown(press);
        }
    }

    void doubleClick() {
        if (takesActs()) {
            raise(onDblClick);
        }
    }

    /// The keyboard's focus has gone elsewhere.
    void loseFocus() { raise(onLostFocus); }

    Handler onChange;
    Handler onDblClick;
    Handler onLostFocus;
    std::function<void(const MousePress&)> onMouseDown;
};

}  // namespace fleetwright
