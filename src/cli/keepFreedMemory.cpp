#include "keepFreedMemory.h"

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif
#if __has_include(<sys/mman.h>)
#include <sys/mman.h>
#include <unistd.h>
#endif

#include <cstdint>
#include <cstdlib>

namespace fleetwright {

namespace {

constexpr int mebibyte = 1024 * 1024;

/// Lets the heap grow at once by the memory of a sheet, in large pages where there are some.
void fetchLargePages() {
#if defined(M_TOP_PAD) && defined(MADV_HUGEPAGE)
    constexpr int sheetMemory = 16 * mebibyte;
    constexpr std::uintptr_t page = 4096;
    mallopt(M_TOP_PAD, sheetMemory);
    void* volatile growth = std::malloc(mebibyte);  // volatile, so that it is not left out
    std::free(growth);
    mallopt(M_TOP_PAD, mebibyte);  // from here on it grows by what is needed
    char* const end = static_cast<char*>(sbrk(0));
    madvise(end - reinterpret_cast<std::uintptr_t>(end) % page - sheetMemory, sheetMemory,
            MADV_HUGEPAGE);
#endif
}

}  // namespace

void keepFreedMemory() {
#if defined(M_MMAP_THRESHOLD) && defined(M_TRIM_THRESHOLD)
    mallopt(M_MMAP_THRESHOLD, 32 * mebibyte);
    mallopt(M_TRIM_THRESHOLD, 256 * mebibyte);
    fetchLargePages();
#endif
}

}  // namespace fleetwright
