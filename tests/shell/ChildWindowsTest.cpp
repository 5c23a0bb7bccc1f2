#include "shell/ChildWindows.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

#include "../support/InView.h"
#include "controls/ChildForm.h"
#include "shell/ChildWindowRows.h"
#include "shell/ShellTest.h"
#include "shell/WindowList.h"

namespace zelvor {
namespace {

using Flags = std::array<bool, 10>;

// With the windows of the program

class MainWindowChildrenTest : public ShellTest {
protected:
    [[nodiscard]] QMdiSubWindow* Frame(const char* child) const {
        return qobject_cast<QMdiSubWindow*>(Child(child)->parentWidget());
    }
    [[nodiscard]] QMdiSubWindow* Active() const { return window->findChild<QMdiArea*>()->activeSubWindow(); }
};

TEST_F(MainWindowChildrenTest, ClosingTheGridByItsFrameHidesItAndTheWindowMenu) {
    OpenMainWindow();
    CloseFrame("ChannelForm");
    ASSERT_NE(Child("ChannelForm"), nullptr);
    EXPECT_FALSE(IsChildShown("ChannelForm"));
    EXPECT_EQ(windows.Open(), Flags{});
    EXPECT_FALSE(Entry("MnuWindowSub(0)")->isVisible());
    EXPECT_FALSE(Entry("MnuWindow")->isVisible());
}

TEST_F(MainWindowChildrenTest, ClosingTheGridByItsButtonDoesTheSame) {
    OpenMainWindow();
    ClickButton("ChannelForm", "cmdClose");
    EXPECT_FALSE(IsChildShown("ChannelForm"));
    EXPECT_EQ(windows.Open(), Flags{});
    EXPECT_FALSE(Entry("MnuWindowSub(0)")->isVisible());
    EXPECT_FALSE(Entry("MnuWindow")->isVisible());
}

TEST_F(MainWindowChildrenTest, TheEditMenuBringsTheGridBack) {
    OpenMainWindow();
    CloseFrame("ChannelForm");
    windows.Cursor.SetCurrentChannel(9);
    Choose("MnuEditChannelInformation");
    EXPECT_TRUE(IsChildShown("ChannelForm"));
    EXPECT_TRUE(windows.IsOpen(ChildWindow::Channels));
    EXPECT_EQ(windows.Cursor.CurrentChannel(), 1);
    EXPECT_EQ(TextOf("MnuWindowSub(0)"), " Channel Information [ Channel - 1 ]");
    EXPECT_TRUE(Entry("MnuWindowSub(0)")->isVisible());
    EXPECT_TRUE(Entry("MnuWindowSub(0)")->isChecked());
    EXPECT_TRUE(Entry("MnuWindow")->isVisible());
}

TEST_F(MainWindowChildrenTest, ClosingTheLastChildWhileTheNavigatorIsOpenKeepsTheWindowMenu) {
    OpenMainWindow();
    Choose("MnuViewTreeView");
    CloseFrame("ChannelForm");
    EXPECT_TRUE(Entry("MnuWindow")->isVisible());
    CloseFrame("TreeViewForm");
    EXPECT_FALSE(Entry("MnuWindow")->isVisible());
}

TEST_F(MainWindowChildrenTest, CloseAllHidesEverythingAndClearsNoFlag) {
    OpenMainWindow();
    Choose("MnuViewTreeView");
    Choose("MnuWindowCloseAll");
    EXPECT_FALSE(IsChildShown("ChannelForm"));
    EXPECT_FALSE(IsChildShown("TreeViewForm"));
    EXPECT_NE(Child("TreeViewForm"), nullptr);
    EXPECT_FALSE(Entry("MnuWindowSub(0)")->isVisible());
    EXPECT_FALSE(Entry("MnuWindow")->isVisible());
    EXPECT_TRUE(windows.IsOpen(ChildWindow::Channels));
    EXPECT_TRUE(windows.IsOpen(ChildWindow::Navigator));
}

TEST_F(MainWindowChildrenTest, AfterCloseAllTheEditMenuBringsAWindowBackAsItWas) {
    OpenMainWindow();
    const QWidget* grid = Child("ChannelForm");
    Choose("MnuWindowCloseAll");
    Choose("MnuEditChannelInformation");
    EXPECT_EQ(Child("ChannelForm"), grid);
    EXPECT_TRUE(IsChildShown("ChannelForm"));
    EXPECT_TRUE(Entry("MnuWindow")->isVisible());
}

TEST_F(MainWindowChildrenTest, ANewDocumentUnloadsWhatCloseAllHasHidden) {
    OpenMainWindow();
    Choose("MnuViewTreeView");
    Choose("MnuWindowCloseAll");
    fakes.messages.Expect({"Warning", "All data will be cleared.", MessageIcon::Exclamation, MessageButtons::OkCancel,
                           MessageAnswer::Cancel},
                          MessageAnswer::Ok);
    Choose("MnuFileNew");
    EXPECT_EQ(Child("TreeViewForm"), nullptr);
    EXPECT_FALSE(windows.IsOpen(ChildWindow::Navigator));
}

TEST_F(MainWindowChildrenTest, TheEditMenuEntryOfAnOpenWindowMovesItToTheFront) {
    OpenMainWindow();
    Choose("MnuViewTreeView");
    ASSERT_EQ(Active(), Frame("TreeViewForm"));
    ASSERT_TRUE(Entry("MnuWindowSub(0)")->isChecked());
    Choose("MnuEditChannelInformation");
    EXPECT_EQ(Active(), Frame("ChannelForm"));
    EXPECT_TRUE(Entry("MnuWindowSub(0)")->isChecked());
}

TEST_F(MainWindowChildrenTest, TheWindowListGoesToTheGrid) {
    OpenMainWindow();
    Choose("MnuViewTreeView");
    Choose("MnuWindowSub(0)");
    EXPECT_EQ(Active(), Frame("ChannelForm"));
    EXPECT_TRUE(Entry("MnuWindowSub(0)")->isChecked());
}

TEST_F(MainWindowChildrenTest, TheListedCaptionFollowsTheCursorOfTheGrid) {
    OpenMainWindow();
    auto* grid = Find<QWidget>("ChannelGrid");
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key_Down);
    EXPECT_EQ(TextOf("MnuWindowSub(0)"), " Channel Information [ Channel - 2 ]");
}

TEST_F(MainWindowChildrenTest, TilingLeavesTheNavigatorOut) {
    OpenMainWindow();
    Choose("MnuViewTreeView");
    const QRect navigator = Frame("TreeViewForm")->geometry();
    const QSize area = window->findChild<QMdiArea*>()->viewport()->size();
    Choose("MnuWindowHorizontally");
    EXPECT_EQ(Frame("ChannelForm")->geometry(), QRect(QPoint(0, 0), area));
    EXPECT_EQ(Frame("TreeViewForm")->geometry(), navigator);
    EXPECT_TRUE(IsChildShown("TreeViewForm"));
}

TEST_F(MainWindowChildrenTest, CascadingLeavesTheNavigatorOut) {
    OpenMainWindow();
    Choose("MnuViewTreeView");
    Frame("ChannelForm")->move(200, 150);
    Frame("TreeViewForm")->move(50, 60);
    Choose("MnuWindowCascade");
    EXPECT_NE(Frame("ChannelForm")->pos(), QPoint(200, 150));
    EXPECT_EQ(Frame("TreeViewForm")->pos(), QPoint(50, 60));
    EXPECT_TRUE(IsChildShown("TreeViewForm"));
}

TEST_F(MainWindowChildrenTest, CascadeLeavesTheActiveWindowOnTopAndShowsEveryTitleBar) {
    OpenMainWindow();
    for (const char* entry : {"MnuEditOptionalFeatures", "MnuEditScanInformation", "MnuEditDTMF", "MnuViewTreeView"}) {
        Choose(entry);
    }
    Choose("MnuEditOptionalFeatures");
    ASSERT_EQ(Active(), Frame("OptionalForm"));
    Choose("MnuWindowCascade");
    EXPECT_EQ(Active(), Frame("OptionalForm"));
    const QStringList order{"ChannelForm", "ScanForm", "DTMFForm", "OptionalForm"}; // from the back
    for (qsizetype i = 0; i < order.size(); ++i) {
        const QMdiSubWindow* frame = Frame(order[i].toLatin1());
        EXPECT_EQ(frame->pos(), QPoint(24, 24) * static_cast<int>(i)) << order[i].toStdString();
        for (qsizetype later = i + 1; later < order.size(); ++later) {
            const QRect titleBar(frame->pos(), QSize(frame->width(), 24));
            EXPECT_FALSE(Frame(order[later].toLatin1())->geometry().intersects(titleBar)) << order[i].toStdString();
        }
    }
    EXPECT_TRUE(IsAllSeen(*Child("OptionalForm"), Child("OptionalForm")->rect()));
}

TEST_F(MainWindowChildrenTest, CascadeKeepsAMaximisedWindowOnTopAndLeavesMinimisedOnesAlone) {
    OpenMainWindow();
    Choose("MnuEditScanInformation");
    Choose("MnuEditDTMF");
    Frame("ScanForm")->showMinimized();
    Choose("MnuEditChannelInformation");
    Frame("ChannelForm")->showMaximized();
    const QRect icon = Frame("ScanForm")->geometry();
    Choose("MnuWindowCascade");
    EXPECT_EQ(Active(), Frame("ChannelForm"));
    EXPECT_FALSE(Frame("ChannelForm")->isMaximized());
    EXPECT_EQ(Frame("DTMFForm")->pos(), QPoint(0, 0));
    EXPECT_EQ(Frame("ChannelForm")->pos(), QPoint(24, 24));
    EXPECT_EQ(Child("ChannelForm")->size(), QSize(800, 433));
    EXPECT_EQ(Frame("ScanForm")->geometry(), icon);
}

TEST_F(MainWindowChildrenTest, IconsAreArrangedAlongTheBottom) {
    OpenMainWindow();
    Frame("ChannelForm")->showMinimized();
    Frame("ChannelForm")->move(300, 100);
    Choose("MnuWindowArrangeIcon");
    const int bottom = window->findChild<QMdiArea*>()->viewport()->height();
    EXPECT_EQ(Frame("ChannelForm")->pos(), QPoint(0, bottom - Frame("ChannelForm")->height()));
}

// With ten windows that stand for all of them

class StandInForm : public ChildForm {
public:
    explicit StandInForm(ChildWindow window) : ChildForm(window, "StandIn", QSize(1500, 1500)) {}
    [[nodiscard]] std::string_view HelpPage() const override { return "standin.htm"; }
    using ChildForm::SetCaption;
};

class ChildWindowsTest : public testing::Test {
protected:
    ChildWindowsTest() {
        area.resize(800, 600);
        area.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&area));
    }

    void OpenAll() {
        for (const ChildWindow window : All) {
            children.OpenChildWindow(window);
        }
        children.OpenChildWindow(ChildWindow::Navigator);
    }

    [[nodiscard]] QAction* Entry(int entry) const { return mnuWindow.actions()[entry]; }
    /// One character per entry: '-' hidden, 'o' shown, 'x' shown and marked.
    [[nodiscard]] std::string List() const {
        std::string marks;
        for (int i = 0; i < 9; ++i) {
            marks += !Entry(i)->isVisible() ? '-' : Entry(i)->isChecked() ? 'x' : 'o';
        }
        return marks;
    }
    [[nodiscard]] StandInForm& Form(ChildWindow window) { return static_cast<StandInForm&>(children.Load(window)); }

    static constexpr std::array All{ChildWindow::Channels,      ChildWindow::OptionalFeatures,
                                    ChildWindow::KeyAssignment, ChildWindow::Scan,
                                    ChildWindow::Dtmf,          ChildWindow::Corvane,
                                    ChildWindow::TestFrequency, ChildWindow::EmbeddedMessage,
                                    ChildWindow::ChannelEdit};

    WindowState windows;
    QMenu mnuWindow;
    QMdiArea area;
    WindowList list{mnuWindow};
    int made = 0;
    ChildWindows children{windows, area, list, [this](const ChildWindowRow& row) {
                              ++made;
                              return new StandInForm(row.window);
                          }};
};

