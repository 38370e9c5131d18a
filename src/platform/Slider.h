#pragma once

#include "Control.h"

#include <algorithm>
#include <cstdint>

namespace fleetwright {

/// A value between two ends, with a change event.
class Slider : public Control {
public:
    Slider(Container& container, ControlDesign design, Handler change)
        : Control(&container, std::move(design)), onChange(std::move(change)) {}

    std::int32_t min() const { return m_min; }
    std::int32_t max() const { return m_max; }
    std::int32_t value() const { return m_value; }
    /// Distance between two marks, and the step of the page keys.
    std::int32_t tickFrequency() const { return m_tickFrequency; }
    std::int32_t largeChange() const { return m_largeChange; }

    void setRange(std::int32_t min, std::int32_t max) {
        m_min = min;
        m_max = max;
        Changed.raise();
    }

    void setValue(std::int32_t value) {
        const std::int32_t held = std::clamp(value, m_min, m_max);
        if (held != m_value) {
            m_value = held;
            Changed.raise();
            raise(onChange);
        }
    }

    void setSteps(std::int32_t tickFrequency, std::int32_t largeChange) {
        m_tickFrequency = tickFrequency;
        m_largeChange = largeChange;
        Changed.raise();
    }

    /// The user has drawn it to this value.
    void slide(std::int32_t value) {
        if (takesActs()) {
            setValue(value);
        }
    }

    Handler onChange;

private:
    std::int32_t m_min = 0;
    std::int32_t m_max = 10;
    std::int32_t m_value = 0;
    std::int32_t m_tickFrequency = 1;
    std::int32_t m_largeChange = 1;
};

}  // namespace fleetwright
