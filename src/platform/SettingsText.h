#pragma once

#include <string>
#include <string_view>

namespace zelvor {

// The settings file's text: sections "[name]" with lines "entry=value". Blanks round names and values do not count; a
// value in quotes may hold any text, with a backslash before a quote, a backslash or (as n) a line break.

/// Empty where there is no such entry.
[[nodiscard]] std::string SettingOf(std::string_view text, std::string_view section, std::string_view entry);

/// The text with that entry set. All other lines stay.
[[nodiscard]] std::string WithSetting(std::string_view text, std::string_view section, std::string_view entry,
                                      std::string_view value);

} // namespace zelvor
