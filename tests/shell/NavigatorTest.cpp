#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTreeWidget>

#include "shell/ShellTest.h"

namespace zelvor {
namespace {

class NavigatorTest : public ShellTest {
protected:
    void OpenNavigator() {
        Choose("MnuViewTreeView");
        ASSERT_TRUE(IsChildShown("TreeViewForm"));
    }
    void CloseGrid() {
        CloseFrame("ChannelForm");
        ASSERT_FALSE(IsChildShown("ChannelForm"));
    }

    [[nodiscard]] QTreeWidget* Tree() const { return Find<QTreeWidget>("treView"); }
    [[nodiscard]] QTreeWidgetItem* Root() const { return Tree()->topLevelItem(0); }
    [[nodiscard]] QPoint PlaceOf(QTreeWidgetItem* item) const { return Tree()->visualItemRect(item).center(); }
    void ClickOn(QTreeWidgetItem* item) const {
        QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, {}, PlaceOf(item));
    }
    /// The events of a double click: press, release, double click. QTest's own is the last of them alone.
    void DoubleClickOn(QTreeWidgetItem* item) const {
        const QPoint place = PlaceOf(item);
        QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(Tree()->viewport(), Qt::LeftButton, {}, place);
    }

    void ExpectTexts(const QString& caption, const QStringList& buttons, const QStringList& nodes) const {
        EXPECT_EQ(Child("TreeViewForm")->windowTitle(), caption);
        EXPECT_EQ(Child("TreeViewForm")->findChild<QPushButton*>("cmdClose")->text(), buttons[0]);
        EXPECT_EQ(Child("TreeViewForm")->findChild<QPushButton*>("cmdHelp")->text(), buttons[1]);
        ASSERT_EQ(Tree()->topLevelItemCount(), 1);
        ASSERT_EQ(Root()->childCount(), 8);
        for (int i = 0; i < 8; ++i) {
            EXPECT_EQ(Root()->child(i)->text(0), nodes[i]);
            EXPECT_EQ(Root()->child(i)->data(0, Qt::UserRole).toString(), QString("C%1").arg(i + 1));
        }
    }
};

TEST_F(NavigatorTest, ShowsItsTextsInEnglish) {
    OpenMainWindow();
    OpenNavigator();
    ExpectTexts("Tree View", {"&Close", "&Help"},
                {" Channel Information", " Optional Features", " Key Assignment", " Scan Information", " DTMF",
                 " Corvane", " Test Frequency", " Embedded Message"});
}

TEST_F(NavigatorTest, ShowsItsTextsInChinese) {
    OpenMainWindowInChinese();
    OpenNavigator();
    ExpectTexts("树视图", {"关闭(&C)", "帮助(&H)"},
                {" 信道信息", " 可选功能", " 键设定", " 扫描信息", " DTMF(双音多频)", " Corvane(科瓦讯)", " 测试频率",
                 " 嵌入信息"});
}

TEST_F(NavigatorTest, TheRootIsExpandedAndSelectedFirst) {
    OpenMainWindow();
    OpenNavigator();
    EXPECT_EQ(Root()->data(0, Qt::UserRole).toString(), "R");
    EXPECT_TRUE(Root()->isExpanded());
    EXPECT_EQ(Tree()->currentItem(), Root());
}

struct RootCase {
    int family;
    int market;
    const char* text;
};

TEST_F(NavigatorTest, TheRootNamesTheModel) {
    OpenMainWindow();
    const std::vector<RootCase> cases{
        {0xF8, 0, "4618 (VHF)"},
        {0xF8, 1, "4618 (VHF)"},
        {0xF8, 2, "5618 (UHF)"},
        {0xF8, 255, "5618 (UHF)"},
        {0xF9, 0, "4613 (VHF)"},
        {0xF9, 1, "4613 (VHF)"},
        {0xF9, 112, "5613 (UHF)"},
        {0xFC, 1, "4617 (VHF)"},
        {0xFC, 65, "5617 (UHF)"},
        {0xFF, 1, ""},
        {0x00, 33, ""},
        {0xFA, 1, ""},
    };
    for (const RootCase& c : cases) {
        SCOPED_TRACE(testing::Message() << c.family << " " << c.market);
        document.Image.Set(0x1BE, static_cast<std::uint8_t>(c.family));
        document.Image.Set(0x1BD, static_cast<std::uint8_t>(c.market));
        OpenNavigator();
        EXPECT_EQ(Root()->text(0), c.text);
        CloseFrame("TreeViewForm");
    }
}

TEST_F(NavigatorTest, ADoubleClickOnANodeOpensItsWindow) {
    OpenMainWindow();
    OpenNavigator();
    CloseGrid();
    DoubleClickOn(Root()->child(0));
    EXPECT_TRUE(IsChildShown("ChannelForm"));
    EXPECT_TRUE(windows.IsOpen(ChildWindow::Channels));
    EXPECT_TRUE(Entry("MnuWindowSub(0)")->isVisible());
    EXPECT_TRUE(Entry("MnuWindowSub(0)")->isChecked());
    EXPECT_TRUE(Entry("MnuWindow")->isVisible());
}

TEST_F(NavigatorTest, ADoubleClickOnTheNodeOfAnOpenWindowBringsItForward) {
    OpenMainWindow();
    OpenNavigator();
    DoubleClickOn(Root()->child(0));
    EXPECT_EQ(window->findChild<QMdiArea*>()->activeSubWindow(), Child("ChannelForm")->parentWidget());
}

TEST_F(NavigatorTest, EnterOnANodeOpensItsWindowWithoutAClick) {
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        OpenMainWindow();
        OpenNavigator();
        CloseGrid();
        QTest::keyClick(Tree(), Qt::Key_Down);
        QTest::keyClick(Tree(), static_cast<Qt::Key>(key));
        EXPECT_TRUE(IsChildShown("ChannelForm"));
    }
}

