#include <QMenu>
#include <QMenuBar>

#include "shell/ShellTest.h"

namespace zelvor {
namespace {

struct ExpectedEntry {
    const char* name;
    const char* english; // null: a separator
    const char* chinese;
    bool visible = true;
};

struct ExpectedMenu {
    const char* name;
    const char* english;
    const char* chinese;
    std::vector<ExpectedEntry> entries;
};

const std::vector<ExpectedMenu> ExpectedMenus{
    {"MnuFile",
     "&File",
     "文件(&F)",
     {{"MnuFileNew", "&New", "新建(&N)"},
      {"MnuFileOpen", "&Open", "打开(&O)"},
      {"MnuFileSave", "&Save", "保存(&S)"},
      {"MnuFileSaveAs", "Save &As", "另存为(&A)"},
      {"MnuFileBlank1", nullptr, nullptr},
      {"MnuFilePrint", "&Print", "打印(&P)"},
      {"MnuFilePreview", "Print Pre&view", "打印预览(&V)", false},
      {"MnuFileBlank2", nullptr, nullptr},
      {"MnuFileExit", "E&xit", "退出(&X)"}}},
    {"MnuModel", "&Model", "机型(&M)", {{"MnuModelInformation", "&Model Information", "机型信息(&M)"}}},
    {"MnuEdit",
     "&Edit",
     "编辑(&E)",
     {{"MnuEditChannelInformation", "&Channel Information", "信道信息(&C)"},
      {"MnuEditBlank1", nullptr, nullptr},
      {"MnuEditOptionalFeatures", "&Optional Features", "可选功能(&O)"},
      {"MnuEditKeyAssignment", "&Key Assignment", "键设定(&K)"},
      {"MnuEditScanInformation", "&Scan Information", "扫描信息(&S)"},
      {"MnuEditBlank2", nullptr, nullptr},
      {"MnuEditDTMF", "&DTMF", "DTMF(双音多频)(&D)"},
      {"MnuEditCorvane", "&Corvane", "Corvane(科瓦讯)(&F)"},
      {"MnuEditBlank3", nullptr, nullptr},
      {"MnuEditTestFrequency", "&Test Frequency", "测试频率(&T)"},
      {"MnuEditEmbeddedMessage", "Embedded &Message", "嵌入信息(&M)"}}},
    {"MnuProgram",
     "&Program",
     "编程(&P)",
     {{"MnuProgramRead", "&Read from Radio", "从对讲机读取数据(&R)"},
      {"MnuProgramWrite", "&Write to Radio", "向对讲机写入数据(&W)"},
      {"MnuProgramTestMode", "&Test Mode", "测试模式(&T)"},
      {"MnuProgramMemoryMap", "&Memory Map", "内存指针图(&M)", false}}},
    {"MnuTool", "&Tools", "工具(&T)", {{"MnuToolRadioInformation", "&Radio Information", "对讲机信息(&R)"}}},
    {"MnuSetup",
     "&Setup",
     "设置(&S)",
     {{"MnuSetupCommunicationPort", "&Communication Port", "通信端口(&C)"},
      {"MnuSetupLanguageFileSetup", "&Language File Setup", "语言文件设置(&L)"}}},
    {"MnuView",
     "&View",
     "视图(&V)",
     {{"MnuViewTreeView", "Tree &View", "树视图(&V)"},
      {"MnuViewBlank", nullptr, nullptr},
      {"MnuViewToolbar", "&Toolbar", "工具栏(&T)"},
      {"MnuViewStatusBar", "&Status bar", "状态栏(&S)"}}},
    {"MnuWindow",
     "&Window",
     "窗口(&W)",
     {{"MnuWindowCascade", "&Cascade", "层叠(&C)"},
      {"MnuWindowHorizontally", "Tile Windows &Horizontally", "横向平铺窗口(&H)"},
      {"MnuWindowVertically", "Tile Windows &Vertically", "纵向平铺窗口(&V)"},
      {"MnuWindowArrangeIcon", "&Arrange Icons", "排列图标(&A)"},
      {"MnuWindowBlank1", nullptr, nullptr},
      {"MnuWindowCloseAll", "Close All &Windows", "关闭所有窗口(&W)"},
      {"MnuWindowBlank2", nullptr, nullptr},
      {"MnuWindowSub(0)", " Channel Information [ Channel - 1 ]", " 信道信息 [ 信道 - 1 ]"},
      {"MnuWindowSub(1)", "", "", false},
      {"MnuWindowSub(2)", "", "", false},
      {"MnuWindowSub(3)", "", "", false},
      {"MnuWindowSub(4)", "", "", false},
      {"MnuWindowSub(5)", "", "", false},
      {"MnuWindowSub(6)", "", "", false},
      {"MnuWindowSub(7)", "", "", false},
      {"MnuWindowSub(8)", "", "", false}}},
    {"MnuHelp",
     "&Help",
     "帮助(&H)",
     {{"MnuHelpTopics", "&Help Topics", "帮助主题(&H)"},
      {"MnuHelpBlank", nullptr, nullptr},
      {"MnuHelpAbout", "&About Zelvor", "关于 Zelvor(&A)"}}},
};

class MenuTest : public ShellTest {
protected:
    static void ExpectEntry(const QAction& actual, const ExpectedEntry& expected, bool chinese) {
        SCOPED_TRACE(expected.name);
        EXPECT_EQ(actual.objectName(), expected.name);
        EXPECT_EQ(actual.isVisible(), expected.visible);
        EXPECT_EQ(actual.isSeparator(), expected.english == nullptr);
        if (expected.english != nullptr) {
            EXPECT_EQ(actual.text().toStdString(), chinese ? expected.chinese : expected.english);
        }
    }

