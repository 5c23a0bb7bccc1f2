#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// The texts of the radio information, for the window and for the command line.
namespace zelvor {

/// Nothing that the radio tells reaches this text.
inline constexpr std::string_view InformationVersion = "V1.0";

struct InformationModel {
    std::string_view model; // "4618"
    std::string_view range; // "VHF: 136-174 MHz(M)"
};
/// A known family with a market that it does not have shows neither text; an unknown family shows another one's.
[[nodiscard]] InformationModel InformationModelOf(std::uint8_t family, std::uint8_t market);

/// " 1 10024618" of the 34 bytes of the manufacturing record, UTF-8.
[[nodiscard]] std::string SerialNumberOf(std::span<const std::uint8_t> record);

} // namespace zelvor