TEST_F(ChildWindowsTest, TheListHasTheCaptionsOfTheWindowsInEnglish) {
    OpenAll();
    const QStringList expected{" Channel Information [ Channel - 1 ]",
                               " Optional Features",
                               " Key Assignment",
                               " Scan Information",
                               " DTMF",
                               " Corvane",
                               " Test Frequency",
                               " Embedded Message",
                               " Channel Edit"};
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(Entry(i)->text(), expected[i]);
        EXPECT_EQ(Entry(i)->objectName(), QString("MnuWindowSub(%1)").arg(i));
    }
}

TEST_F(ChildWindowsTest, TheListHasTheCaptionsOfTheWindowsInChinese) {
    windows.LanguageFlag = Language::Chinese;
    OpenAll();
    const QStringList expected{" 信道信息 [ 信道 - 1 ]", " 可选功能", " 键设定",   " 扫描信息", " DTMF(双音多频)",
                               " Corvane(科瓦讯)",       " 测试频率", " 嵌入信息", " 信道编辑"};
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(Entry(i)->text(), expected[i]);
    }
}

TEST_F(ChildWindowsTest, AFirstOpeningIsShownAndTheOnlyOneMarked) {
    children.OpenChildWindow(ChildWindow::Scan);
    EXPECT_EQ(List(), "---x-----");
    children.OpenChildWindow(ChildWindow::ChannelEdit);
    EXPECT_EQ(List(), "---o----x");
    children.OpenChildWindow(ChildWindow::Channels);
    EXPECT_EQ(List(), "x--o----o");
    EXPECT_EQ(windows.Open(), (Flags{true, false, false, true, false, false, false, false, false, true}));
}