TEST_F(NavigatorTest, EnterOnTheNodeOfAnOpenWindowBringsItForward) {
    OpenMainWindow();
    OpenNavigator();
    ASSERT_NE(window->findChild<QMdiArea*>()->activeSubWindow(), Child("ChannelForm")->parentWidget());
    QTest::keyClick(Tree(), Qt::Key_Down);
    QTest::keyClick(Tree(), Qt::Key_Return);
    EXPECT_EQ(window->findChild<QMdiArea*>()->activeSubWindow(), Child("ChannelForm")->parentWidget());
}

TEST_F(NavigatorTest, NothingHappensOnTheRoot) {
    OpenMainWindow();
    OpenNavigator();
    CloseGrid();
    DoubleClickOn(Root());
    QTest::keyClick(Tree(), Qt::Key_Return);
    EXPECT_FALSE(IsChildShown("ChannelForm"));
    EXPECT_FALSE(windows.IsOpen(ChildWindow::Channels));
}

TEST_F(NavigatorTest, TwoSlowClicksOnANodeOpenNothing) {
    OpenMainWindow();
    OpenNavigator();
    CloseGrid();
    ClickOn(Root()->child(0));
    fakes.clock.Advance(600);
    ClickOn(Root()->child(0));
    EXPECT_FALSE(IsChildShown("ChannelForm"));
}

TEST_F(NavigatorTest, ADoubleClickThatTheSystemTakesSlowlyOpensNothing) {
    OpenMainWindow();
    OpenNavigator();
    CloseGrid();
    ClickOn(Root()->child(0));
    fakes.clock.Advance(500);
    QTest::mouseDClick(Tree()->viewport(), Qt::LeftButton, {}, PlaceOf(Root()->child(0)));
    EXPECT_FALSE(IsChildShown("ChannelForm"));
}

