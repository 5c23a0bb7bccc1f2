#include "shell/StatusClock.h"

namespace zelvor {

namespace {

constexpr int Century = 2000;
constexpr int Noon = 12;

std::string TwoDigits(int number) {
    const std::string digits = std::to_string(number);
    return digits.size() < 2 ? "0" + digits : digits;
}

} // namespace

std::string DatePanelText(const LocalTime& now) {
    return TwoDigits(now.month) + "/" + TwoDigits(now.day) + "/" + TwoDigits(now.year - Century);
}

std::string TimePanelText(const LocalTime& now) {
    // Half past twelve at noon is 12:30:00 AM, and half past midnight 00:30:00 AM: intended.
    const bool isAfternoon = now.hour > Noon;
    return TwoDigits(isAfternoon ? now.hour - Noon : now.hour) + ":" + TwoDigits(now.minute) + ":" +
           TwoDigits(now.second) + " " + (isAfternoon ? "PM" : "AM");
}

} // namespace zelvor
