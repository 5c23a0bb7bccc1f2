#include "service/LinkedValues.h"

#include <algorithm>
#include <cstdlib>

namespace zelvor {

LinkedValues::LinkedValues(std::span<const std::uint8_t> values, std::span<const std::int64_t> pointFrequencies,
                           std::int64_t testFrequency, int testPointCurrent)
    : pages_(static_cast<int>(values.size())), knowsFrequencies_(!pointFrequencies.empty()),
      TestPointCurrent(testPointCurrent) {
    std::copy(values.begin(), values.end(), Values.begin());
    OldValues = Values;
    frequencies_[0] = testFrequency;
    std::copy(pointFrequencies.begin(), pointFrequencies.end(), frequencies_.begin() + 1);
}

bool LinkedValues::MayMoveTest(int value) {
    if ((AtLowerLimit && value <= Value(0)) || (AtUpperLimit && value >= Value(0))) {
        return false;
    }
    AtLowerLimit = false;
    AtUpperLimit = false;
    return true;
}

void LinkedValues::Set(int page, int value) {
    Values[static_cast<std::size_t>(page)] = static_cast<std::uint8_t>(value);
    LinkValues(page);
}

void LinkedValues::LinkValues(int page) {
    if (pages_ == 1) {
        return;
    }
    if (page == 0) {
        MoveCurve();
    } else if (knowsFrequencies_) {
        InterpolateTest();
    }
}

void LinkedValues::MoveCurve() {
    const int value = Value(0);
    if (value == TestPointCurrent) {
        return;
    }
    const int distance = AtUpperLimit || AtLowerLimit ? 0 : std::abs(value - TestPointCurrent);
    const auto [lowest, highest] = std::minmax_element(OldValues.begin() + 1, OldValues.begin() + pages_);
    if (value < TestPointCurrent) {
        AtUpperLimit = false;
        AtLowerLimit = *lowest <= distance;
        ShiftAll(AtLowerLimit ? 0 : 1, AtLowerLimit ? -*lowest : -distance);
    } else {
        AtLowerLimit = false;
        AtUpperLimit = *highest + distance >= Highest;
        ShiftAll(AtUpperLimit ? 0 : 1, AtUpperLimit ? Highest - *highest : distance);
    }
}

/// Page 0 may lie outside the curve of the points, and stops at the ends of the range on its own.
void LinkedValues::ShiftAll(int firstPage, int shift) {
    for (auto page = static_cast<std::size_t>(firstPage); page < static_cast<std::size_t>(pages_); ++page) {
        Values[page] = static_cast<std::uint8_t>(std::clamp(OldValues[page] + shift, 0, Highest));
    }
}

void LinkedValues::InterpolateTest() {
    // The pair of points round the test frequency, or the nearest pair.
    std::size_t upper = 2;
    while (upper + 1 < static_cast<std::size_t>(pages_) && frequencies_[0] > frequencies_[upper]) {
        ++upper;
    }
    const std::size_t lower = upper - 1;
    const std::int64_t width = frequencies_[upper] - frequencies_[lower];
    const std::int64_t rise = Values[upper] - Values[lower];
    const std::int64_t rounded =
        DivideHalfToEven(rise * (frequencies_[0] - frequencies_[lower]) + Values[lower] * width, width);
    Values[0] = static_cast<std::uint8_t>(std::clamp<std::int64_t>(rounded, 0, Highest));
}

std::int64_t DivideHalfToEven(std::int64_t numerator, std::int64_t denominator) {
    std::int64_t whole = numerator / denominator;
    std::int64_t rest = numerator % denominator;
    if (rest < 0) {
        rest += denominator;
        --whole;
    }
    const bool roundsUp = 2 * rest > denominator || (2 * rest == denominator && whole % 2 != 0);
    return roundsUp ? whole + 1 : whole;
}

} // namespace zelvor
