#pragma once

#include <string>

#include "platform/Clock.h"

namespace zelvor {

/// "01/30/07": month, day, year less 2000.
[[nodiscard]] std::string DatePanelText(const LocalTime& now);

/// "08:05:09 AM". From 13 on the hour is less 12 and PM; the hours 12 and 0 are shown as they are, with AM.
[[nodiscard]] std::string TimePanelText(const LocalTime& now);

} // namespace zelvor
