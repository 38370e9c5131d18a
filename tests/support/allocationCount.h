#pragma once

namespace fleetwright {

/// How many pieces of memory this program has asked for so far with `new`.
int allocationCount();

}  // namespace fleetwright
