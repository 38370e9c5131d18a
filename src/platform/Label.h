#pragma once

#include "Control.h"

namespace fleetwright {

/// A text that the user cannot change.
class Label : public Control {
public:
    Label(Container& container, ControlDesign design) : Control(&container, std::move(design)) {}

    const std::string& caption() const { return design().caption; }

    void setCaption(const std::string& caption) {
        if (caption != design().caption) {
            changeableDesign().caption = caption;
            Changed.raise();
        }
    }

    void setAlarming(bool isAlarming) {
        if (isAlarming != design().isAlarming) {
            changeableDesign().isAlarming = isAlarming;
            Changed.raise();
        }
    }
};

}  // namespace fleetwright
