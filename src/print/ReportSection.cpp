#include "print/ReportSection.h"

#include <array>
#include <cstddef>

#include "text/StringTable.h"

namespace zelvor {

std::string_view SectionTitle(ReportSection section, Language language) {
    constexpr std::array<int, ReportSectionCount> numbers{41, 42, 43, 44, 45, 46, 47, 195};
    return TableText(language, numbers[static_cast<std::size_t>(section)]);
}

} // namespace zelvor
