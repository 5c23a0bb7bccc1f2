#include "print/DataReport.h"

#include <gtest/gtest.h>

#include "data/TestImages.h"
#include "print/ReportImage.h"
#include "support/PrintedPages.h"

namespace zelvor {
namespace {

using testing::ImageWithChannels;
using testing::TextAt;

constexpr int AllSections = 0xFF;
constexpr int OptionalFeatures = 0x01;
constexpr int ScanInformation = 0x04;
constexpr int Dtmf = 0x08;
constexpr int Corvane = 0x10;
constexpr int TestFrequency = 0x20;
constexpr int EmbeddedMessage = 0x40;
constexpr int ChannelInformation = 0x80;

class DataReportTest : public ::testing::Test {
protected:
    DataReportTest() { testing::UseEvenPage(device); }

    const std::vector<FakePage>& Print(const DataImage& image, int selection, Language language = Language::English) {
        PrintDataReport(device, BuildDataReport(image, ReportSelection(static_cast<unsigned>(selection)), "Zelvor.dat",
                                                language, {2024, 5, 31, 14, 7, 9}));
        return device.Pages();
    }
    /// The first text in letters of that size.
    static FakePageText TextOfSize(const FakePage& page, double pointSize) {
        for (const FakePageText& text : page.texts) {
            if (text.pointSize == pointSize) {
                return text;
            }
        }
        ADD_FAILURE() << "no text of " << pointSize << " points";
        return {};
    }
    static std::string FootOf(const FakePage& page) { return page.texts.back().text; }

