#pragma once

#include "Control.h"

#include <utility>

namespace fleetwright {

/// Keys that call a handler of a form which has no menu to show them in. Tool tips tell of them.
class Shortcut : public Control {
public:
    Shortcut(Container& container, ControlDesign design, Handler press)
        : Control(&container, std::move(design)), onPress(std::move(press)) {}

    /// The user has pressed them.
    void press() {
        if (takesActs()) {
            raise(onPress);
        }
    }

    Handler onPress;
};

}  // namespace fleetwright