TEST_F(ChildWindowsTest, ASecondOpeningOnlyBringsTheWindowForward) {
    children.OpenChildWindow(ChildWindow::Scan);
    children.OpenChildWindow(ChildWindow::Dtmf);
    children.OpenChildWindow(ChildWindow::Scan);
    EXPECT_EQ(List(), "---ox----");
    EXPECT_EQ(children.ActiveForm()->Window(), ChildWindow::Scan);
    EXPECT_EQ(made, 2);
}

TEST_F(ChildWindowsTest, AnActivatedWindowMarksItsEntry) {
    children.OpenChildWindow(ChildWindow::Scan);
    children.OpenChildWindow(ChildWindow::Dtmf);
    area.setActiveSubWindow(qobject_cast<QMdiSubWindow*>(Form(ChildWindow::Scan).parentWidget()));
    EXPECT_EQ(List(), "---xo----");
}

TEST_F(ChildWindowsTest, AnActivatedNavigatorMarksNothing) {
    children.OpenChildWindow(ChildWindow::Scan);
    children.OpenChildWindow(ChildWindow::Navigator);
    EXPECT_EQ(children.ActiveForm()->Window(), ChildWindow::Navigator);
    EXPECT_EQ(List(), "---x-----");
}

TEST_F(ChildWindowsTest, AChoiceInTheListGoesToItsWindow) {
    OpenAll();
    for (int i = 0; i < 9; ++i) {
        Entry(i)->trigger();
        std::string expected = "ooooooooo";
        expected[static_cast<std::size_t>(i)] = 'x';
        EXPECT_EQ(List(), expected);
        EXPECT_EQ(children.ActiveForm()->Window(), All[static_cast<std::size_t>(i)]);
    }
}

