#pragma once

#include "Control.h"

namespace fleetwright {

/// Raises its event again and again while it runs.
class Timer : public Control {
public:
    /// `interval` in milliseconds.
    Timer(Container& container, const std::string& name, int interval, bool isRunning, Handler tick)
        : Control(&container, {.name = name, .isEnabled = isRunning}), onTick(std::move(tick)),
          m_interval(interval) {}

    int interval() const { return m_interval; }

    /// The interval has passed.
    void tick() {
        if (isEnabled()) {
            raise(onTick);
        }
    }

    Handler onTick;

private:
    int m_interval;
};

}  // namespace fleetwright
