#include "allocationCount.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<int> g_allocations = 0;

}  // namespace

int fleetwright::allocationCount() {
    return g_allocations;
}

void* operator new(std::size_t size) {
    ++g_allocations;
    if (void* const memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
