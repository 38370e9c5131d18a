#pragma once

#include <cstdint>

namespace fleetwright {

/// Time as the rules know it.
class Clock {
public:
    virtual ~Clock() = default;

    /// Milliseconds since the machine was started, as a signed number that comes round.
    virtual std::int32_t tickCount() = 0;
    /// Waits. Windows go on painting and answering meanwhile.
    virtual void sleep(int milliseconds) = 0;
};

/// Milliseconds from one count of a clock to a later one; it may have come round between them.
constexpr std::uint32_t ticksBetween(std::int32_t before, std::int32_t now) {
    return static_cast<std::uint32_t>(now) - static_cast<std::uint32_t>(before);
}

}  // namespace fleetwright
