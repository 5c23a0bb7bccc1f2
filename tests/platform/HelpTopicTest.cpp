#include <gtest/gtest.h>

#include "platform/HelpTopic.h"

namespace zelvor {
namespace {

TEST(HelpTopics, OfTheEnglishHelpFileLieBelowEn) {
    const auto topic = ParseHelpTopic("/opt/zelvor\\Zelvor_e.chm::/html/chinfo.htm");
    ASSERT_TRUE(topic);
    EXPECT_EQ(topic->language, Language::English);
    EXPECT_EQ(topic->page, "chinfo.htm");
    EXPECT_EQ(PagePathOf(*topic), "en/chinfo.htm");
}

TEST(HelpTopics, OfTheChineseHelpFileLieBelowZh) {
    const auto topic = ParseHelpTopic("C:\\Program Files\\Zelvor\\Zelvor_c.chm::/html/commport.htm");
    ASSERT_TRUE(topic);
    EXPECT_EQ(topic->language, Language::Chinese);
    EXPECT_EQ(PagePathOf(*topic), "zh/commport.htm");
}

TEST(HelpTopics, OfAnyOtherFormAreNone) {
    for (const char* path : {"", "/opt/Zelvor_e.chm", "/opt/Zelvor_e.chm::/html/", "/opt/Other_e.chm::/html/a.htm",
                             "/opt/Zelvor_e.chm::/html/../../secret.htm", "/opt/Zelvor_e.chm::/html/..\\secret.htm"}) {
        EXPECT_EQ(ParseHelpTopic(path), std::nullopt) << path;
    }
}

} // namespace
} // namespace zelvor
