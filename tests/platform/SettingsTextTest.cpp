#include "platform/SettingsText.h"

#include <gtest/gtest.h>
#include <string>

namespace zelvor {
namespace {

TEST(SettingsText, GivesTheEntryOfItsSection) {
    const std::string text = "[Other]\nLanguage=9\n[BackUp]\nLastModel=50:34\nLanguage=1\n[More]\nLastModel=no\n";
    EXPECT_EQ(SettingOf(text, "BackUp", "Language"), "1");
    EXPECT_EQ(SettingOf(text, "BackUp", "LastModel"), "50:34");
    EXPECT_EQ(SettingOf(text, "Other", "Language"), "9");
    EXPECT_EQ(SettingOf(text, "Other", "LastModel"), "");
    EXPECT_EQ(SettingOf(text, "Missing", "Language"), "");
    EXPECT_EQ(SettingOf("", "BackUp", "Language"), "");
    EXPECT_EQ(SettingOf("Language=1\n", "BackUp", "Language"), "");
}

TEST(SettingsText, TakesBlanksLineEndsAndCommentsAsTheyCome) {
    const std::string text =
        "; Language=3\r\n  [BackUp]  \r\n; Language=4\r\n Language = 1 \r\n\r\nLastModel=\"50:34\"";
    EXPECT_EQ(SettingOf(text, "BackUp", "Language"), "1");
    EXPECT_EQ(SettingOf(text, "BackUp", "LastModel"), "50:34");
}

TEST(SettingsText, IsMadeWhereThereIsNone) {
    EXPECT_EQ(WithSetting("", "BackUp", "Language", "1"), "[BackUp]\nLanguage=1\n");
    EXPECT_EQ(WithSetting("[BackUp]\n", "BackUp", "Language", "1"), "[BackUp]\nLanguage=1\n");
    EXPECT_EQ(WithSetting("[BackUp]", "BackUp", "Language", "1"), "[BackUp]\nLanguage=1\n");
    EXPECT_EQ(WithSetting("[Other]\nA=b\n", "BackUp", "Language", "1"), "[Other]\nA=b\n[BackUp]\nLanguage=1\n");
}

TEST(SettingsText, KeepsAllOtherLines) {
    EXPECT_EQ(WithSetting("# mine\n[BackUp]\nLastModel=50:34\n Language = 0\nX=y\n\n[Other]\nLanguage=7\n", "BackUp",
                          "Language", "1"),
              "# mine\n[BackUp]\nLastModel=50:34\nLanguage=1\nX=y\n\n[Other]\nLanguage=7\n");
    EXPECT_EQ(WithSetting("[BackUp]\nLastModel=50:34\n\n[Other]\nLanguage=7\n", "BackUp", "Language", "1"),
              "[BackUp]\nLastModel=50:34\nLanguage=1\n\n[Other]\nLanguage=7\n");
}

TEST(SettingsText, QuotesWhatIsNotPlain) {
    EXPECT_EQ(WithSetting("", "S", "a", ""), "[S]\na=\"\"\n");
    EXPECT_EQ(WithSetting("", "S", "a", " b"), "[S]\na=\" b\"\n");
    EXPECT_EQ(WithSetting("", "S", "a", "\"b\\c\"\n"), "[S]\na=\"\\\"b\\\\c\\\"\\n\"\n");
    EXPECT_EQ(SettingOf("[S]\na=\"\\\"b\\\\c\\\"\\n\"\n", "S", "a"), "\"b\\c\"\n");
    EXPECT_EQ(SettingOf("[S]\na=\"\"\n", "S", "a"), "");
    EXPECT_EQ(SettingOf("[S]\na=\"\n", "S", "a"), "\"");
}

} // namespace
} // namespace zelvor