TEST_F(ChildWindowsTest, ChoosingTheMarkedEntryKeepsItsMark) {
    children.OpenChildWindow(ChildWindow::Scan);
    Entry(3)->trigger();
    EXPECT_EQ(List(), "---x-----");
}

TEST_F(ChildWindowsTest, AClosedWindowIsUnloadedAndUnlisted) {
    OpenAll();
    emit Form(ChildWindow::Corvane).UnloadRequested();
    EXPECT_EQ(List()[5], '-');
    EXPECT_FALSE(windows.IsOpen(ChildWindow::Corvane));
    EXPECT_FALSE(children.IsVisible(ChildWindow::Corvane));
    made = 0;
    children.OpenChildWindow(ChildWindow::Corvane);
    EXPECT_EQ(made, 1);
}

TEST_F(ChildWindowsTest, AHiddenWindowIsUnlistedAndKept) {
    OpenAll();
    emit Form(ChildWindow::Corvane).HideRequested();
    EXPECT_EQ(List()[5], '-');
    EXPECT_FALSE(windows.IsOpen(ChildWindow::Corvane));
    EXPECT_FALSE(children.IsVisible(ChildWindow::Corvane));
    made = 0;
    children.OpenChildWindow(ChildWindow::Corvane);
    EXPECT_EQ(made, 0);
    EXPECT_TRUE(children.IsVisible(ChildWindow::Corvane));
}