    FakePageDevice device;
};

TEST_F(DataReportTest, OfNoSectionsIsNoDocument) {
    EXPECT_TRUE(Print(ImageWithChannels(1), 0).empty());
    EXPECT_TRUE(device.Documents().empty());
}

TEST_F(DataReportTest, IsOneDocumentThatBearsItsTitle) {
    Print(ImageWithChannels(5), AllSections);
    EXPECT_EQ(device.Documents(), (std::vector<std::string>{"Zelvor Radio Programming Information"}));
}

TEST_F(DataReportTest, IsNamedInChinese) {
    Print(ImageWithChannels(5), OptionalFeatures, Language::Chinese);
    EXPECT_EQ(device.Documents(), (std::vector<std::string>{"Zelvor 对讲机编程信息"}));
}

TEST_F(DataReportTest, PrintsItsSectionsInOrderEachOnANewPage) {
    const auto& pages = Print(ImageWithChannels(1), AllSections);
    const std::vector<std::string> titles{
        " Optional Features", " Key Assignment", " Scan Information", " DTMF",
        " Corvane",           " Test Frequency", " Embedded Message", " Channel Information"};
    ASSERT_EQ(pages.size(), titles.size());
    for (std::size_t i = 0; i < titles.size(); ++i) {
        EXPECT_EQ(TextAt(pages[i], 10, 0), titles[i]);
    }
}

TEST_F(DataReportTest, WithOnlyTheChannelsBeginsWithAChannelPage) {
    const auto& pages = Print(ImageWithChannels(5), ChannelInformation);
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(TextAt(pages[0], 10, 0), " Channel Information");
    EXPECT_EQ(FootOf(pages[0]), "- 1 -");
    EXPECT_EQ(TextAt(pages[0], 46, 0), "Channel 4");
    EXPECT_EQ(TextAt(pages[1], 13, 0), "Channel 5");
    EXPECT_EQ(TextAt(pages[1], 24, 0), "");
}

TEST_F(DataReportTest, OfOptionalFeaturesAndChannelsCountsItsPagesThrough) {
    const auto& pages = Print(ImageWithChannels(5), OptionalFeatures | ChannelInformation);
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_EQ(TextAt(pages[0], 10, 0), " Optional Features");
    EXPECT_EQ(TextAt(pages[1], 10, 0), " Channel Information");
    EXPECT_EQ(FootOf(pages[0]), "- 1 -");
    EXPECT_EQ(FootOf(pages[1]), "- 2 -");
    EXPECT_EQ(FootOf(pages[2]), "- 3 -");
}

TEST_F(DataReportTest, TakesAPageForEveryFourChannelsAndAtLeastOne) {
    constexpr std::pair<int, std::size_t> counts[]{{0, 1}, {1, 1}, {4, 1}, {5, 2}, {8, 2}, {9, 3}, {12, 3}, {16, 4}};
    for (const auto& [channels, pages] : counts) {
        FakePageDevice printer;
        PrintDataReport(printer, BuildDataReport(ImageWithChannels(channels), ReportSelection(ChannelInformation), "",
                                                 Language::English, {}));
        EXPECT_EQ(printer.Pages().size(), pages) << channels << " channels";
    }
}

TEST_F(DataReportTest, WithoutAChannelInUsePrintsNothingButTheSectionsTitle) {
    const auto& pages = Print(ImageWithChannels(0), ChannelInformation);
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_EQ(testing::CellsOf(pages[0]),
              (std::vector<std::string>{"4 4 \"Model Type\"", "4 30 \"4618(VHF) M\"", "5 4 \"Frequency\"",
                                        "5 30 \"136-174MHz\"", "6 4 \"File Name\"", "6 30 \"Zelvor.dat\"",
                                        "10 0 \" Channel Information\""}));
    EXPECT_EQ(FootOf(pages[0]), "- 1 -");
    EXPECT_EQ(device.Documents().size(), 1U);
}

TEST_F(DataReportTest, CountsAChannelByTheFirstByteOfItsRecordAlone) {
    DataImage image = ImageWithChannels(0);
    testing::StoreHex(image, 0x010, "FF255114"); // not in use
    testing::StoreHex(image, 0x020, "00FFFFFF"); // in use, with no frequency
    const auto& pages = Print(image, ChannelInformation);
    EXPECT_EQ(TextAt(pages[0], 13, 0), "Channel 2");
    EXPECT_EQ(TextAt(pages[0], 14, 35), "000.00000");
    EXPECT_EQ(TextAt(pages[0], 24, 0), "");
}

TEST_F(DataReportTest, HasItsTitleCentredInTheFirstRowInBoldLettersOfSixteenPoints) {
    const FakePageText title = TextOfSize(Print(ImageWithChannels(0), OptionalFeatures)[0], 16);
    EXPECT_EQ(title.text, "Zelvor Radio Programming Information");
    EXPECT_TRUE(title.bold);
    EXPECT_EQ(title.x, (13000 - 36 * 160) / 2);
    EXPECT_EQ(title.y, 800);
}

TEST_F(DataReportTest, HasDateAndTimeAtTheEndOfTheLine) {
    const FakePageText date = TextOfSize(Print(ImageWithChannels(0), OptionalFeatures)[0], 11);
    EXPECT_EQ(date.text, "2024-05-31  14:07:09");
    EXPECT_EQ(date.x, 11700 - 20 * 110);
    EXPECT_EQ(date.y, 800 + 2 * 240);
}

TEST_F(DataReportTest, RulesTwoLinesOverNineTenthsOfTheWidth) {
    const auto& pages = Print(ImageWithChannels(0), OptionalFeatures);
    EXPECT_EQ(pages[0].lines,
              (std::vector<FakePageLine>{{1300, 800 + 840, 11700, 800 + 840}, {1300, 800 + 1920, 11700, 800 + 1920}}));
}

TEST_F(DataReportTest, HasItsFootCentredNearTheEndOfThePage) {
    const FakePageText foot = Print(ImageWithChannels(0), OptionalFeatures)[0].texts.back();
    EXPECT_EQ(foot.text, "- 1 -");
    EXPECT_EQ(foot.x, (13000 - 5 * 100) / 2);
    EXPECT_EQ(foot.y, 15200);
    EXPECT_EQ(foot.pointSize, 10);
}

TEST_F(DataReportTest, CutsOriginAndUnitsToWholeTwips) {
    device.SetPageSize(11907, 16838); // A4
    const FakePage page = Print(ImageWithChannels(0), 0x02)[0];
    // 1190.7, 82.43; 841.9, 252.57
    for (const FakePageText& text : page.texts) {
        if (text.text == "PF2") {
            EXPECT_EQ(text.x, 1190 + 4 * 82);
            EXPECT_EQ(text.y, 841 + 13 * 252);
        }
        if (text.text == "Frequency") {
            EXPECT_EQ(text.x, 1190 + 4 * 82);
            EXPECT_EQ(text.y, 841 + 5 * 252);
        }
    }
    EXPECT_EQ(page.lines.front(), (FakePageLine{1190, 841 + 882, 10710, 841 + 882}));
    EXPECT_NEAR(page.texts.back().y, 15996.1, 0.01);
}

TEST_F(DataReportTest, NamesEveryVariantByItsPrintedTexts) {
    struct Variant {
        std::uint8_t family;
        std::uint8_t market;
        const char* model;
        const char* band;
    };
    for (const Variant& variant : {Variant{0xF8, 1, "4618(VHF) M", "136-174MHz"},
                                   {0xF8, 115, "5618(UHF) C7", "400-470MHz"},
                                   {0xF9, 113, "5613(UHF) M2", "470-512MHz"},
                                   {0xFC, 33, "5617(UHF) M", "459-490MHz"},
                                   {0xFC, 65, "5617(UHF) M3", "400-430MHz"},
                                   {0xF8, 0, "4618(VHF) M", "136-174MHz"},
                                   {0xFF, 0xFF, "4618(VHF) M", "136-174MHz"}}) {
        DataImage image;
        image.Set(0x1BE, variant.family);
        image.Set(0x1BD, variant.market);
        FakePageDevice printer;
        testing::UseEvenPage(printer);
        PrintDataReport(printer, BuildDataReport(image, ReportSelection(OptionalFeatures), "", Language::English, {}));
        EXPECT_EQ(TextAt(printer.Pages()[0], 4, 30), variant.model);
        EXPECT_EQ(TextAt(printer.Pages()[0], 5, 30), variant.band);
    }
}

TEST_F(DataReportTest, ShortensALongFileNameInTheMiddleToTheEndOfTheLine) {
    const std::string name = "/home/user/" + std::string(180, 'x') + "/Zelvor.dat";
    PrintDataReport(
        device, BuildDataReport(ImageWithChannels(0), ReportSelection(OptionalFeatures), name, Language::English, {}));
    const std::string printed = TextAt(device.Pages()[0], 6, 30);
    EXPECT_TRUE(printed.starts_with("/home/user/x")) << printed;
    EXPECT_TRUE(printed.ends_with("x/Zelvor.dat")) << printed;
    EXPECT_NE(printed.find("x…x"), std::string::npos) << printed;
    // 77 characters of 100 twips from 4000 on: one more would pass the line's end at 11700.
    EXPECT_EQ(printed.size(), 76U + std::string("…").size());
}

// The values that fields have apart from those of the golden document.

TEST_F(DataReportTest, NamesTheLanguageSetupForAPttIdOfBoth) {
    DataImage image;
    constexpr const char* words[]{"BOT", "EOT", "Language File Setup", ""};
    for (int byte = 0; byte < 4; ++byte) {
        image.Set(0x132, static_cast<std::uint8_t>(byte));
        EXPECT_EQ(TextAt(Print(image, OptionalFeatures).back(), 22, 40), words[byte]) << byte;
    }
    image.Set(0x132, 2);
    EXPECT_EQ(TextAt(Print(image, OptionalFeatures, Language::Chinese).back(), 22, 40), "语言文件设置");
}

TEST_F(DataReportTest, PrintsDashesForAnEmptyCode) {
    DataImage image;
    testing::StoreHex(image, 0x150, "3938");
    const FakePage page = Print(image, OptionalFeatures)[0];
    EXPECT_EQ(TextAt(page, 23, 40), "------");
    EXPECT_EQ(TextAt(page, 24, 40), "98");
}

TEST_F(DataReportTest, PrintsTheGroupCodeZeroInChineseAlsoInEnglish) {
    DataImage image;
    for (const auto& [byte, text] : {std::pair(0, "关"), {'A', "A"}, {'#', "#"}, {'*', "*"}, {0xFF, ""}}) {
        image.Set(0x116, static_cast<std::uint8_t>(byte));
        EXPECT_EQ(TextAt(Print(image, Dtmf).back(), 15, 100), text) << byte;
    }
}

TEST_F(DataReportTest, PrintsOffOfSomeFieldsInTheLanguageAndOfOthersInChinese) {
    DataImage image;
    image.Set(0x131, 0); // pre-alert
    image.Set(0x13A, 0); // VOX gain
    image.Set(0x117, 0); // reset timer
    image.Set(0x118, 2); // call alert
    image.Set(0x119, 0); // transpond
    image.Set(0x12F, 0); // voice
    testing::StoreHex(image, 0x176, "0000");
    const auto& pages = Print(image, OptionalFeatures | Dtmf | Corvane);
    EXPECT_EQ(TextAt(pages[0], 13, 40), "Off");
    EXPECT_EQ(TextAt(pages[0], 18, 40), "Off");
    EXPECT_EQ(TextAt(pages[0], 26, 40), "关");
    EXPECT_EQ(TextAt(pages[1], 16, 100), "Off");
    EXPECT_EQ(TextAt(pages[1], 17, 100), "Off");
    EXPECT_EQ(TextAt(pages[1], 18, 100), "关");
    EXPECT_EQ(TextAt(pages[2], 16, 40), "关");
}

TEST_F(DataReportTest, LeavesOutWhatTheWindowsDoNotShow) {
    const auto& pages = Print(DataImage(), OptionalFeatures | ScanInformation | Dtmf);
    EXPECT_EQ(TextAt(pages[0], 12, 40), "3825"); // 255 steps
    EXPECT_EQ(TextAt(pages[0], 13, 40), "");
    EXPECT_EQ(TextAt(pages[0], 15, 40), "");
    EXPECT_EQ(TextAt(pages[0], 16, 40), "Enabled");
    EXPECT_EQ(TextAt(pages[0], 26, 40), "");
    EXPECT_EQ(TextAt(pages[1], 12, 40), "None");
    EXPECT_EQ(TextAt(pages[1], 13, 40), "---");
    EXPECT_EQ(TextAt(pages[1], 14, 40), "");
    EXPECT_EQ(TextAt(pages[1], 16, 40), "");
    EXPECT_EQ(TextAt(pages[1], 17, 40), "");
    EXPECT_EQ(TextAt(pages[2], 14, 100), "");
    EXPECT_EQ(TextAt(pages[2], 19, 100), "Disabled");
}

TEST_F(DataReportTest, PrintsASecondsDCode) {
    DataImage image;
    for (const auto& [byte, text] : {std::pair(0, "D 码"), {1, "1s"}, {16, "16s"}, {0xFF, "D 码"}}) {
        image.Set(0x114, static_cast<std::uint8_t>(byte));
        EXPECT_EQ(TextAt(Print(image, Dtmf).back(), 18, 40), text) << byte;
    }
}

TEST_F(DataReportTest, PrintsDashesForTheOwnFleetAndIdThatAreNone) {
    DataImage image;
    testing::StoreHex(image, 0x170, "FF0000");
    const FakePage page = Print(image, Corvane)[0];
    EXPECT_EQ(TextAt(page, 12, 40), "---");
    EXPECT_EQ(TextAt(page, 13, 40), "----");
    EXPECT_EQ(TextAt(page, 14, 40), "");
}

TEST_F(DataReportTest, PrintsAMessageOfThirtyTwoCharactersWhole) {
    DataImage image;
    testing::StoreHex(image, 0x300, "4142434445464748494A4B4C4D4E4F505152535455565758595A303132333435");
    testing::StoreHex(image, 0x320, "80FF");
    const FakePage page = Print(image, EmbeddedMessage)[0];
    EXPECT_EQ(TextAt(page, 12, 4), "ABCDEFGHIJKLMNOPQRSTUVWXYZ012345");
    EXPECT_EQ(TextAt(page, 13, 4), "€");
}

TEST_F(DataReportTest, TellsATestChannelEmptyByItsFirstByte) {
    DataImage image;
    testing::StoreHex(image, 0x280, "FF50501500005115");
    testing::StoreHex(image, 0x288, "0050501500005115");
    const FakePage page = Print(image, TestFrequency)[0];
    EXPECT_EQ(TextAt(page, 13, 35), "");
    EXPECT_EQ(TextAt(page, 13, 65), "");
    EXPECT_EQ(TextAt(page, 14, 35), "155.05000");
    EXPECT_EQ(TextAt(page, 14, 65), "155.10000");
}

} // namespace
} // namespace zelvor
