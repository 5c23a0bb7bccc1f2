#pragma once

#include <string_view>

namespace zelvor::fuzz {

/// Ends the program where a promise does not hold: the fuzzer keeps the input then.
void Require(bool holds, std::string_view promise);

} // namespace zelvor::fuzz