TEST_F(ChildWindowsTest, TheWindowMenuGoesWithTheLastOpenWindow) {
    OpenAll();
    for (const ChildWindow window : All) {
        children.CloseByUnloading(window);
        EXPECT_TRUE(mnuWindow.menuAction()->isVisible());
    }
    children.CloseByUnloading(ChildWindow::Navigator);
    EXPECT_FALSE(mnuWindow.menuAction()->isVisible());
    children.OpenChildWindow(ChildWindow::Dtmf);
    EXPECT_TRUE(mnuWindow.menuAction()->isVisible());
}

TEST_F(ChildWindowsTest, UnloadingTheEditorsLeavesOnlyTheGrid) {
    OpenAll();
    children.UnloadEditors();
    EXPECT_EQ(List(), "x--------");
    EXPECT_EQ(windows.Open(), Flags{true});
    EXPECT_TRUE(children.IsVisible(ChildWindow::Channels));
    EXPECT_EQ(area.subWindowList().size(), 1);
}

TEST_F(ChildWindowsTest, CloseAllHidesAllAndKeepsTheirFlags) {
    OpenAll();
    made = 0;
    children.CloseAll();
    EXPECT_EQ(List(), "---------");
    EXPECT_EQ(windows.Open(), (Flags{true, true, true, true, true, true, true, true, true, true}));
    EXPECT_FALSE(mnuWindow.menuAction()->isVisible());
    EXPECT_EQ(children.ActiveForm(), nullptr);
    children.OpenChildWindow(ChildWindow::KeyAssignment);
    EXPECT_EQ(List(), "--x------");
    EXPECT_TRUE(children.IsVisible(ChildWindow::KeyAssignment));
    EXPECT_EQ(made, 0);
}

TEST_F(ChildWindowsTest, AMaximisedWindowIsHiddenAsANormalOne) {
    children.OpenChildWindow(ChildWindow::Scan);
    auto* frame = qobject_cast<QMdiSubWindow*>(Form(ChildWindow::Scan).parentWidget());
    frame->showMaximized();
    children.CloseAll();
    EXPECT_FALSE(frame->isVisible());
    EXPECT_FALSE(frame->isMaximized());
}

TEST_F(ChildWindowsTest, AMinimisedWindowIsBroughtBackByItsEntry) {
    children.OpenChildWindow(ChildWindow::Scan);
    auto* frame = qobject_cast<QMdiSubWindow*>(Form(ChildWindow::Scan).parentWidget());
    frame->showMinimized();
    Entry(3)->trigger();
    EXPECT_FALSE(frame->isMinimized());
}

TEST_F(ChildWindowsTest, ANewTitleOfAWindowIsListed) {
    children.OpenChildWindow(ChildWindow::TestFrequency);
    Form(ChildWindow::TestFrequency).SetCaption(" Test Frequency 2");
    EXPECT_EQ(Entry(6)->text(), " Test Frequency 2");
}

} // namespace
} // namespace zelvor
