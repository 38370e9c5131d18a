#include "keepFreedMemory.h"

namespace fleetwright {

// The heap of this system keeps what is freed as it thinks best.
void keepFreedMemory() {}

}  // namespace fleetwright
