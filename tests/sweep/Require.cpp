// A promise that the exchanges break is a failure of the test.

#include "Require.h"

#include <gtest/gtest.h>

namespace zelvor::fuzz {

void Require(bool holds, std::string_view promise) {
    EXPECT_TRUE(holds) << "Broken promise: " << promise;
}

} // namespace zelvor::fuzz
