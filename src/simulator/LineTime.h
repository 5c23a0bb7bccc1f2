#pragma once

#include <chrono>
#include <cstdint>
#include <ratio>

namespace zelvor {

/// Time on the programming cable, counted from any fixed moment. The unit divides both a nanosecond (3) and a bit of
/// 9600 baud (312500), so sums of byte times never drift.
using LineTime = std::chrono::duration<std::int64_t, std::ratio<1, 3'000'000'000>>;

/// One bit at 9600 baud.
using LineBits = std::chrono::duration<std::int64_t, std::ratio<1, 9600>>;

/// A byte on a line of 9600 baud: start bit, 8 data bits, 2 stop bits.
inline constexpr LineTime ByteTime = LineBits(11);

} // namespace zelvor
