#include <gtest/gtest.h>

#include "shell/WindowArrangement.h"

namespace zelvor {
namespace {

TEST(TilePlacesTest, HorizontalTilesLieOneAboveTheOther) {
    const std::vector<QRect> expected{{0, 0, 900, 300}, {0, 300, 900, 300}};
    EXPECT_EQ(TilePlaces({900, 600}, 2, Qt::Horizontal), expected);
}

TEST(TilePlacesTest, VerticalTilesLieSideBySide) {
    const std::vector<QRect> expected{{0, 0, 300, 600}, {300, 0, 300, 600}, {600, 0, 300, 600}};
    EXPECT_EQ(TilePlaces({900, 600}, 3, Qt::Vertical), expected);
}

TEST(TilePlacesTest, MoreThanThreeMakeAGrid) {
    const std::vector<QRect> expected{
        {0, 0, 450, 300}, {450, 0, 450, 300}, {0, 300, 300, 300}, {300, 300, 300, 300}, {600, 300, 300, 300}};
    EXPECT_EQ(TilePlaces({900, 600}, 5, Qt::Horizontal), expected);
}

TEST(TilePlacesTest, NoWindowHasNoPlace) {
    EXPECT_TRUE(TilePlaces({900, 600}, 0, Qt::Vertical).empty());
}

TEST(CascadeCornersTest, EachLiesATitleBarFurther) {
    const std::vector<QPoint> expected{{0, 0}, {24, 24}, {48, 48}};
    EXPECT_EQ(CascadeCorners({900, 600}, 3, 24), expected);
}

TEST(CascadeCornersTest, ALowAreaHasThemInRowsSideBySide) {
    // Room for two title bars above the lowest window.
    const std::vector<QPoint> expected{{0, 0}, {20, 20}, {300, 0}, {320, 20}, {600, 0}};
    EXPECT_EQ(CascadeCorners({900, 80}, 5, 20), expected);
}

TEST(CascadeCornersTest, NoWindowHasNoCorner) {
    EXPECT_TRUE(CascadeCorners({900, 600}, 0, 24).empty());
    EXPECT_EQ(CascadeCorners({10, 10}, 2, 24).size(), 2U);
}

} // namespace
} // namespace zelvor
