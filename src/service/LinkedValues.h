#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace zelvor {

/// The values of a tuning dialog with several pages, page 0 being the test frequency and the others the frequency
/// points in rising order; and the rule by which they hold together: the test value moves the whole curve of the
/// points, and a point's value moves the test value along the curve.
class LinkedValues {
public:
    static constexpr int MaximumPages = 6;
    static constexpr int Highest = 255;

    /// values: of each page as the radio holds them; its first is the test value when the dialog opens.
    /// pointFrequencies: one transmit frequency a page but the first; empty where the model's are not known, and then
    /// a point does not move the test value. All frequencies are in units of 10 Hz.
    LinkedValues(std::span<const std::uint8_t> values, std::span<const std::int64_t> pointFrequencies,
                 std::int64_t testFrequency, int testPointCurrent);

    /// Whether page 0 may take the value: false while the curve is at a limit and would go on beyond it. True clears
    /// that limit.
    [[nodiscard]] bool MayMoveTest(int value);

    /// A page's value was changed: the others follow. With one page there are none.
    void Set(int page, int value);
    /// The value of the only page, as the radio measures it.
    void SetMeasured(int value) { Values[0] = static_cast<std::uint8_t>(value); }

    [[nodiscard]] int Pages() const { return pages_; }
    [[nodiscard]] int Value(int page) const { return Values[static_cast<std::size_t>(page)]; }
    [[nodiscard]] int OldValue(int page) const { return OldValues[static_cast<std::size_t>(page)]; }
    [[nodiscard]] bool IsAtLowerLimit() const { return AtLowerLimit; }
    [[nodiscard]] bool IsAtUpperLimit() const { return AtUpperLimit; }
    /// What a later Cancel brings back on page 0.
    void SetOldTestValue(int value) { OldValues[0] = static_cast<std::uint8_t>(value); }

private:
    using Bytes = std::array<std::uint8_t, MaximumPages>;

    void LinkValues(int page);
    void MoveCurve();
    void ShiftAll(int firstPage, int shift);
    void InterpolateTest();

    Bytes Values{};
    Bytes OldValues{}; // what the radio held when the dialog opened
    int pages_;
    std::array<std::int64_t, MaximumPages> frequencies_{}; // by page; of page 0 the test frequency
    bool knowsFrequencies_;
    int TestPointCurrent;
    bool AtUpperLimit = false; // the highest point is at 255, the lowest at 0, by moves of the test value
    bool AtLowerLimit = false;
};

/// A ratio rounded to the nearest whole number, an exact half to the even one. The denominator is above 0.
[[nodiscard]] std::int64_t DivideHalfToEven(std::int64_t numerator, std::int64_t denominator);

} // namespace zelvor
