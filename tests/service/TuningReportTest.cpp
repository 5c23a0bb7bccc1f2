#include "service/TuningReport.h"

#include <gtest/gtest.h>

#include "data/Document.h"
#include "fakes/FakeServices.h"
#include "service/ServiceState.h"
#include "support/PrintedPages.h"

namespace zelvor {
namespace {

using testing::TextAt;

class TuningReportTest : public ::testing::Test {
protected:
    TuningReportTest() {
        testing::UseEvenPage(fakes.pages);
        StoreValues();
    }

    /// Item n at point p has the value 10 n + p, with the points counted from Test as 1 to Narrow as 7; the last two
    /// items have the least and the most.
    void StoreValues() {
        document.Image.Set(0x1BD, 1);
        document.Image.Set(0x1BE, 0xF8);
        constexpr std::pair<int, int> values[]{
            {86, 12},   {70, 13},   {54, 14},   {38, 15},   {22, 16},   {166, 22},  {150, 23},  {134, 24}, {118, 25},
            {102, 26},  {230, 32},  {214, 34},  {198, 36},  {182, 37},  {294, 42},  {278, 44},  {262, 46}, {246, 47},
            {358, 52},  {342, 54},  {326, 56},  {310, 57},  {422, 62},  {406, 64},  {390, 66},  {374, 67}, {454, 71},
            {438, 77},  {502, 82},  {486, 84},  {470, 86},  {566, 92},  {550, 94},  {534, 96},  {518, 97}, {630, 102},
            {614, 104}, {598, 106}, {582, 107}, {678, 111}, {646, 117}, {710, 121}, {742, 131}, {758, 0},  {806, 255}};
        for (const auto& [index, value] : values) {
            document.Image.SetIndex(index, static_cast<std::uint8_t>(value));
        }
        service.Values = {.TestPointHighPower = 11,
                          .TestPointLowPower = 21,
                          .TestPointDqtBalance = 31,
                          .TestPointMaxDeviation = 41,
                          .TestPointQtFine = 51,
                          .TestPointDqtFine = 61,
                          .TestPointSensitivity = 81,
                          .TestPointSquelchOpen = 101,
                          .TestPointSquelchTight = 91};
    }
    void ExpectQuestion(MessageAnswer answer) {
        fakes.messages.Expect({.title = "Confirmation",
                               .text = "All tuning data print out.",
                               .icon = MessageIcon::Question,
                               .buttons = MessageButtons::OkCancel,
                               .defaultButton = MessageAnswer::Cancel},
                              answer);
    }
    const FakePage& Print() {
        ExpectQuestion(MessageAnswer::Ok);
        PrintTuningReport(document, service.Values, language, fakes.Get(), [] { return true; });
        return fakes.pages.Pages().back();
    }

