#pragma once

#include "Clock.h"

namespace fleetwright {

/// The clock of the running Qt application.
class QtClock : public Clock {
public:
    std::int32_t tickCount() override;
    void sleep(int milliseconds) override;
};

}  // namespace fleetwright
