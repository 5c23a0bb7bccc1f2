#pragma once

#include <cstddef>

namespace zelvor::testing {

/// How often this program has taken memory from the heap.
[[nodiscard]] std::size_t AllocationCount();

} // namespace zelvor::testing
