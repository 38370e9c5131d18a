#include "keepFreedMemory.h"

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

namespace fleetwright {

void keepFreedMemory() {
#if defined(M_MMAP_THRESHOLD) && defined(M_TRIM_THRESHOLD)
    constexpr int mebibyte = 1024 * 1024;
    mallopt(M_MMAP_THRESHOLD, 32 * mebibyte);
    mallopt(M_TRIM_THRESHOLD, 256 * mebibyte);
#endif
}

}  // namespace fleetwright
