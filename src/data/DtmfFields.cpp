#include "data/DtmfFields.h"

#include <algorithm>
#include <span>

namespace zelvor::dtmf {

namespace {

constexpr std::array<int, 4> Speeds{6, 8, 10, 15};
constexpr std::array<int, 4> Times{0, 100, 500, 1000};

std::string ShowPlace(std::span<const int> values, int place) {
    const auto index = static_cast<std::size_t>(place);
    return index < values.size() ? std::to_string(values[index]) : std::string();
}

/// The place of the last of the ascending values that is not above the number, at least the first.
int PlaceOf(std::span<const int> values, int number) {
    const auto above = std::upper_bound(values.begin() + 1, values.end(), number);
    return static_cast<int>(above - values.begin()) - 1;
}

} // namespace

std::string ShowSpeed(int index, Language /*language*/) {
    return ShowPlace(Speeds, index);
}

int ReadSpeed(std::string_view text) {
    return PlaceOf(Speeds, LeadingNumber(text));
}

std::string ShowTime(int index, Language /*language*/) {
    return ShowPlace(Times, index);
}

int ReadTime(std::string_view text) {
    return PlaceOf(Times, LeadingNumber(text));
}

std::string ShowDelay(int tens, Language /*language*/) {
    return std::to_string(tens * 10);
}

int ReadDelay(std::string_view text) {
    // What is below 150 falls to the least, not to the tens below it.
    const int milliseconds = LeadingNumber(text);
    return milliseconds < 150 ? FirstDigitDelay.first : std::min(milliseconds / 10, FirstDigitDelay.last);
}

std::string ShowDCode(int seconds, Language language) {
    if (seconds == 0) {
        return std::string(TableText(language, Text::DCode));
    }
    return seconds <= DCodeAssignment.last ? std::to_string(seconds) + 's' : std::string();
}

int ReadDCode(std::string_view text) {
    // A time that is too long gives the D code, not the longest time. "D Code" begins with its letter in every
    // language.
    const int seconds = text.starts_with('D') ? 0 : LeadingNumber(text);
    return seconds > DCodeAssignment.last ? 0 : seconds;
}

int ReadResetTime(std::string_view text) {
    return std::min(LeadingNumber(text), AutoResetTimer.last);
}

std::optional<int> NextText(const NumberField& field, std::string_view text, bool up) {
    const int count = field.last - field.first + 1;
    for (int i = 0; i < count; ++i) {
        if (field.show(field.first + i, Language::English) == text) {
            return field.first + (i + (up ? 1 : count - 1)) % count;
        }
    }
    return std::nullopt;
}

} // namespace zelvor::dtmf