    Document document;
    ServiceState service;
    Language language = Language::English;
    FakeServices fakes;
};

TEST_F(TuningReportTest, HasItsTextsAtTheirCellsInEnglish) {
    testing::ExpectCells(Print(), "tuning_en");
    EXPECT_EQ(fakes.pages.Pages().size(), 1U);
    EXPECT_EQ(fakes.pages.Documents(), (std::vector<std::string>{"Zelvor Radio Programming Information"}));
}

TEST_F(TuningReportTest, HasItsTextsAtTheirCellsInChinese) {
    language = Language::Chinese;
    fakes.messages.Expect({.title = "确认",
                           .text = "打印输出所有调谐数据。",
                           .icon = MessageIcon::Question,
                           .buttons = MessageButtons::OkCancel,
                           .defaultButton = MessageAnswer::Cancel},
                          MessageAnswer::Ok);
    PrintTuningReport(document, service.Values, language, fakes.Get(), [] { return true; });
    ASSERT_EQ(fakes.pages.Pages().size(), 1U);
    testing::ExpectCells(fakes.pages.Pages()[0], "tuning_zh");
    EXPECT_EQ(fakes.pages.Pages()[0].texts[0].text, "Zelvor 对讲机编程信息");
}

TEST_F(TuningReportTest, HasItsTitleCentredInBoldLettersOfSixteenPoints) {
    const FakePageText title = Print().texts[0];
    EXPECT_EQ(title.text, "Zelvor Radio Programming Information");
    EXPECT_EQ(title.pointSize, 16);
    EXPECT_TRUE(title.bold);
    EXPECT_EQ(title.x, (13000 - 36 * 160) / 2);
    EXPECT_EQ(title.y, 800 + 2 * 240);
}

TEST_F(TuningReportTest, HasAllOtherTextsInTenPointsNotBold) {
    const FakePage& page = Print();
    for (std::size_t i = 1; i < page.texts.size(); ++i) {
        EXPECT_EQ(page.texts[i].pointSize, 10) << page.texts[i].text;
        EXPECT_FALSE(page.texts[i].bold) << page.texts[i].text;
    }
}

TEST_F(TuningReportTest, HasItsFootCentredAtNinetyFiveHundredthsOfTheHeight) {
    const FakePageText foot = Print().texts.back();
    EXPECT_EQ(foot.text, "- 1 -");
    EXPECT_EQ(foot.x, (13000 - 5 * 100) / 2);
    EXPECT_EQ(foot.y, 15200);
}

TEST_F(TuningReportTest, LaysItsCellsOutWithoutRounding) {
    fakes.pages.SetPageSize(11907, 16838); // A4
    for (const FakePageText& text : Print().texts) {
        if (text.text == "Narrow") {
            EXPECT_NEAR(text.x, 1190.7 + 95 * 82.4331, 0.01);
            EXPECT_NEAR(text.y, 841.9 + 12 * 252.57, 0.01);
        }
    }
}

TEST_F(TuningReportTest, OnCancelPrintsNothing) {
    ExpectQuestion(MessageAnswer::Cancel);
    PrintTuningReport(document, service.Values, language, fakes.Get(), [] { return true; });
    EXPECT_TRUE(fakes.pages.Pages().empty());
    EXPECT_TRUE(fakes.pages.Documents().empty());
}

TEST_F(TuningReportTest, AsksAfterAWaitOfTwoHundredMilliseconds) {
    std::vector<int> waits;
    fakes.messages.Expect({.title = "Confirmation",
                           .text = "All tuning data print out.",
                           .icon = MessageIcon::Question,
                           .buttons = MessageButtons::OkCancel,
                           .defaultButton = MessageAnswer::Cancel},
                          [&] {
                              waits = fakes.clock.Waits();
                              return MessageAnswer::Cancel;
                          });
    PrintTuningReport(document, service.Values, language, fakes.Get(), [] { return true; });
    EXPECT_EQ(waits, (std::vector<int>{200}));
}

TEST_F(TuningReportTest, NamesEveryVariant) {
    struct Variant {
        int m2;
        int m1;
        const char* model;
        const char* market;
        const char* band;
    };
    for (const Variant& variant : {Variant{0xF8, 1, "4618(VHF)", "M", "136-174MHz"},
                                   {0xF8, 33, "5618(UHF)", "M", "450-490MHz"},
                                   {0xF8, 51, "5618(UHF)", "C", "440-480MHz"},
                                   {0xF8, 67, "5618(UHF)", "C2", "400-430MHz"},
                                   {0xF8, 99, "5618(UHF)", "C5", "370-390MHz"},
                                   {0xF8, 83, "5618(UHF)", "C6", "350-370MHz"},
                                   {0xF8, 115, "5618(UHF)", "C7", "400-470MHz"},
                                   {0xF9, 1, "4613(VHF)", "M", "136-174MHz"},
                                   {0xF9, 0, "4613(VHF)", "K", "136-174MHz"},
                                   {0xF9, 32, "5613(UHF)", "K", "450-490MHz"},
                                   {0xF9, 112, "5613(UHF)", "K2", "470-512MHz"},
                                   {0xF9, 33, "5613(UHF)", "M", "450-490MHz"},
                                   {0xF9, 113, "5613(UHF)", "M2", "470-512MHz"},
                                   {0xFC, 1, "4617(VHF)", "M", "136-174MHz"},
                                   {0xFC, 33, "5617(UHF)", "M", "459-490MHz"},
                                   {0xFC, 65, "5617(UHF)", "M3", "400-430MHz"},
                                   {0xF8, 0, "4618(VHF)", "M", "136-174MHz"},
                                   {0xFF, 33, "4618(VHF)", "M", "136-174MHz"}}) {
        document.Image.SetIndex(982, static_cast<std::uint8_t>(variant.m1));
        document.Image.SetIndex(998, static_cast<std::uint8_t>(variant.m2));
        const FakePage& page = Print();
        EXPECT_EQ(TextAt(page, 4, 30), variant.model);
        EXPECT_EQ(TextAt(page, 5, 30), variant.market);
        EXPECT_EQ(TextAt(page, 6, 30), variant.band);
    }
}

TEST_F(TuningReportTest, PrintsTheValuesAsTheServiceStateHoldsThem) {
    service.Values.TestPointCurrent = 99; // of an open tuning dialog
    EXPECT_EQ(TextAt(Print(), 13, 25), "11");
    service.Values.TestPointHighPower = 12; // as the next Read tuning data tells it
    document.Image.SetIndex(86, 200);
    const FakePage& page = Print();
    EXPECT_EQ(TextAt(page, 13, 25), "12");
    EXPECT_EQ(TextAt(page, 13, 35), "200");
}

TEST_F(TuningReportTest, ShortensALongFileNameInTheMiddle) {
    document.Rename("/home/user/" + std::string(180, 'x') + "/Zelvor.dat");
    const std::string printed = TextAt(Print(), 7, 30);
    EXPECT_TRUE(printed.starts_with("/home/user/x")) << printed;
    EXPECT_TRUE(printed.ends_with("x/Zelvor.dat")) << printed;
    EXPECT_EQ(printed.size(), 89U + std::string("…").size()); // 90 characters of 100 twips from 4000 to 13000
}

TEST_F(TuningReportTest, WithoutAPrinterEndsWithoutAWord) {
    fakes.pages.SetAvailable(false);
    ExpectQuestion(MessageAnswer::Ok);
    PrintTuningReport(document, service.Values, language, fakes.Get(), [] { return true; });
    EXPECT_TRUE(fakes.pages.Pages().empty());
    EXPECT_EQ(fakes.messages.Shown().size(), 1U);
}

TEST_F(TuningReportTest, OnAPrinterThatFailsEndsWithoutAWord) {
    fakes.pages.FailAtPage(1);
    ExpectQuestion(MessageAnswer::Ok);
    PrintTuningReport(document, service.Values, language, fakes.Get(), [] { return true; });
    EXPECT_EQ(fakes.pages.Failures(), 1);
    EXPECT_TRUE(fakes.pages.Documents().empty());
    EXPECT_EQ(fakes.messages.Shown().size(), 1U);
}

TEST_F(TuningReportTest, TellsOfAPrintingSystemThatDoesNotAnswer) {
    fakes.pages.SetTarget({PageTarget::Kind::NoAnswer, ""});
    ExpectQuestion(MessageAnswer::Ok);
    fakes.messages.Expect(
        {.title = "Warning",
         .text = "No answer from the printing system.\nTry again later, or choose a PDF file in Print setup.",
         .icon = MessageIcon::Exclamation,
         .buttons = MessageButtons::Ok},
        MessageAnswer::Ok);
    PrintTuningReport(document, service.Values, language, fakes.Get(), [] { return true; });
    EXPECT_EQ(fakes.messages.Pending(), 0);
    EXPECT_TRUE(fakes.pages.Pages().empty());
}

TEST_F(TuningReportTest, AsksBeforeItReplacesAFileEveryTime) {
    fakes.pages.SetTarget({PageTarget::Kind::File, "/home/user/radio1.pdf", true});
    for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes, MessageAnswer::No}) {
        ExpectQuestion(MessageAnswer::Ok);
        fakes.messages.Expect({.title = "Warning",
                               .text = "The file already exists:\n/home/user/radio1.pdf\nReplace it?",
                               .icon = MessageIcon::Exclamation,
                               .buttons = MessageButtons::YesNo,
                               .defaultButton = MessageAnswer::No},
                              answer);
        PrintTuningReport(document, service.Values, language, fakes.Get(), [] { return true; });
        EXPECT_EQ(fakes.messages.Pending(), 0);
    }
    EXPECT_EQ(fakes.pages.Documents().size(), 1U);
}

TEST_F(TuningReportTest, IsPrintedWhenThePrintingSystemAnswersUnlessItIsNotWantedAnyMore) {
    for (const bool isWanted : {true, false}) {
        fakes.pages.HoldAnswers();
        ExpectQuestion(MessageAnswer::Ok);
        bool isStillWanted = true;
        PrintTuningReport(document, service.Values, language, fakes.Get(), [&isStillWanted] { return isStillWanted; });
        const std::size_t before = fakes.pages.Documents().size();
        isStillWanted = isWanted;
        fakes.pages.Answer();
        EXPECT_EQ(fakes.pages.Documents().size() - before, isWanted ? 1U : 0U);
    }
}

} // namespace
} // namespace zelvor