    void ExpectMenus(bool chinese) const {
        const auto titles = window->menuBar()->actions();
        ASSERT_EQ(titles.size(), 9);
        for (int i = 0; i < 9; ++i) {
            const ExpectedMenu& expected = ExpectedMenus[static_cast<std::size_t>(i)];
            SCOPED_TRACE(expected.name);
            EXPECT_EQ(titles[i]->menu()->objectName(), expected.name);
            EXPECT_EQ(titles[i]->text().toStdString(), chinese ? expected.chinese : expected.english);
            const auto actions = titles[i]->menu()->actions();
            ASSERT_EQ(static_cast<std::size_t>(actions.size()), expected.entries.size());
            for (int entry = 0; entry < actions.size(); ++entry) {
                ExpectEntry(*actions[entry], expected.entries[static_cast<std::size_t>(entry)], chinese);
            }
        }
    }
};

TEST_F(MenuTest, EveryMenuAndEntryHasItsNameAndEnglishText) {
    OpenMainWindow();
    ExpectMenus(false);
}

TEST_F(MenuTest, EveryMenuAndEntryHasItsNameAndChineseText) {
    OpenMainWindowInChinese();
    ExpectMenus(true);
}

TEST_F(MenuTest, CaptionsFollowTheLanguageWhenTheyAreApplied) {
    OpenMainWindow();
    windows.LanguageFlag = Language::Chinese;
    window->ApplyMenuCaptions();
    EXPECT_EQ(TextOf("MnuFileSaveAs"), "另存为(&A)");
    EXPECT_EQ(TextOf("MnuWindowSub(0)"), " Channel Information [ Channel - 1 ]");
}

TEST_F(MenuTest, TheToolbarIsHiddenAndShownByItsEntry) {
    OpenMainWindow();
    auto* toolbar = Find<QWidget>("Toolbar1");
    EXPECT_TRUE(Entry("MnuViewToolbar")->isChecked());
    Choose("MnuViewToolbar");
    EXPECT_FALSE(Entry("MnuViewToolbar")->isChecked());
    EXPECT_FALSE(toolbar->isVisible());
    Choose("MnuViewToolbar");
    EXPECT_TRUE(Entry("MnuViewToolbar")->isChecked());
    EXPECT_TRUE(toolbar->isVisible());
}

TEST_F(MenuTest, TheStatusBarIsHiddenAndShownByItsEntry) {
    OpenMainWindow();
    auto* statusBar = Find<QWidget>("StatusBar1");
    EXPECT_TRUE(Entry("MnuViewStatusBar")->isChecked());
    Choose("MnuViewStatusBar");
    EXPECT_FALSE(Entry("MnuViewStatusBar")->isChecked());
    EXPECT_FALSE(statusBar->isVisible());
    Choose("MnuViewStatusBar");
    EXPECT_TRUE(statusBar->isVisible());
}

TEST_F(MenuTest, AccessKeysOpenMenusAndChooseEntries) {
    OpenMainWindow();
    QTest::keyClick(window.get(), Qt::Key_V, Qt::AltModifier);
    auto* menu = Find<QMenu>("MnuView");
    ASSERT_TRUE(menu->isVisible());
    QTest::keyClick(menu, Qt::Key_T);
    EXPECT_FALSE(Find<QWidget>("Toolbar1")->isVisible());
}

TEST_F(MenuTest, AccessKeysOfTheGridsButtonsComeBeforeThoseOfTheMenus) {
    OpenMainWindow();
    auto* grid = Find<QWidget>("ChannelGrid");
    QTest::keyClick(grid, Qt::Key_E, Qt::AltModifier);
    EXPECT_FALSE(Find<QMenu>("MnuEdit")->isVisible());
    EXPECT_TRUE(QTest::qWaitFor([this] { return IsChildShown("ChannelEditForm"); }));
}

TEST_F(MenuTest, AltAloneLeadsToTheMenusWhoseLettersTheGridHas) {
    OpenMainWindow();
    QTest::keyClick(Find<QWidget>("ChannelGrid"), Qt::Key_Alt);
    QTest::keyClick(window->menuBar(), Qt::Key_E);
    EXPECT_TRUE(Find<QMenu>("MnuEdit")->isVisible());
}

} // namespace
} // namespace zelvor
