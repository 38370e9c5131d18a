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

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    ++g_allocations;
    return std::malloc(size);
}

void* operator new(std::size_t size) {
    if (void* const memory = operator new(size, std::nothrow)) {
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
