#include "print/ReportSection.h"

#include <array>
#include <cstddef>

#include "text/StringTable.h"

namespace zelvor {

std::string_view SectionTitle(ReportSection section, Language language) {
    constexpr std::array<Text, ReportSectionCount> titles{Text::OptionalFeaturesTitle, Text::KeyAssignmentTitle,
                                                          Text::ScanInformationTitle,  Text::DtmfTitle,
                                                          Text::CorvaneTitle,          Text::TestFrequencyTitle,
                                                          Text::EmbeddedMessageTitle,  Text::ChannelInformationTitle};
    return TableText(language, titles[static_cast<std::size_t>(section)]);
}

} // namespace zelvor
