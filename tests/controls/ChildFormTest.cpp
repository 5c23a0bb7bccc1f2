#include "controls/ChildForm.h"

#include <QMdiArea>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include "controls/ChildFrame.h"

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
