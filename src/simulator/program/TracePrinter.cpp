#include "simulator/program/TracePrinter.h"

#include <iomanip>

namespace zelvor {

void TracePrinter::Bytes(LineTime time, char direction, std::span<const std::uint8_t> bytes,
                         std::string_view description) {
    Begin(time, direction);
    constexpr std::string_view Digits = "0123456789ABCDEF";
    for (const std::uint8_t byte : bytes) {
        out_ << ' ' << Digits[byte >> 4] << Digits[byte & 0x0F];
    }
    if (!description.empty()) {
        out_ << " (" << description << ')';
    }
    out_ << '\n' << std::flush;
}

void TracePrinter::Remark(LineTime time, std::string_view text) {
    Begin(time, '!');
    out_ << ' ' << text << '\n' << std::flush;
}

void TracePrinter::Begin(LineTime time, char sign) {
    const double seconds = std::chrono::duration<double>(time).count();
    out_ << '[' << std::fixed << std::setprecision(6) << std::setw(12) << seconds << "] " << sign;
}

} // namespace zelvor