TEST_F(NavigatorTest, ADoubleClickJustInTimeOpens) {
    OpenMainWindow();
    OpenNavigator();
    CloseGrid();
    ClickOn(Root()->child(0));
    fakes.clock.Advance(499);
    QTest::mouseDClick(Tree()->viewport(), Qt::LeftButton, {}, PlaceOf(Root()->child(0)));
    EXPECT_TRUE(IsChildShown("ChannelForm"));
}

TEST_F(NavigatorTest, ADoubleClickOnTheFreeAreaOpensNothing) {
    OpenMainWindow();
    OpenNavigator();
    CloseGrid();
    ClickOn(Root()->child(0));
    const QPoint free(20, Tree()->viewport()->height() - 5);
    ASSERT_EQ(Tree()->itemAt(free), nullptr);
    QTest::mouseDClick(Tree()->viewport(), Qt::LeftButton, {}, free);
    EXPECT_FALSE(IsChildShown("ChannelForm"));
}

TEST_F(NavigatorTest, TheFirstClickAfterLoadingIsNeeded) {
    OpenMainWindow();
    OpenNavigator();
    CloseGrid();
    QTest::keyClick(Tree(), Qt::Key_Down);
    QTest::mouseDClick(Tree()->viewport(), Qt::LeftButton, {}, PlaceOf(Root()->child(0)));
    EXPECT_FALSE(IsChildShown("ChannelForm"));
}

TEST_F(NavigatorTest, NodesOpenTheirWindows) {
    OpenMainWindow();
    OpenNavigator();
    const char* names[] = {"OptionalForm", "KeyAssign",       "ScanForm",     "DTMFForm",
                           "CorvaneForm",  "TestChannelForm", "EmbedInfoForm"};
    for (int i = 1; i <= 7; ++i) {
        DoubleClickOn(Root()->child(i));
        EXPECT_TRUE(IsChildShown(names[i - 1])) << names[i - 1];
    }
    EXPECT_EQ(windows.Open(), (std::array<bool, 10>{true, true, true, true, true, true, true, true, true}));
}

TEST_F(NavigatorTest, ClosesByItsButtonAndByItsFrame) {
    OpenMainWindow();
    OpenNavigator();
    EXPECT_TRUE(windows.IsOpen(ChildWindow::Navigator));
    ClickButton("TreeViewForm", "cmdClose");
    EXPECT_EQ(Child("TreeViewForm"), nullptr);
    EXPECT_FALSE(windows.IsOpen(ChildWindow::Navigator));
    OpenNavigator();
    CloseFrame("TreeViewForm");
    EXPECT_EQ(Child("TreeViewForm"), nullptr);
    EXPECT_FALSE(windows.IsOpen(ChildWindow::Navigator));
}

TEST_F(NavigatorTest, IsNoEntryOfTheWindowList) {
    OpenMainWindow();
    OpenNavigator();
    for (int i = 1; i < 9; ++i) {
        EXPECT_FALSE(Entry("MnuWindowSub(" + std::to_string(i) + ")")->isVisible());
    }
}

TEST_F(NavigatorTest, IsAToolWindowThatCanNeitherBeMinimisedNorMaximised) {
    OpenMainWindow();
    OpenNavigator();
    const Qt::WindowFlags flags = Child("TreeViewForm")->parentWidget()->windowFlags();
    EXPECT_FALSE(flags & Qt::WindowMinimizeButtonHint);
    EXPECT_FALSE(flags & Qt::WindowMaximizeButtonHint);
    EXPECT_TRUE(flags & Qt::WindowCloseButtonHint);
}

TEST_F(NavigatorTest, EscapeLeavesItOpen) {
    OpenMainWindow();
    OpenNavigator();
    QTest::keyClick(Tree(), Qt::Key_Escape);
    EXPECT_TRUE(IsChildShown("TreeViewForm"));
}

} // namespace
} // namespace zelvor
