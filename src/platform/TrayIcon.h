#pragma once

#include "Control.h"

namespace fleetwright {

/// An icon of the window in the desktop's tray, off at first.
class TrayIcon : public Control {
public:
    struct Handlers {
        Handler leftClick;
        Handler rightClick;
    };

    TrayIcon(Container& container, ControlDesign design, Handlers handlers)
        : Control(&container, std::move(design)), onLeftClick(std::move(handlers.leftClick)),
          onRightClick(std::move(handlers.rightClick)) {}

    bool isOn() const { return design().isOn; }

    void setOn(bool isOn) {
        if (isOn != design().isOn) {
            changeableDesign().isOn = isOn;
            Changed.raise();
        }
    }

    /// Whether the desktop has a tray just now.
    bool isAvailable() const { return askAvailable && askAvailable(); }

    /// Asks the desktop. Set by whoever draws it.
    std::function<bool()> askAvailable;

    Handler onLeftClick;
    Handler onRightClick;
};

}  // namespace fleetwright
