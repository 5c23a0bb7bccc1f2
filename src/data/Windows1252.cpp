#include "data/Windows1252.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace zelvor {

namespace {

/// The bytes whose characters have other numbers.
constexpr std::uint8_t FirstOther = 0x80;
constexpr std::array<char16_t, 32> Others{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 0x80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 0x88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 0x90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, // 0x98
};

constexpr bool IsOther(unsigned number) {
    return number >= FirstOther && number < FirstOther + Others.size();
}

} // namespace

char16_t Windows1252Character(std::uint8_t byte) {
    return IsOther(byte) ? Others[static_cast<std::size_t>(byte - FirstOther)] : static_cast<char16_t>(byte);
}

std::optional<std::uint8_t> Windows1252Byte(char16_t character) {
    if (character <= 0xFF && !IsOther(character)) {
        return static_cast<std::uint8_t>(character);
    }
    const auto found = std::find(Others.begin(), Others.end(), character);
    if (found == Others.end()) {
        return std::nullopt;
    }
    return static_cast<std::uint8_t>(FirstOther + (found - Others.begin()));
}

} // namespace zelvor
