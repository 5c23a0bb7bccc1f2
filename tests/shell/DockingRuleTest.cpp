#include "shell/DockingRule.h"

#include <gtest/gtest.h>

#include <ostream>

namespace zelvor {
namespace {

struct Drop {
    int x;
    int y;
    ToolbarAlignment alignment;
};

void PrintTo(const Drop& drop, std::ostream* out) {
    *out << "(" << drop.x << ", " << drop.y << ")";
}

class DropOnAnAreaOf10000By8000 : public testing::TestWithParam<Drop> {};

TEST_P(DropOnAnAreaOf10000By8000, IsAlignedByTheRule) {
    const Drop& drop = GetParam();
    EXPECT_EQ(DockingRule(drop.x, drop.y, 10000, 8000), drop.alignment);
}

constexpr auto None = ToolbarAlignment::None;
constexpr auto Top = ToolbarAlignment::Top;
constexpr auto Bottom = ToolbarAlignment::Bottom;
constexpr auto Left = ToolbarAlignment::Left;
constexpr auto Right = ToolbarAlignment::Right;

INSTANTIATE_TEST_SUITE_P(RightEdge, DropOnAnAreaOf10000By8000,
                         testing::Values(Drop{9601, 4000, Right}, Drop{9600, 4000, None}, Drop{9601, 401, Right},
                                         Drop{9601, 400, None}, Drop{9601, 7599, Right}, Drop{9601, 7600, None},
                                         Drop{12000, 4000, Right}));
INSTANTIATE_TEST_SUITE_P(LeftEdge, DropOnAnAreaOf10000By8000,
                         testing::Values(Drop{399, 4000, Left}, Drop{400, 4000, None}, Drop{399, 401, Left},
                                         Drop{399, 400, None}, Drop{399, 7600, Left}, Drop{399, 7994, Left},
                                         Drop{399, 7995, None}, Drop{-50, 4000, Left}));
INSTANTIATE_TEST_SUITE_P(BottomEdge, DropOnAnAreaOf10000By8000,
                         testing::Values(Drop{5000, 7601, Bottom}, Drop{5000, 7600, None}, Drop{401, 7601, Bottom},
                                         Drop{400, 7601, None}, Drop{9599, 7601, Bottom}, Drop{9600, 7601, None},
                                         Drop{5000, 9000, Bottom}));
INSTANTIATE_TEST_SUITE_P(TopEdge, DropOnAnAreaOf10000By8000,
                         testing::Values(Drop{5000, 399, Top}, Drop{5000, 400, None}, Drop{401, 399, Top},
                                         Drop{400, 399, None}, Drop{9599, 399, Top}, Drop{9600, 399, None},
                                         Drop{5000, -100, Top}));
INSTANTIATE_TEST_SUITE_P(ElsewhereAndCorners, DropOnAnAreaOf10000By8000,
                         testing::Values(Drop{5000, 4000, None}, Drop{100, 100, None}, Drop{9900, 100, None},
                                         Drop{9900, 7900, None}, Drop{100, 7999, None}));

TEST(DockingRuleTest, TestsTheRightEdgeBeforeTheLeftOneInANarrowArea) {
    EXPECT_EQ(DockingRule(350, 4000, 700, 8000), ToolbarAlignment::Right);
}

TEST(DockingRuleTest, NumbersTheAlignments) {
    EXPECT_EQ(static_cast<int>(ToolbarAlignment::None), 0);
    EXPECT_EQ(static_cast<int>(ToolbarAlignment::Top), 1);
    EXPECT_EQ(static_cast<int>(ToolbarAlignment::Bottom), 2);
    EXPECT_EQ(static_cast<int>(ToolbarAlignment::Left), 3);
    EXPECT_EQ(static_cast<int>(ToolbarAlignment::Right), 4);
}

} // namespace
} // namespace zelvor
