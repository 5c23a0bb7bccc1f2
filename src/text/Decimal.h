#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace zelvor {

/// An exact decimal number with ten digits behind the point, so that no rounding of frequencies or tones ever depends
/// on binary fractions. Integer parts up to 99,999,999 fit.
class Decimal {
public:
    static constexpr int Places = 10;

    constexpr Decimal() = default;

    /// The number units / 10^places; places is 0 to 10. Decimal::Of(14512500, 5) is 145.125.
    [[nodiscard]] static Decimal Of(std::int64_t units, int places = 0);

    /// The value of the longest decimal number at the start of the text: blanks, a sign, digits, one point, digits.
    /// A second point or any other character ends it; a text that starts with no number is 0.
    /// Digits behind the tenth decimal are dropped; an integer part too large for the type becomes 99,999,999.
    [[nodiscard]] static Decimal Leading(std::string_view text);

    /// The number as text with at least integerDigits digits before the point and exactly decimals behind it (no point
    /// where decimals is 0), rounded in decimal with halves away from zero. Format(3, 5) is the format "000.00000".
    [[nodiscard]] std::string Format(int integerDigits, int decimals) const;

    /// The nearest whole number of 10^-places, halves away from zero. 145.125 in places 5 is 14512500.
    [[nodiscard]] std::int64_t Rounded(int places = 0) const;

    [[nodiscard]] bool IsZero() const { return units_ == 0; }
    [[nodiscard]] Decimal operator-(Decimal other) const;
    [[nodiscard]] Decimal operator*(int factor) const;
    auto operator<=>(const Decimal&) const = default; // NOLINT(modernize-use-nullptr): there is no pointer

private:
    std::int64_t units_ = 0; // in 10^-10
};

} // namespace zelvor
