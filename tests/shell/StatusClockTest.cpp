#include "shell/StatusClock.h"

#include <gtest/gtest.h>

namespace zelvor {
namespace {

TEST(StatusClockTest, ShowsMonthDayAndYearInTwoDigitsEach) {
    EXPECT_EQ(DatePanelText({2007, 1, 30, 0, 0, 0}), "01/30/07");
    EXPECT_EQ(DatePanelText({2026, 11, 9, 0, 0, 0}), "11/09/26");
    EXPECT_EQ(DatePanelText({2000, 12, 31, 0, 0, 0}), "12/31/00");
}

TEST(StatusClockTest, ShowsTheMorningAsItIs) {
    EXPECT_EQ(TimePanelText({2007, 1, 30, 8, 5, 9}), "08:05:09 AM");
    EXPECT_EQ(TimePanelText({2007, 1, 30, 11, 59, 59}), "11:59:59 AM");
}

TEST(StatusClockTest, ShowsHalfPastMidnightAsHourZero) {
    EXPECT_EQ(TimePanelText({2007, 1, 30, 0, 30, 0}), "00:30:00 AM");
}

TEST(StatusClockTest, ShowsTheHourOfNoonAsAm) {
    EXPECT_EQ(TimePanelText({2007, 1, 30, 12, 0, 0}), "12:00:00 AM");
    EXPECT_EQ(TimePanelText({2007, 1, 30, 12, 30, 0}), "12:30:00 AM");
    EXPECT_EQ(TimePanelText({2007, 1, 30, 12, 59, 59}), "12:59:59 AM");
}

TEST(StatusClockTest, CountsTheAfternoonFromOne) {
    EXPECT_EQ(TimePanelText({2007, 1, 30, 13, 0, 0}), "01:00:00 PM");
    EXPECT_EQ(TimePanelText({2007, 1, 30, 23, 7, 45}), "11:07:45 PM");
}

} // namespace
} // namespace zelvor
