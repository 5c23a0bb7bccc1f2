#pragma once

#include <string>
#include <string_view>

#include "data/Field.h"

namespace zelvor {

/// Stands for 0 in some fields. Intended: it is Chinese whatever the language is, unlike the word of the windows.
inline constexpr std::string_view PrintedOff = "关";

/// What the report prints for a field: mostly what its window shows, and in some fields something else.
[[nodiscard]] std::string ReportValue(const Field& field, const DataImage& image, Language language);

/// "Enabled" or "Disabled".
[[nodiscard]] std::string_view EnabledWord(bool enabled, Language language);

} // namespace zelvor
