#include "service/LinkedValues.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace zelvor {
namespace {

/// Transmit frequencies of 136 to 174 MHz: Low, Low', Center, High', High, in units of 10 Hz.
constexpr std::array<std::int64_t, 5> VhfPoints{13610000, 14560000, 15510000, 16460000, 17390000};
constexpr std::array<std::int64_t, 3> VhfThreePoints{13610000, 15510000, 17390000};

LinkedValues SixPages(std::array<std::uint8_t, 6> values, std::int64_t testFrequency = 15510000) {
    return {values, VhfPoints, testFrequency, values[0]};
}

std::vector<int> All(const LinkedValues& linked) {
    std::vector<int> all;
    for (int page = 0; page < linked.Pages(); ++page) {
        all.push_back(linked.Value(page));
    }
    return all;
}

TEST(LinkedValues, ATestValueBelowTheRadiosLowersTheWholeCurve) {
    LinkedValues linked = SixPages({100, 90, 95, 100, 110, 120});
    linked.Set(0, 90);
    EXPECT_EQ(All(linked), (std::vector{90, 80, 85, 90, 100, 110}));
    EXPECT_FALSE(linked.IsAtLowerLimit());
}

TEST(LinkedValues, ATestValueAboveTheRadiosRaisesTheWholeCurve) {
    LinkedValues linked = SixPages({100, 90, 95, 100, 110, 120});
    linked.Set(0, 134);
    EXPECT_EQ(All(linked), (std::vector{134, 124, 129, 134, 144, 154}));
    EXPECT_FALSE(linked.IsAtUpperLimit());
}

TEST(LinkedValues, MovesAreMeasuredFromTheRadiosValueAndNotFromTheLastMove) {
    LinkedValues linked = SixPages({100, 90, 95, 100, 110, 120});
    linked.Set(0, 101);
    linked.Set(0, 102);
    EXPECT_EQ(All(linked), (std::vector{102, 92, 97, 102, 112, 122}));
}

TEST(LinkedValues, TheRadiosOwnTestValueMovesNothing) {
    LinkedValues linked = SixPages({100, 90, 95, 100, 110, 120});
    linked.Set(0, 101);
    linked.Set(0, 100);
    EXPECT_EQ(All(linked), (std::vector{100, 91, 96, 101, 111, 121}));
}

TEST(LinkedValues, TheCurveStopsWhenItsLowestPointReachesZero) {
    LinkedValues linked = SixPages({100, 40, 60, 100, 110, 120});
    linked.Set(0, 61);
    EXPECT_FALSE(linked.IsAtLowerLimit());
    EXPECT_EQ(All(linked), (std::vector{61, 1, 21, 61, 71, 81}));
    linked.Set(0, 60);
    EXPECT_TRUE(linked.IsAtLowerLimit());
    EXPECT_EQ(All(linked), (std::vector{60, 0, 20, 60, 70, 80}));
}

TEST(LinkedValues, AMoveFarBelowBringsTheLowestPointToZeroAndTheTestValueWithIt) {
    LinkedValues linked = SixPages({100, 40, 60, 100, 110, 120});
    linked.Set(0, 3);
    EXPECT_TRUE(linked.IsAtLowerLimit());
    EXPECT_EQ(All(linked), (std::vector{60, 0, 20, 60, 70, 80}));
}

TEST(LinkedValues, TheCurveStopsWhenItsHighestPointReachesTwoHundredFiftyFive) {
    LinkedValues linked = SixPages({100, 90, 95, 100, 110, 200});
    linked.Set(0, 154);
    EXPECT_FALSE(linked.IsAtUpperLimit());
    EXPECT_EQ(All(linked), (std::vector{154, 144, 149, 154, 164, 254}));
    linked.Set(0, 155);
    EXPECT_TRUE(linked.IsAtUpperLimit());
    EXPECT_EQ(All(linked), (std::vector{155, 145, 150, 155, 165, 255}));
}

TEST(LinkedValues, AMoveFarAboveBringsTheHighestPointToTwoHundredFiftyFive) {
    LinkedValues linked = SixPages({100, 90, 95, 100, 110, 200});
    linked.Set(0, 250);
    EXPECT_TRUE(linked.IsAtUpperLimit());
    EXPECT_EQ(All(linked), (std::vector{155, 145, 150, 155, 165, 255}));
}

TEST(LinkedValues, AtTheUpperLimitTheTestValueMayOnlyFall) {
    LinkedValues linked = SixPages({100, 90, 95, 100, 110, 200});
    linked.Set(0, 250);
    EXPECT_FALSE(linked.MayMoveTest(155));
    EXPECT_FALSE(linked.MayMoveTest(156));
    EXPECT_TRUE(linked.IsAtUpperLimit());
    EXPECT_TRUE(linked.MayMoveTest(154));
    EXPECT_FALSE(linked.IsAtUpperLimit());
    linked.Set(0, 154);
    EXPECT_EQ(All(linked), (std::vector{154, 144, 149, 154, 164, 254}));
}

TEST(LinkedValues, AtTheLowerLimitTheTestValueMayOnlyRise) {
    LinkedValues linked = SixPages({100, 40, 60, 100, 110, 120});
    linked.Set(0, 0);
    EXPECT_FALSE(linked.MayMoveTest(60));
    EXPECT_FALSE(linked.MayMoveTest(59));
    EXPECT_TRUE(linked.MayMoveTest(61));
    linked.Set(0, 61);
    EXPECT_EQ(All(linked), (std::vector{61, 1, 21, 61, 71, 81}));
}

TEST(LinkedValues, WithALimitFlagStillSetTheCurveStaysAsTheRadioHoldsIt) {
    LinkedValues linked = SixPages({100, 90, 95, 100, 110, 200});
    linked.Set(0, 250);
    linked.Set(0, 99); // without having asked whether it may
    EXPECT_EQ(All(linked), (std::vector{99, 90, 95, 100, 110, 200}));
    EXPECT_FALSE(linked.IsAtUpperLimit());
}

struct InterpolationRow {
    std::int64_t testFrequency;
    int page;
    int value;
    int expectedTest;
};

class Interpolation : public ::testing::TestWithParam<InterpolationRow> {};

// The curve is 10, 20, 40, 80, 160 at 136.1, 145.6, 155.1, 164.6 and 173.9 MHz before the page's value is set.
TEST_P(Interpolation, WorksOutTheTestValueOnTheLineBetweenThePointsRoundIt) {
    const InterpolationRow& row = GetParam();
    LinkedValues linked = SixPages({77, 10, 20, 40, 80, 160}, row.testFrequency);
    linked.Set(row.page, row.value);
    EXPECT_EQ(linked.Value(0), row.expectedTest);
    EXPECT_EQ(linked.Value(row.page), row.value);
}

INSTANTIATE_TEST_SUITE_P(
    HandComputed, Interpolation,
    ::testing::Values(InterpolationRow{13610000, 1, 12, 12},   // on a point: that point's value
                      InterpolationRow{15510000, 3, 44, 44},   //
                      InterpolationRow{17390000, 5, 200, 200}, //
                      InterpolationRow{15510000, 5, 200, 40},  // another point than the one it is on
                      InterpolationRow{14085000, 1, 10, 15},   // half way from 10 to 20
                      InterpolationRow{14085000, 1, 11, 16},   // 15.5 goes to the even 16
                      InterpolationRow{14085000, 1, 13, 16},   // 16.5 goes to the even 16
                      InterpolationRow{14085000, 1, 15, 18},   // 17.5 goes to the even 18
                      InterpolationRow{15035000, 3, 41, 30},   // 30.5 goes to the even 30
                      InterpolationRow{15035000, 3, 43, 32},   // 31.5 goes to the even 32
                      InterpolationRow{14797500, 3, 40, 25},   // a quarter of the way from 20 to 40
                      InterpolationRow{13515000, 1, 10, 9},    // a tenth of a step below the lowest point
                      InterpolationRow{17483000, 5, 160, 168}, // a tenth of a step above the highest
                      InterpolationRow{13515000, 1, 0, 0},     // below it -2: stops at 0
                      InterpolationRow{17483000, 5, 250, 255}  // above it 267: stops at 255
                      ));

TEST(LinkedValues, ThreePointsInterpolateInTheSameWay) {
    const std::array<std::uint8_t, 4> values{50, 10, 30, 70};
    LinkedValues linked(values, VhfThreePoints, 14560000, 50);
    linked.Set(1, 20);
    EXPECT_EQ(All(linked), (std::vector{25, 20, 30, 70}));
}

TEST(LinkedValues, APointsMoveLeavesTheLimitFlagsAlone) {
    LinkedValues linked = SixPages({100, 90, 95, 100, 110, 200});
    linked.Set(0, 250);
    linked.Set(3, 120);
    EXPECT_TRUE(linked.IsAtUpperLimit());
}

TEST(LinkedValues, WithoutKnownFrequenciesAPointMovesItselfAlone) {
    const std::array<std::uint8_t, 4> values{50, 10, 30, 70};
    LinkedValues linked(values, {}, 14560000, 50);
    linked.Set(1, 20);
    EXPECT_EQ(All(linked), (std::vector{50, 20, 30, 70}));
}

TEST(DivideHalfToEven, RoundsToTheNearestAndAHalfToTheEvenNumber) {
    EXPECT_EQ(DivideHalfToEven(5, 2), 2);
    EXPECT_EQ(DivideHalfToEven(7, 2), 4);
    EXPECT_EQ(DivideHalfToEven(-5, 2), -2);
    EXPECT_EQ(DivideHalfToEven(-7, 2), -4);
    EXPECT_EQ(DivideHalfToEven(8, 3), 3);
    EXPECT_EQ(DivideHalfToEven(7, 3), 2);
    EXPECT_EQ(DivideHalfToEven(-8, 3), -3);
    EXPECT_EQ(DivideHalfToEven(0, 9), 0);
}

} // namespace
} // namespace zelvor
