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

} // namespace
} // namespace zelvor
