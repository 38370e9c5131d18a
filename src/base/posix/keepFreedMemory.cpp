#include "keepFreedMemory.h"

#include <malloc.h>

namespace fleetwright {

void keepFreedMemory() {
    constexpr int ownPiecesFrom = 32 * 1024 * 1024;  // bytes; the most that may be said
    constexpr int mostFree = 256 * 1024 * 1024;
    mallopt(M_MMAP_THRESHOLD, ownPiecesFrom);
    mallopt(M_TRIM_THRESHOLD, mostFree);
}

}  // namespace fleetwright
