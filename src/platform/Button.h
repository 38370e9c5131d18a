#pragma once

#include "Control.h"

namespace fleetwright {

/// A push button with a caption or a picture.
class Button : public Control {
public:
    Button(Container& container, ControlDesign design, Handler click)
        : Control(&container, std::move(design)), onClick(std::move(click)) {}

    /// The user has pressed it.
    void press() {
        if (takesActs()) {
            raise(onClick);
        }
    }

    Handler onClick;
};

}  // namespace fleetwright
