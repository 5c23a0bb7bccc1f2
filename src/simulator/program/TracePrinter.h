#pragma once

#include <cstdint>
#include <ostream>
#include <span>
#include <string_view>

#include "simulator/LineTime.h"

namespace zelvor {

/// Prints exchanges, one a line and each line at once:
///
///     [   3.129617] > 50 52 4F 47 52 41 4D
///     [   3.130763] < 06
///     [   4.210417] > 10 03 (Set channel 3)
///
/// ">" is a command to the radio, "<" its reply as it was sent, "?" bytes that it skipped, "!" a remark. Commands of
/// the service protocol are named behind their bytes. The time is in seconds since the program began to serve; it is
/// that of the last byte on the line.
class TracePrinter {
public:
    explicit TracePrinter(std::ostream& out) : out_(out) {}

    void Bytes(LineTime time, char direction, std::span<const std::uint8_t> bytes, std::string_view description = {});
    void Remark(LineTime time, std::string_view text);

private:
    void Begin(LineTime time, char sign);

    std::ostream& out_;
};

} // namespace zelvor
