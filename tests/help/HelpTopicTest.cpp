#include "help/HelpTopic.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include "fakes/FakeServices.h"

namespace zelvor {
namespace {

std::string ProgramFolder() {
    return QCoreApplication::applicationDirPath().toStdString();
}

TEST(HelpTopics, OfTheEnglishHelpFileLieBelowEn) {
    const HelpTopic topic{Language::English, "chinfo.htm"};
    EXPECT_EQ(HelpTopicPath(topic), ProgramFolder() + "\\Zelvor_e.chm::/html/chinfo.htm");
    EXPECT_EQ(PagePathOf(topic), "en/chinfo.htm");
}

TEST(HelpTopics, OfTheChineseHelpFileLieBelowZh) {
    const HelpTopic topic{Language::Chinese, "commport.htm"};
    EXPECT_EQ(HelpTopicPath(topic), ProgramFolder() + "\\Zelvor_c.chm::/html/commport.htm");
    EXPECT_EQ(PagePathOf(topic), "zh/commport.htm");
}

TEST(FakeHelpViewer, KeepsTheTopics) {
    FakeServices fakes;
    fakes.Get().help.Show({Language::English, "chinfo.htm"});
    EXPECT_EQ(fakes.help.Topics(), std::vector<std::string>{ProgramFolder() + "\\Zelvor_e.chm::/html/chinfo.htm"});
}

} // namespace
} // namespace zelvor
