#pragma once

#include <string_view>

#include "text/Language.h"

namespace zelvor {

/// Entry n of the numbered string table, UTF-8, blanks and odd endings included.
/// n is 1 to 253 (a text in each language) or 1900 to 1913 (the same text in both); any other number gives an empty
/// text.
[[nodiscard]] std::string_view TableText(Language language, int n);

/// Numbers of the entries that name channel values: they are compared with cells, so they have names of their own.
namespace words {
inline constexpr int None = 77;
inline constexpr int Carrier = 79;
inline constexpr int CarrierAndOptSig = 80;
inline constexpr int CarrierOrOptSig = 81;
inline constexpr int OptionSignalling = 84;
inline constexpr int Off = 85;
inline constexpr int Wide = 86;
inline constexpr int Narrow = 87;
inline constexpr int Yes = 88;
inline constexpr int On = 89;
inline constexpr int High = 90;
inline constexpr int Low = 91;
inline constexpr int No = 92;
inline constexpr int FleetList = 177;
inline constexpr int Own = 253;
inline constexpr int QtDqt = 1900;
inline constexpr int Dtmf = 1901;
inline constexpr int Corvane = 1902;
} // namespace words

} // namespace zelvor
