#pragma once

#include <algorithm>
#include <array>

namespace fleetwright {

/// How large a window is shown, in percent of its actual size, and in steps.
class Zoom {
public:
    static constexpr std::array<int, 10> steps = {75, 90, 100, 110, 125, 150, 175, 200, 250, 300};
    static constexpr int actual = 100;

    /// The nearest step that is not above this, or the smallest one.
    explicit constexpr Zoom(int percent = actual) {
        for (const int step : steps) {
            m_percent = step <= percent ? step : m_percent;
        }
    }

    constexpr int percent() const { return m_percent; }
    /// The next step; the last one stays.
    constexpr Zoom larger() const {
        const auto* const next = std::ranges::upper_bound(steps, m_percent);
        return Zoom(next == steps.end() ? m_percent : *next);
    }
    /// The step before; the first one stays.
    constexpr Zoom smaller() const { return Zoom(m_percent - 1); }

    bool operator==(const Zoom&) const = default;

private:
    int m_percent = steps.front();
};

}  // namespace fleetwright
