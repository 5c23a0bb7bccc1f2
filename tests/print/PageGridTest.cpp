#include "print/PageGrid.h"

#include <gtest/gtest.h>

#include "fakes/FakePageDevice.h"

namespace zelvor {
namespace {

class PageGridTest : public ::testing::Test {
protected:
    PageGridTest() { EXPECT_TRUE(device.BeginDocument("Report")); }
    ~PageGridTest() override { device.EndDocument(); }

    [[nodiscard]] const std::vector<FakePageText>& Texts() const { return device.Pages()[0].texts; }

    FakePageDevice device; // 10800 by 15840 twips, 100 to a character of 10 points
};

TEST_F(PageGridTest, LaysItsCellsOutExactly) {
    const PageGrid grid(device, PageGrid::Units::Exact);
    EXPECT_DOUBLE_EQ(grid.X(0), 1080);
    EXPECT_NEAR(grid.X(130), 1080 + 9720, 0.001);
    EXPECT_DOUBLE_EQ(grid.Y(0), 792);
    EXPECT_NEAR(grid.Y(60), 792 + 14256, 0.001);
    EXPECT_DOUBLE_EQ(grid.FootY(), 15048);
}

TEST_F(PageGridTest, LaysItsCellsOutInWholeTwips) {
    const PageGrid grid(device, PageGrid::Units::Whole);
    EXPECT_EQ(grid.X(10), 1080 + 10 * 74);
    EXPECT_EQ(grid.Y(10), 792 + 10 * 237);
    EXPECT_EQ(grid.LineEnd(), 9720);
}

TEST_F(PageGridTest, PrintsATextThatFitsAsItIs) {
    const PageGrid grid(device, PageGrid::Units::Whole);
    PrintCells(device, grid, {{0, 1, "12345"}, {10, 1, "next"}}, 10800);
    ASSERT_EQ(Texts().size(), 2U);
    EXPECT_EQ(Texts()[0].text, "12345");
    EXPECT_EQ(Texts()[0].stretch, 1);
    EXPECT_EQ(Texts()[0].x, 1080);
    EXPECT_EQ(Texts()[0].y, 792 + 237);
}

TEST_F(PageGridTest, NarrowsTheLettersOfATextThatWouldRunIntoTheNext) {
    const PageGrid grid(device, PageGrid::Units::Whole);
    // Nine columns of 74 twips for 800 twips of text.
    PrintCells(device, grid, {{0, 1, "12345678"}, {10, 1, "next"}, {5, 2, "another row"}}, 10800);
    EXPECT_EQ(Texts()[0].text, "12345678");
    EXPECT_DOUBLE_EQ(Texts()[0].stretch, 666.0 / 800);
    EXPECT_EQ(Texts()[1].stretch, 1);
    EXPECT_EQ(Texts()[2].stretch, 1);
}

TEST_F(PageGridTest, ShortensATextThatNarrowLettersDoNotHelp) {
    const PageGrid grid(device, PageGrid::Units::Whole);
    PrintCells(device, grid, {{0, 1, "1234567890"}, {10, 1, "next"}}, 10800);
    EXPECT_EQ(Texts()[0].text, "12…890");
    EXPECT_EQ(Texts()[0].stretch, 1);
}

TEST_F(PageGridTest, KeepsTextsFromTheEdge) {
    const PageGrid grid(device, PageGrid::Units::Whole);
    PrintCells(device, grid, {{0, 1, "123456"}}, 1080 + 500);
    EXPECT_DOUBLE_EQ(Texts()[0].stretch, 500.0 / 600);
}

TEST_F(PageGridTest, CentresATextByItsWidth) {
    const PageGrid grid(device, PageGrid::Units::Whole);
    PrintCentred(device, grid, 300, "1234");
    EXPECT_EQ(Texts()[0].x, 5200);
    EXPECT_EQ(Texts()[0].y, 300);
}

TEST_F(PageGridTest, NumbersAPageAtItsFoot) {
    PrintFoot(device, PageGrid(device, PageGrid::Units::Whole), 12);
    EXPECT_EQ(Texts()[0].text, "- 12 -");
    EXPECT_EQ(Texts()[0].x, 5100);
    EXPECT_EQ(Texts()[0].y, 15048);
}

TEST_F(PageGridTest, ShortensTextsToAnyWidth) {
    EXPECT_EQ(ShortenToWidth(device, "0123456789", 1000), "0123456789");
    EXPECT_EQ(ShortenToWidth(device, "0123456789", 999), "0123…6789");
    EXPECT_EQ(ShortenToWidth(device, "0123456789", 300), "0…9");
    EXPECT_EQ(ShortenToWidth(device, "0123456789", 100), "…");
    EXPECT_EQ(ShortenToWidth(device, "", 0), "");
}

TEST_F(PageGridTest, ShortensBetweenCharactersOfSeveralBytes) {
    const std::string text = "对讲机编程信息对讲机编程信息";
    for (int width = 100; width <= 1500; width += 50) {
        const std::string shortened = ShortenToWidth(device, text, width);
        EXPECT_LE(device.TextWidth(shortened), width);
        for (std::size_t at = 0; at < shortened.size();) {
            const bool threeBytes = (static_cast<unsigned char>(shortened[at]) & 0xF0U) == 0xE0U;
            ASSERT_TRUE(threeBytes) << width << ": " << shortened;
            at += 3;
        }
    }
}

} // namespace
} // namespace zelvor
