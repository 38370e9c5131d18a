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

    /// Starts it, or makes the interval begin anew.
    void restart() {
        setEnabled(true);
        Restarted.raise();
    }

    /// The interval has passed. A tick that comes while the last one is still being dealt with,
    /// because that has opened a message box, is left out.
    void tick() {
        if (isEnabled() && !m_isTicking) {
            m_isTicking = true;
            raise(onTick);
            m_isTicking = false;
        }
    }

    Handler onTick;

    /// For whoever runs it.
    Signal<> Restarted;

private:
    int m_interval;
    bool m_isTicking = false;
};

}  // namespace fleetwright
