#pragma once

#include "PointedControl.h"

namespace fleetwright {

/// The codes of keys in key events.
inline constexpr int EnterKey = 13, EscapeKey = 27;

/// Whether a key is to write something into a text or to take something of it away.
constexpr bool isTyping(int KeyAscii) {
    constexpr int backspace = 8;
    return KeyAscii >= ' ' || KeyAscii == backspace;
}

/// A text of one line, or of many, which then end in CR LF. Its change event is raised whenever the
/// text changes, whoever changed it.
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

    /// Empties it. An undo of the keyboard brings the text back.
    void clear() {
        if (!text().empty()) {
            changeableDesign().text.clear();
            Cleared.raise();
            raise(onChange);
        }
    }

    /// Adds to the end of the text, at the cost of what is added.
    void append(const std::string& text) {
        if (!text.empty()) {
            changeableDesign().text += text;
            Appended.raise(text);
            raise(onChange);
        }
    }

    /// The text has grown by this, and nothing else has changed. For whoever draws it.
    Signal<const std::string&> Appended;
    /// The same of what was cleared.
    Signal<> Cleared;

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

    /// The user has pressed a key; whether the form has dealt with it, so that the box does not.
    bool pressKey(int KeyAscii) { return takesActs() && onKeyPress && onKeyPress(KeyAscii); }

    /// The keyboard's focus has gone elsewhere.
    void loseFocus() { raise(onLostFocus); }

    Handler onChange;
    Handler onLostFocus;
    std::function<bool(int KeyAscii)> onKeyPress;
};

}  // namespace fleetwright
