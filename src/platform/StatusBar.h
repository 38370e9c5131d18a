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

    void setText(const std::string& text) {
        if (text != design().text) {
            changeableDesign().text = text;
            Changed.raise();
        }
    }
};

}  // namespace fleetwright
