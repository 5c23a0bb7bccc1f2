#include "shell/ShellTest.h"

namespace zelvor {
namespace {

class HelpTest : public ShellTest {
protected:
    void ExpectTopic(const char* end) const {
        ASSERT_EQ(fakes.help.Topics().size(), 1U);
        const std::string directory = QCoreApplication::applicationDirPath().toStdString();
        EXPECT_EQ(fakes.help.Topics()[0], directory + end);
    }
};

TEST_F(HelpTest, HelpTopicsShowsTheGeneralPage) {
    OpenMainWindow();
    Choose("MnuHelpTopics");
    ExpectTopic("\\Zelvor_e.chm::/html/general.htm");
}

TEST_F(HelpTest, HelpTopicsShowsTheChinesePageInChinese) {
    OpenMainWindowInChinese();
    Choose("MnuHelpTopics");
    ExpectTopic("\\Zelvor_c.chm::/html/general.htm");
}

TEST_F(HelpTest, TheHelpKeyShowsThePageOfTheActiveWindow) {
    OpenMainWindow();
    QTest::keyClick(window.get(), Qt::Key_F1);
    ExpectTopic("\\Zelvor_e.chm::/html/chinfo.htm");
}

TEST_F(HelpTest, TheHelpKeyShowsThePageOfTheNavigator) {
    OpenMainWindow();
    Choose("MnuViewTreeView");
    QTest::keyClick(window.get(), Qt::Key_F1);
    ExpectTopic("\\Zelvor_e.chm::/html/treeview.htm");
}

TEST_F(HelpTest, TheHelpButtonOfTheNavigatorShowsItsPage) {
    OpenMainWindow();
    Choose("MnuViewTreeView");
    ClickButton("TreeViewForm", "cmdHelp");
    ExpectTopic("\\Zelvor_e.chm::/html/treeview.htm");
}

TEST_F(HelpTest, TheHelpKeyShowsTheGeneralPageWhereNoWindowIsOpen) {
    OpenMainWindow();
    Choose("MnuWindowCloseAll");
    QTest::keyClick(window.get(), Qt::Key_F1);
    ExpectTopic("\\Zelvor_e.chm::/html/general.htm");
}

} // namespace
} // namespace zelvor
