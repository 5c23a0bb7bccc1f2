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
    ASSERT_EQ(std::size(ExpectedTexts), 267U);
    for (const ExpectedText& expected : ExpectedTexts) {
        EXPECT_EQ(TableText(Language::English, static_cast<Text>(expected.number)), expected.english)
            << "entry " << expected.number;
        EXPECT_EQ(TableText(Language::Chinese, static_cast<Text>(expected.number)), expected.chinese)
            << "entry " << expected.number;
    }
}

TEST(StringTable, KeepsLeadingBlanksAndOddEndings) {
    EXPECT_EQ(TableText(Language::English, static_cast<Text>(41)), " Optional Features");
    EXPECT_EQ(TableText(Language::Chinese, static_cast<Text>(48)), " 信道编辑");
    EXPECT_EQ(TableText(Language::English, static_cast<Text>(195)), " Channel Information");
    EXPECT_EQ(TableText(Language::English, static_cast<Text>(239)), "Low'");
    EXPECT_EQ(TableText(Language::English, static_cast<Text>(240)), "High'");
    EXPECT_EQ(TableText(Language::Chinese, static_cast<Text>(240)), "较高");
}

TEST(StringTable, NoneAndNoAreTheSameWordInChineseOnly) {
    EXPECT_EQ(TableText(Language::Chinese, static_cast<Text>(77)), TableText(Language::Chinese, static_cast<Text>(92)));
    EXPECT_NE(TableText(Language::English, static_cast<Text>(77)), TableText(Language::English, static_cast<Text>(92)));
}

TEST(StringTable, GivesAnEmptyTextForANumberThatItLacks) {
    for (const int number : {-1, 0, 254, 1000, 1001, 1899, 1914, 2001, 100000}) {
        EXPECT_EQ(TableText(Language::English, static_cast<Text>(number)), "") << number;
        EXPECT_EQ(TableText(Language::Chinese, static_cast<Text>(number)), "") << number;
    }
}

TEST(StringTable, NamesTheChannelWords) {
    const struct {
        Text name;
        std::string_view english;
        std::string_view chinese;
    } named[] = {{Text::None, "None", "无"},
                 {Text::Carrier, "Carrier", "载波"},
                 {Text::CarrierAndOptSig, "Carrier + Opt.Sig.", "载波+可选信令"},
                 {Text::CarrierOrOptSig, "Carrier or Opt.Sig.", "载波或可选信令"},
                 {Text::OptionSignalling, "Option Signalling", "可选信令"},
                 {Text::Off, "Off", "关"},
                 {Text::Wide, "Wide", "宽带"},
                 {Text::Narrow, "Narrow", "窄带"},
                 {Text::Yes, "Yes", "有"},
                 {Text::On, "On", "开"},
                 {Text::High, "High", "高"},
                 {Text::Low, "Low", "低"},
                 {Text::No, "No", "无"},
                 {Text::FleetList, "Fleet List", "队列表"},
                 {Text::Own, "Own", "自身"},
                 {Text::QtDqt, "QT/DQT", "QT/DQT"},
                 {Text::Dtmf, "DTMF", "DTMF"},
                 {Text::Corvane, "Corvane", "Corvane"}};
    for (const auto& word : named) {
        EXPECT_EQ(TableText(Language::English, word.name), word.english);
        EXPECT_EQ(TableText(Language::Chinese, word.name), word.chinese);
    }
}

TEST(TextPair, GivesTheTextOfTheLanguage) {
    constexpr TextPair Pair{"Error", "错误"};
    EXPECT_EQ(Pair.In(Language::English), "Error");
    EXPECT_EQ(Pair.In(Language::Chinese), "错误");
}

} // namespace
} // namespace zelvor
