#include "controls/WindowState.h"

#include <gtest/gtest.h>

namespace zelvor {
namespace {

TEST(WindowState, StartsInEnglishAtTheFirstChannelWithNothingOpen) {
    const WindowState windows;
    EXPECT_EQ(windows.LanguageFlag, Language::English);
    EXPECT_FALSE(windows.ExitConfirmed);
    EXPECT_EQ(windows.Cursor.CurrentChannel(), 1);
    EXPECT_EQ(windows.Cursor.EditChannel(), 1);
    EXPECT_FALSE(windows.IsAnyChildOpen());
}

TEST(WindowState, LoadsTextsInItsLanguage) {
    WindowState windows;
    EXPECT_EQ(windows.LoadText(Text::MenuFile), "&File");
    EXPECT_EQ(windows.LoadText(Text::Corvane), "Corvane");
    windows.LanguageFlag = Language::Chinese;
    EXPECT_EQ(windows.LoadText(Text::MenuFile), "文件(&F)");
    EXPECT_EQ(windows.LoadText(Text::Corvane), "Corvane");
    EXPECT_EQ(windows.LoadText(static_cast<Text>(254)), "");
}

TEST(WindowState, KnowsWhetherAnyOfItsTenChildWindowsIsOpen) {
    const ChildWindow all[] = {
        ChildWindow::Channels,  ChildWindow::OptionalFeatures, ChildWindow::KeyAssignment, ChildWindow::Scan,
        ChildWindow::Dtmf,      ChildWindow::Corvane,          ChildWindow::TestFrequency, ChildWindow::EmbeddedMessage,
        ChildWindow::Navigator, ChildWindow::ChannelEdit};
    WindowState windows;
    ASSERT_EQ(windows.Open().size(), 10U);
    for (std::size_t i = 0; i < 10; ++i) {
        windows.SetOpen(all[i], true);
        EXPECT_TRUE(windows.Open()[i]);
        EXPECT_TRUE(windows.IsOpen(all[i]));
        EXPECT_TRUE(windows.IsAnyChildOpen());
        windows.SetOpen(all[i], false);
        EXPECT_FALSE(windows.IsOpen(all[i]));
        EXPECT_FALSE(windows.IsAnyChildOpen());
    }
}

} // namespace
} // namespace zelvor
