#pragma once

#include "Control.h"

#include <algorithm>

namespace fleetwright {

/// A pair of arrows. It has a position of its own, which stops at its ends; the clicks do not.
class UpDown : public Control {
public:
    struct Handlers {
        Handler upClick;
        Handler downClick;
        Handler change;
    };

    UpDown(Container& container, ControlDesign design, Handlers handlers)
        : Control(&container, std::move(design)), m_handlers(std::move(handlers)) {}

    /// The user has pressed the upper arrow.
    void pressUp() { press(+1, m_handlers.upClick); }
    /// The user has pressed the lower arrow.
    void pressDown() { press(-1, m_handlers.downClick); }

    int position() const { return m_position; }

private:
    static constexpr int lowest = 0, highest = 10;

    void press(int step, const Handler& click) {
        if (!takesActs()) {
            return;
        }
        const int position = std::clamp(m_position + step, lowest, highest);
        if (position != m_position) {
            m_position = position;
            raise(m_handlers.change);
        }
        raise(click);
    }

    Handlers m_handlers;
    int m_position = lowest;
};

}  // namespace fleetwright
