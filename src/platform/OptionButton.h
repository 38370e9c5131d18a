#pragma once

#include "Control.h"

namespace fleetwright {

/// One of several choices: of the option buttons in one container at most one is on.
class OptionButton : public Control {
public:
    OptionButton(Container& container, ControlDesign design, Handler click)
        : Control(&container, std::move(design)), onClick(std::move(click)) {}

    bool isOn() const { return design().isOn; }

    /// Sets it on. If it was off, its siblings go out and its click is raised.
    void setOn();

    /// The user has chosen it.
    void choose() {
        if (takesActs()) {
            setOn();
        }
    }

    Handler onClick;
};

}  // namespace fleetwright
