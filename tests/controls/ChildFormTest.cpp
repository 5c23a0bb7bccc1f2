#include "controls/ChildForm.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include "../support/InView.h"
#include "controls/ChildFrame.h"
#include "controls/EditGrid.h"

namespace zelvor {
namespace {

class PlainForm : public ChildForm {
public:
    PlainForm() : ChildForm(ChildWindow::Scan, "PlainForm", {6000, 3000}) {}
    [[nodiscard]] std::string_view HelpPage() const override { return "plain.htm"; }
};

class ToolForm : public PlainForm {
public:
    [[nodiscard]] bool IsToolWindow() const override { return true; }
};

TEST(ChildForm, HasTheSizeThatItsTwipsTell) {
    const PlainForm form;
    EXPECT_EQ(form.size(), QSize(400, 200));
    EXPECT_EQ(form.Content()->size(), QSize(400, 200));
    EXPECT_EQ(form.objectName(), "PlainForm");
}

TEST(ChildForm, ScrollBarsMoveTheContentByTheirValue) {
    PlainForm form;
    form.show();
    form.resize(300, 150);
    auto* horizontal = form.findChild<QScrollBar*>("HScroll1");
    auto* vertical = form.findChild<QScrollBar*>("VScroll1");
    EXPECT_EQ(horizontal->maximum(), 400 - (300 - 16));
    EXPECT_EQ(vertical->maximum(), 200 - (150 - 16));
    horizontal->setValue(40);
    vertical->setValue(30);
    EXPECT_EQ(form.Content()->pos(), QPoint(-40, -30));
    form.resize(400, 200);
    EXPECT_EQ(form.Content()->pos(), QPoint(0, 0));
}

TEST(ChildForm, AControlThatTheTabKeyReachesScrollsIntoView) {
    PlainForm form;
    auto* near = new QPushButton(form.Content());
    near->setGeometry(10, 10, 50, 20);
    auto* far = new QPushButton(form.Content());
    far->setGeometry(340, 170, 50, 20);
    form.show();
    form.resize(200, 100);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    near->setFocus();
    QTest::keyClick(near, Qt::Key_Tab);
    ASSERT_TRUE(far->hasFocus());
    EXPECT_EQ(form.Content()->pos(), QPoint(-(390 - 184), -(190 - 84)));
    QTest::keyClick(far, Qt::Key_Backtab);
    EXPECT_EQ(form.Content()->pos(), QPoint(-10, -10));
}

TEST(ChildForm, AControlLargerThanTheViewScrollsNothing) {
    PlainForm form;
    auto* large = new QPushButton(form.Content());
    large->setGeometry(10, 10, 380, 180);
    form.show();
    form.resize(200, 100);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    form.findChild<QScrollBar*>("HScroll1")->setValue(100);
    large->setFocus();
    EXPECT_EQ(form.Content()->pos(), QPoint(-100, 0));
}

TEST(ChildForm, TheVerticalBarsWidthIsReachedToo) {
    PlainForm form;
    form.show();
    form.resize(400, 150);
    auto* horizontal = form.findChild<QScrollBar*>("HScroll1");
    EXPECT_TRUE(horizontal->isVisible());
    EXPECT_EQ(horizontal->maximum(), 16);
    form.resize(416, 150);
    EXPECT_FALSE(horizontal->isVisible());
    form.resize(300, 200); // the horizontal bar takes its height from the content
    EXPECT_EQ(form.findChild<QScrollBar*>("VScroll1")->maximum(), 16);
    form.resize(300, 216);
    EXPECT_FALSE(form.findChild<QScrollBar*>("VScroll1")->isVisible());
}

TEST(ChildForm, ALabelComesIntoViewWithItsControlWhereThereIsRoom) {
    PlainForm form;
    auto* near = new QLineEdit(form.Content());
    near->setGeometry(10, 10, 50, 20);
    auto* label = new QLabel("Label", form.Content());
    label->setGeometry(180, 160, 60, 20);
    auto* far = new QLineEdit(form.Content());
    far->setGeometry(300, 160, 50, 20);
    label->setBuddy(far);
    form.show();
    form.resize(216, 100);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    near->setFocus();
    QTest::keyClick(near, Qt::Key_Tab);
    ASSERT_TRUE(far->hasFocus());
    EXPECT_TRUE(IsAllSeen(*label, label->rect()));
    EXPECT_TRUE(IsAllSeen(*far, far->rect()));
    form.resize(136, 100); // no room for both
    QTest::keyClick(far, Qt::Key_Backtab);
    QTest::keyClick(near, Qt::Key_Tab);
    EXPECT_TRUE(IsAllSeen(*far, far->rect()));
}

TEST(ChildForm, OfAWideCheckBoxTheTextComesIntoView) {
    PlainForm form;
    auto* far = new QLineEdit(form.Content());
    far->setGeometry(340, 10, 50, 20);
    auto* wide = new QCheckBox("Wide", form.Content());
    wide->setGeometry(10, 170, 380, 20);
    form.show();
    form.resize(200, 100);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    far->setFocus();
    ASSERT_LT(form.Content()->x(), -10);
    QTest::keyClick(far, Qt::Key_Tab);
    ASSERT_TRUE(wide->hasFocus());
    EXPECT_TRUE(IsAllSeen(*wide, QRect(QPoint(), wide->sizeHint())));
}

TEST(ChildForm, TheViewFollowsTheCursorOfATable) {
    PlainForm form;
    EditGrid grid(4, 2, form.Content());
    grid.setGeometry(10, 10, 380, 150);
    grid.SetCaptions({"No.", "First", "Second"});
    grid.FitCells({50, 120, 120});
    form.show();
    form.resize(200, 100);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    grid.setFocus();
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up}) {
        QTest::keyClick(&grid, key);
        EXPECT_TRUE(IsAllSeen(*grid.viewport(), grid.visualItemRect(grid.currentItem()))) << key;
    }
    QTest::keyClick(&grid, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(form.Content()->pos(), QPoint(-10, -10)); // the captions, too
}

TEST(ChildForm, ClosingItsFrameAsksToBeUnloadedAndClosesNothing) {
    QMdiArea area;
    auto* form = new PlainForm;
    auto* frame = new ChildFrame(form);
    area.addSubWindow(frame);
    area.show();
    frame->show();
    const QSignalSpy unloaded(form, &ChildForm::UnloadRequested);
    frame->close();
    EXPECT_EQ(unloaded.count(), 1);
    EXPECT_TRUE(frame->isVisible());
    EXPECT_EQ(frame->Form(), form);
}

TEST(ChildForm, TheFrameOfAToolWindowCanOnlyBeClosed) {
    QMdiArea area;
    const Qt::WindowFlags plain = area.addSubWindow(new ChildFrame(new PlainForm))->windowFlags();
    EXPECT_TRUE(plain & Qt::WindowMinimizeButtonHint);
    EXPECT_TRUE(plain & Qt::WindowMaximizeButtonHint);
    const Qt::WindowFlags tool = area.addSubWindow(new ChildFrame(new ToolForm))->windowFlags();
    EXPECT_FALSE(tool & Qt::WindowMinimizeButtonHint);
    EXPECT_FALSE(tool & Qt::WindowMaximizeButtonHint);
    EXPECT_TRUE(tool & Qt::WindowCloseButtonHint);
    EXPECT_TRUE(tool & Qt::WindowTitleHint);
}

TEST(ChildForm, AToolWindowKeepsItsSizeWhenItIsActivatedAfterAMaximisedWindow) {
    QMdiArea area;
    area.resize(800, 600);
    auto* plain = new ChildFrame(new PlainForm);
    auto* tool = new ChildFrame(new ToolForm);
    area.addSubWindow(tool);
    area.addSubWindow(plain);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&area));
    tool->show();
    const QSize size = tool->size();
    area.setActiveSubWindow(plain);
    plain->showMaximized();
    area.setActiveSubWindow(tool);
    EXPECT_EQ(area.activeSubWindow(), tool);
    EXPECT_FALSE(tool->isMaximized());
    EXPECT_EQ(tool->size(), size);
}

} // namespace
} // namespace zelvor
