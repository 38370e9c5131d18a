#pragma once

#include "Control.h"

namespace fleetwright {

/// A control that listens to the pointer: clicks, double-clicks, presses of its buttons, moves, and
/// what is dropped on it.
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

    /// The pointer has moved over it; `press.button` holds the bits of the buttons that are down.
    void moveMouse(const MousePress& press) {
        if (takesActs() && onMouseMove) {
            onMouseMove(press);
        }
    }

    void releaseMouse(const MousePress& press) {
        if (takesActs() && onMouseUp) {
            onMouseUp(press);
        }
    }

    /// The user has dropped a control of the same form on it.
    void drop(Control& source) {
        if (takesActs() && onDragDrop) {
            onDragDrop(source);
        }
    }

    Handler onClick;
    Handler onDblClick;
    std::function<void(const MousePress&)> onMouseDown;
    std::function<void(const MousePress&)> onMouseMove;
    std::function<void(const MousePress&)> onMouseUp;
    std::function<void(Control&)> onDragDrop;
};

}  // namespace fleetwright
