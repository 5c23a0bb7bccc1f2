#include "text/Decimal.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace zelvor {
namespace {

struct Parsed {
    std::string_view text;
    std::string_view tenDecimals;
};

TEST(Decimal, ReadsTheLongestNumberAtTheStartOfAText) {
    const Parsed cases[] = {
        {"145.125", "145.1250000000"},  {"145", "145.0000000000"},
        {"145.", "145.0000000000"},     {".5", "0.5000000000"},
        {"  7.25", "7.2500000000"},     {"\t7", "7.0000000000"},
        {"+3", "3.0000000000"},         {"-3.5", "-3.5000000000"},
        {"145.1.25", "145.1000000000"}, {"1..5", "1.0000000000"},
        {"67.0 Hz", "67.0000000000"},   {"12x4", "12.0000000000"},
        {"007", "7.0000000000"},        {"1 2", "1.0000000000"},
        {"1,5", "1.0000000000"},        {"145.00000001", "145.0000000100"},
    };
    for (const Parsed& expected : cases) {
        EXPECT_EQ(Decimal::Leading(expected.text).Format(1, 10), expected.tenDecimals) << expected.text;
    }
}

TEST(Decimal, ReadsZeroFromATextThatStartsWithNoNumber) {
    for (const std::string_view text : {"", " ", "None", "无", ".", "-", "+", "--1", "-+1", "D023N", "..5"}) {
        EXPECT_TRUE(Decimal::Leading(text).IsZero()) << text;
    }
    EXPECT_FALSE(Decimal::Leading("0.0000000001").IsZero());
}

TEST(Decimal, DropsDigitsBehindTheTenthDecimal) {
    EXPECT_EQ(Decimal::Leading("0.12345678909"), Decimal::Leading("0.1234567890"));
    EXPECT_TRUE(Decimal::Leading("0.00000000009").IsZero());
}

TEST(Decimal, TakesTheLargestIntegerForOneThatIsTooLarge) {
    EXPECT_EQ(Decimal::Leading("99999999").Format(1, 0), "99999999");
    EXPECT_EQ(Decimal::Leading("100000000").Format(1, 0), "99999999");
    EXPECT_EQ(Decimal::Leading("-123456789012345678901234567890").Format(1, 0), "-99999999");
}

struct Formatted {
    std::string_view text;
    int integerDigits;
    int decimals;
    std::string_view result;
};

TEST(Decimal, FormatsWithHalvesRoundedAwayFromZero) {
    const Formatted cases[] = {
        {"0", 3, 5, "000.00000"},
        {"145.125", 3, 5, "145.12500"},
        {"14.5", 3, 5, "014.50000"},
        {"1234.5", 3, 5, "1234.50000"},
        {"145.000005", 3, 5, "145.00001"},
        {"145.0000049999", 3, 5, "145.00000"},
        {"145.000015", 3, 5, "145.00002"},
        {"145.000025", 3, 5, "145.00003"},
        {"999.999995", 3, 5, "1000.00000"},
        {"0.05", 1, 1, "0.1"},
        {"0.15", 1, 1, "0.2"},
        {"0.25", 1, 1, "0.3"},
        {"0.0499999999", 1, 1, "0.0"},
        {"2.5", 1, 0, "3"},
        {"3.5", 1, 0, "4"},
        {"-2.5", 1, 0, "-3"},
        {"-0.5", 1, 0, "-1"},
        {"-0.4", 1, 0, "0"},
        {"-0.05", 1, 1, "-0.1"},
        {"7", 2, 0, "07"},
        {"123", 2, 0, "123"},
        {"1451.25", 4, 4, "1451.2500"},
    };
    for (const Formatted& expected : cases) {
        EXPECT_EQ(Decimal::Leading(expected.text).Format(expected.integerDigits, expected.decimals), expected.result)
            << expected.text;
    }
}

TEST(Decimal, RoundsToWholeNumbersOfAPlace) {
    EXPECT_EQ(Decimal::Leading("145.125").Rounded(5), 14512500);
    EXPECT_EQ(Decimal::Leading("67.05").Rounded(1), 671);
    EXPECT_EQ(Decimal::Leading("67.04").Rounded(1), 670);
    EXPECT_EQ(Decimal::Leading("0.5").Rounded(), 1);
    EXPECT_EQ(Decimal::Leading("1.5").Rounded(), 2);
    EXPECT_EQ(Decimal::Leading("-1.5").Rounded(), -2);
    EXPECT_EQ(Decimal::Leading("-1.4").Rounded(), -1);
    EXPECT_EQ(Decimal::Leading("0.0000000001").Rounded(10), 1);
}

TEST(Decimal, IsBuiltFromUnitsOfAPlace) {
    EXPECT_EQ(Decimal::Of(14512500, 5), Decimal::Leading("145.125"));
    EXPECT_EQ(Decimal::Of(550), Decimal::Leading("550"));
    EXPECT_EQ(Decimal::Of(-5, 2), Decimal::Leading("-0.05"));
    EXPECT_EQ(Decimal::Of(1, 10), Decimal::Leading("0.0000000001"));
}

TEST(Decimal, ComparesSubtractsAndMultipliesExactly) {
    EXPECT_LT(Decimal::Leading("145.0031249999"), Decimal::Leading("145.003125"));
    EXPECT_GT(Decimal::Leading("0"), Decimal::Leading("-1"));
    EXPECT_EQ(Decimal::Leading("100.04") - Decimal::Leading("0.05"), Decimal::Leading("99.99"));
    EXPECT_EQ(Decimal::Leading("0.1") - Decimal::Leading("0.3"), Decimal::Leading("-0.2"));
    EXPECT_EQ(Decimal::Leading("145.12505") * 10, Decimal::Leading("1451.2505"));
    EXPECT_EQ(Decimal::Leading("0.1") * -3, Decimal::Leading("-0.3"));
    EXPECT_TRUE((Decimal::Leading("5") * 0).IsZero());
}

TEST(Decimal, StaysAtItsLargestValueInsteadOfTurningOver) {
    const Decimal large = Decimal::Leading("99999999") * 1000;
    EXPECT_EQ(large.Format(1, 0), "922337204");
    EXPECT_EQ((large * -1000).Format(1, 0), "-922337204");
    EXPECT_EQ(large - large * -1, large);
    EXPECT_EQ((large * -1) - large, large * -1);
}

} // namespace
} // namespace zelvor
