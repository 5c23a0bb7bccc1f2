#pragma once

#include <cstddef>

namespace zelvor::testing {

/// How often the C++ code of this program has taken memory from the heap so far.
[[nodiscard]] std::size_t AllocationCount();

} // namespace zelvor::testing
