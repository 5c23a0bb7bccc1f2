#include "support/AllocationCount.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> count{0};

} // namespace

// The arrays' operators come to these.
void* operator new(std::size_t size) {
    count.fetch_add(1, std::memory_order_relaxed);
    if (void* memory = std::malloc(size != 0 ? size : 1)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}

namespace zelvor::testing {

std::size_t AllocationCount() {
    return count.load(std::memory_order_relaxed);
}

} // namespace zelvor::testing
