#include "text/StringTable.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string_view>

namespace zelvor {
namespace {

struct ExpectedText {
    int number;
    std::string_view english;
    std::string_view chinese;
};

constexpr ExpectedText ExpectedTexts[] = {
#include "ExpectedTexts.inc"
};

TEST(StringTable, HoldsEveryEntryInBothLanguages) {
    ASSERT_EQ(std::size(ExpectedTexts), 267u);
    for (const ExpectedText& expected : ExpectedTexts) {
        EXPECT_EQ(TableText(Language::English, expected.number), expected.english) << "entry " << expected.number;
        EXPECT_EQ(TableText(Language::Chinese, expected.number), expected.chinese) << "entry " << expected.number;
    }
}

TEST(StringTable, KeepsLeadingBlanksAndOddEndings) {
    EXPECT_EQ(TableText(Language::English, 41), " Optional Features");
    EXPECT_EQ(TableText(Language::Chinese, 48), " 信道编辑");
    EXPECT_EQ(TableText(Language::English, 195), " Channel Information");
    EXPECT_EQ(TableText(Language::English, 239), "Low'");
    EXPECT_EQ(TableText(Language::English, 240), "High'");
    EXPECT_EQ(TableText(Language::Chinese, 240), "较高");
}

TEST(StringTable, NoneAndNoAreTheSameWordInChineseOnly) {
    EXPECT_EQ(TableText(Language::Chinese, 77), TableText(Language::Chinese, 92));
    EXPECT_NE(TableText(Language::English, 77), TableText(Language::English, 92));
}

TEST(StringTable, GivesAnEmptyTextForANumberThatItLacks) {
    for (const int number : {-1, 0, 254, 1000, 1001, 1899, 1914, 2001, 100000}) {
        EXPECT_EQ(TableText(Language::English, number), "") << number;
        EXPECT_EQ(TableText(Language::Chinese, number), "") << number;
    }
}

TEST(StringTable, NamesTheNumbersOfTheChannelWords) {
    const struct {
        int number;
        std::string_view english;
        std::string_view chinese;
    } named[] = {{words::None, "None", "无"},
                 {words::Carrier, "Carrier", "载波"},
                 {words::CarrierAndOptSig, "Carrier + Opt.Sig.", "载波+可选信令"},
                 {words::CarrierOrOptSig, "Carrier or Opt.Sig.", "载波或可选信令"},
                 {words::OptionSignalling, "Option Signalling", "可选信令"},
                 {words::Off, "Off", "关"},
                 {words::Wide, "Wide", "宽带"},
                 {words::Narrow, "Narrow", "窄带"},
                 {words::Yes, "Yes", "有"},
                 {words::On, "On", "开"},
                 {words::High, "High", "高"},
                 {words::Low, "Low", "低"},
                 {words::No, "No", "无"},
                 {words::FleetList, "Fleet List", "队列表"},
                 {words::Own, "Own", "自身"},
                 {words::QtDqt, "QT/DQT", "QT/DQT"},
                 {words::Dtmf, "DTMF", "DTMF"},
                 {words::Corvane, "Corvane", "Corvane"}};
    for (const auto& word : named) {
        EXPECT_EQ(TableText(Language::English, word.number), word.english);
        EXPECT_EQ(TableText(Language::Chinese, word.number), word.chinese);
    }
}

TEST(TextPair, GivesTheTextOfTheLanguage) {
    constexpr TextPair Pair{"Error", "错误"};
    EXPECT_EQ(Pair.In(Language::English), "Error");
    EXPECT_EQ(Pair.In(Language::Chinese), "错误");
}

} // namespace
} // namespace zelvor
