#include <gtest/gtest.h>

#include "print/DataReport.h"
#include "print/ReportImage.h"
#include "support/PrintedPages.h"

// What the sections print, text by text, is in the files below golden/: lines of row, column and text.
namespace zelvor {
namespace {

using testing::ExpectCells;

struct Section {
    int number;
    std::string golden;
};

class PrintedSection : public ::testing::TestWithParam<Section> {
protected:
    std::vector<FakePage> PrintIn(Language language) {
        testing::UseEvenPage(device_);
        ReportSelection selection;
        selection.set(static_cast<std::size_t>(GetParam().number));
        PrintDataReport(device_, BuildDataReport(testing::ReportImage(), selection, "Zelvor.dat", language, {}));
        return device_.Pages();
    }

    FakePageDevice device_;
};

TEST_P(PrintedSection, HasItsTextsAtTheirCellsInEnglish) {
    const std::vector<FakePage> pages = PrintIn(Language::English);
    ASSERT_EQ(pages.size(), 1U);
    ExpectCells(pages[0], GetParam().golden + "_en");
}

TEST_P(PrintedSection, HasItsTextsAtTheirCellsInChinese) {
    const std::vector<FakePage> pages = PrintIn(Language::Chinese);
    ASSERT_EQ(pages.size(), 1U);
    ExpectCells(pages[0], GetParam().golden + "_zh");
}

INSTANTIATE_TEST_SUITE_P(Sections, PrintedSection,
                         ::testing::Values(Section{0, "optional"}, Section{1, "keys"}, Section{2, "scan"},
                                           Section{3, "dtmf"}, Section{4, "corvane"}, Section{5, "test"},
                                           Section{6, "message"}),
                         [](const auto& section) { return section.param.golden; });

class PrintedChannels : public ::testing::TestWithParam<std::pair<Language, std::string>> {};

TEST_P(PrintedChannels, StandFourToAPage) {
    const auto& [language, suffix] = GetParam();
    FakePageDevice device;
    testing::UseEvenPage(device);
    PrintDataReport(device, BuildDataReport(testing::ReportImage(), ReportSelection(0x80), "Zelvor.dat", language, {}));
    ASSERT_EQ(device.Pages().size(), 2U);
    ExpectCells(device.Pages()[0], "channels1_" + suffix);
    ExpectCells(device.Pages()[1], "channels2_" + suffix);
}

INSTANTIATE_TEST_SUITE_P(Languages, PrintedChannels,
                         ::testing::Values(std::pair(Language::English, "en"), std::pair(Language::Chinese, "zh")),
                         [](const auto& language) { return language.param.second; });

} // namespace
} // namespace zelvor
