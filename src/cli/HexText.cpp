#include "cli/HexText.h"

#include <cstddef>
#include <string_view>

namespace zelvor::cli {

namespace {

std::string Hex(int number, int digits) {
    constexpr std::string_view HexDigits = "0123456789ABCDEF";
    std::string text;
    for (int i = digits - 1; i >= 0; --i) {
        text += HexDigits[static_cast<std::size_t>(number >> (4 * i) & 0x0F)];
    }
    return text;
}

} // namespace

std::string AddressText(int address) {
    return "0x" + Hex(address, 3);
}

std::string ByteText(std::uint8_t byte) {
    return Hex(byte, 2);
}

} // namespace zelvor::cli
