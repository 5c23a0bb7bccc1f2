#include "text/Decimal.h"

#include <array>
#include <cstddef>
#include <limits>

namespace zelvor {
namespace {

constexpr std::int64_t Largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t LargestInteger = 99'999'999;

constexpr std::array<std::int64_t, Decimal::Places + 1> PowersOfTen{
    1, 10, 100, 1'000, 10'000, 100'000, 1'000'000, 10'000'000, 100'000'000, 1'000'000'000, 10'000'000'000};

std::int64_t PowerOfTen(int exponent) {
    return PowersOfTen[static_cast<std::size_t>(exponent)];
}

std::int64_t Magnitude(std::int64_t value) {
    return value < 0 ? -value : value;
}

/// factor is not negative.
std::int64_t SaturatedProduct(std::int64_t value, std::int64_t factor) {
    if (factor != 0 && Magnitude(value) > Largest / factor) {
        return value < 0 ? -Largest : Largest;
    }
    return value * factor;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The digits of value, filled up with leading zeros.
std::string Digits(std::int64_t value, int atLeast) {
    std::string text = std::to_string(value);
    if (text.size() < static_cast<std::size_t>(atLeast)) {
        text.insert(0, static_cast<std::size_t>(atLeast) - text.size(), '0');
    }
    return text;
}

/// Takes the digits at the start of text away and returns them.
std::string_view TakeDigits(std::string_view& text) {
    std::size_t count = 0;
    while (count < text.size() && IsDigit(text[count])) {
        ++count;
    }
    const std::string_view digits = text.substr(0, count);
    text.remove_prefix(count);
    return digits;
}

std::int64_t IntegerUnits(std::string_view digits) {
    std::int64_t value = 0;
    for (const char digit : digits) {
        value = value * 10 + (digit - '0');
        if (value > LargestInteger) {
            return LargestInteger * PowersOfTen.back();
        }
    }
    return value * PowersOfTen.back();
}

std::int64_t FractionUnits(std::string_view digits) {
    std::int64_t value = 0;
    int place = Decimal::Places;
    for (const char digit : digits.substr(0, Decimal::Places)) {
        value += (digit - '0') * PowerOfTen(--place);
    }
    return value;
}

} // namespace

Decimal Decimal::Of(std::int64_t units, int places) {
    Decimal result;
    result.units_ = SaturatedProduct(units, PowerOfTen(Places - places));
    return result;
}

Decimal Decimal::Leading(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) {
        text.remove_prefix(1);
    }
    const bool negative = !text.empty() && text.front() == '-';
    if (negative || (!text.empty() && text.front() == '+')) {
        text.remove_prefix(1);
    }

    std::int64_t units = IntegerUnits(TakeDigits(text));
    if (!text.empty() && text.front() == '.') {
        text.remove_prefix(1);
        units += FractionUnits(TakeDigits(text));
    }
    Decimal result;
    result.units_ = negative ? -units : units;
    return result;
}

std::string Decimal::Format(int integerDigits, int decimals) const {
    const std::int64_t rounded = Rounded(decimals);
    const std::int64_t magnitude = Magnitude(rounded);
    std::string text = Digits(magnitude / PowerOfTen(decimals), integerDigits);
    if (decimals > 0) {
        text += '.';
        text += Digits(magnitude % PowerOfTen(decimals), decimals);
    }
    if (rounded < 0) {
        text.insert(0, 1, '-');
    }
    return text;
}

std::int64_t Decimal::Rounded(int places) const {
    const std::int64_t step = PowerOfTen(Places - places);
    const bool away = Magnitude(units_ % step) * 2 >= step;
    return units_ / step + (away ? (units_ < 0 ? -1 : 1) : 0);
}

Decimal Decimal::operator-(Decimal other) const {
    Decimal result;
    if (other.units_ < 0 && units_ > Largest + other.units_) {
        result.units_ = Largest;
    } else if (other.units_ > 0 && units_ < -Largest + other.units_) {
        result.units_ = -Largest;
    } else {
        result.units_ = units_ - other.units_;
    }
    return result;
}

Decimal Decimal::operator*(int factor) const {
    Decimal result;
    result.units_ = SaturatedProduct(units_, Magnitude(factor));
    if (factor < 0) {
        result.units_ = -result.units_;
    }
    return result;
}

} // namespace zelvor
