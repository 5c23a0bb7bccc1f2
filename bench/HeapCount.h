#pragma once

#include <cstddef>

namespace zelvor::bench {

/// Allocations from the heap by C++ code of this process so far.
[[nodiscard]] std::size_t HeapAllocations();

} // namespace zelvor::bench
