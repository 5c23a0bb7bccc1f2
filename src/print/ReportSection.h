#pragma once

#include <bitset>
#include <cstdint>
#include <string_view>

#include "text/Language.h"

namespace zelvor {

/// What the data report can hold, in the order in which it is printed.
enum class ReportSection : std::uint8_t {
    OptionalFeatures,
    KeyAssignment,
    ScanInformation,
    Dtmf,
    Corvane,
    TestFrequency,
    EmbeddedMessage,
    ChannelInformation,
};
inline constexpr int ReportSectionCount = 8;

/// The sections to print, by their numbers.
using ReportSelection = std::bitset<ReportSectionCount>;

/// The title on the section's pages, which also names it where sections are chosen. It begins with a blank.
[[nodiscard]] std::string_view SectionTitle(ReportSection section, Language language);

} // namespace zelvor
