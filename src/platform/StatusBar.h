#pragma once

#include "Control.h"

namespace fleetwright {

/// A line at the lower edge of a window, as wide as that: one panel of text.
class StatusBar : public Control {
public:
    StatusBar(Container& container, ControlDesign design) : Control(&container, std::move(design)) {
        setPlace({0, container.place().height - height, container.place().width, height});
    }

    static constexpr int height = 315;  ///< twips

    const std::string& text() const { return design().text; }

    /// Shows a text, and has screen readers say it.
    void setText(const std::string& text) {
        if (show(text) && !text.empty()) {
            Said.raise();
        }
    }

    /// The same in a window that has the line only while it has a text.
    void showOnlyWith(const std::string& text) {
        setVisible(!text.empty());
        setText(text);
    }
    /// The room that it takes at the lower edge of its window, in twips.
    int roomTaken() const { return isVisible() ? height : 0; }

    /// Takes a text away, if it still stands there.
    void takeBack(const std::string& text) {
        if (design().text == text) {
            setText("");
        }
    }

    /// Takes away what has stood there since the last call; `last` holds it from one to the next.
    void wipe(std::string& last) {
        takeBack(last);
        last = design().text;
    }

    /// Shows a text that who cannot see it hears otherwise, or has heard.
    void setTextQuietly(const std::string& text) { show(text); }

    /// Has screen readers say what is to be seen elsewhere in the window, and shows nothing. Of
    /// what follows each other closely only the last is said.
    void tell(const std::string& text) { Told.raise(text); }

    /// For whoever draws it: the text is to be said, or this one.
    Signal<> Said;
    Signal<const std::string&> Told;

private:
    bool show(const std::string& text) {
        const bool isOther = text != design().text;
        if (isOther) {
            changeableDesign().text = text;
            Changed.raise();
        }
        return isOther;
    }
};

}  // namespace fleetwright
