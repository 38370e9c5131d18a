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

}  // namespace fleetwright
