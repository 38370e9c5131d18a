#pragma once

#include "Control.h"

namespace fleetwright {

/// A box that is ticked or not, or a button that stays down when it is pressed.
class CheckBox : public Control {
public:
    CheckBox(Container& container, ControlDesign design, Handler click = {})
        : Control(&container, std::move(design)), onClick(std::move(click)) {}

    const std::string& caption() const { return design().caption; }
    bool isTicked() const { return design().isOn; }

    /// Ticks it or takes the tick away. Its click is raised when that changes it.
    void setTicked(bool isTicked) {
        if (isTicked != design().isOn) {
            changeableDesign().isOn = isTicked;
            Changed.raise();
            raise(onClick);
        }
    }

    /// The user has pressed it.
    void press() {
        if (takesActs()) {
            setTicked(!isTicked());
        }
    }

    Handler onClick;
};

}  // namespace fleetwright
