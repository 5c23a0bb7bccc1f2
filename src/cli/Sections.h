#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/ImageSections.h"
#include "print/ReportSection.h"

namespace zelvor::cli {

/// All names that a command line can choose sections by.
[[nodiscard]] std::vector<std::string> SectionNames();
/// Those that the report has as sections.
[[nodiscard]] std::vector<std::string> ReportSectionNames();

/// The sections of those names, in the image's order, each once; all of them for no names.
[[nodiscard]] std::vector<ImageSection> SectionsOf(std::span<const std::string> names);
[[nodiscard]] ReportSelection ReportSelectionOf(std::span<const std::string> names);

[[nodiscard]] std::string TitleOf(const ImageSection& section, Language language);

} // namespace zelvor::cli
