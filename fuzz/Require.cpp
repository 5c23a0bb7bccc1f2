#include "Require.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>

namespace zelvor::fuzz {

namespace {

/// The fakes complain as tests do; here a complaint ends the program.
[[maybe_unused]] const bool FakesAreStrict = []() noexcept {
    GTEST_FLAG_SET(throw_on_failure, true);
    return true;
}();

} // namespace

void Require(bool holds, std::string_view promise) {
    if (!holds) {
        std::cerr << "Broken promise: " << promise << std::endl;
        std::abort();
    }
}

} // namespace zelvor::fuzz
