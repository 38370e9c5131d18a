#pragma once

#include "Control.h"

namespace fleetwright {

/// A control that listens to the pointer: clicks, double-clicks and presses of its buttons.
class PointedControl : public Control {
public:
    using Control::Control;

    /// The user has clicked on it.
    void click() {
        if (takesActs()) {
            raise(onClick);
        }
    }

    void doubleClick() {
        if (takesActs()) {
            raise(onDblClick);
        }
    }

    void pressMouse(const MousePress& press) {
        if (takesActs() && onMouseDown) {
            onMouseDown(press);
        }
    }

    Handler onClick;
    Handler onDblClick;
    std::function<void(const MousePress&)> onMouseDown;
};

}  // namespace fleetwright
