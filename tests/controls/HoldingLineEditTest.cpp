#include "controls/HoldingLineEdit.h"

#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include "controls/ChildForm.h"
#include "controls/FieldList.h"
#include "controls/PendingEdit.h"

namespace zelvor {
namespace {

class PlainForm : public ChildForm {
public:
    explicit PlainForm(QWidget* parent) : ChildForm(ChildWindow::Dtmf, "PlainForm", {6000, 3000}, parent) {}
    [[nodiscard]] std::string_view HelpPage() const override { return "none.htm"; }
};

/// Two child windows side by side. The box takes three characters at least; a refused text becomes "000".
class HoldingLineEditTest : public testing::Test {
protected:
    void SetUp() override {
        other.move(500, 0);
        list.SetEntries({"one", "two"});
        list.move(0, 40);
        list.setEnabled(false);
        button.move(0, 80);
        second.move(0, 120);
        elsewhere.move(0, 40);
        QObject::connect(&box, &HoldingLineEdit::Refused, &box, [this] {
            focusWhenRefused = QApplication::focusWidget();
            box.setText("000");
        });
        window.resize(1000, 300);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        box.setFocus();
    }
    void Type(const char* text) {
        box.selectAll();
        QTest::keyClicks(&box, text);
    }

    QWidget window;
    PlainForm form{&window};
    HoldingLineEdit box{[](const QString& text) { return text.size() >= 3; }, form.Content()};
    FieldList list{form.Content()};
    QPushButton button{"Button", form.Content()};
    HoldingLineEdit second{[](const QString& text) { return text.size() >= 3; }, form.Content()};
    PlainForm other{&window};
    QPushButton elsewhere{"Elsewhere", other.Content()};
    QSignalSpy refused{&box, &HoldingLineEdit::Refused};
    QSignalSpy left{&box, &HoldingLineEdit::FocusLeft};
    const QWidget* focusWhenRefused = nullptr;
};

TEST_F(HoldingLineEditTest, ALegalTextLetsTheFocusGo) {
    Type("123");
    QTest::keyClick(&box, Qt::Key_Tab);
    EXPECT_TRUE(button.hasFocus());
    EXPECT_EQ(box.text(), "123");
    EXPECT_EQ(refused.count(), 0);
    EXPECT_GE(left.count(), 1);
}

TEST_F(HoldingLineEditTest, TabAndBacktabStayAtAnIllegalText) {
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        Type("12");
        QTest::keyClick(&box, key);
        EXPECT_TRUE(box.hasFocus());
        EXPECT_EQ(box.text(), "000");
    }
    EXPECT_EQ(refused.count(), 2);
    EXPECT_EQ(left.count(), 0);
}

TEST_F(HoldingLineEditTest, AClickOnAButtonDoesNotPressItAndTheFocusIsBackBeforeAnyoneIsTold) {
    const QSignalSpy clicked(&button, &QPushButton::clicked);
    Type("12");
    QTest::mousePress(&button, Qt::LeftButton);
    EXPECT_EQ(focusWhenRefused, &box);
    EXPECT_TRUE(box.hasFocus());
    EXPECT_FALSE(button.isDown());
    QTest::mouseRelease(&button, Qt::LeftButton);
    EXPECT_EQ(clicked.count(), 0);
    EXPECT_EQ(refused.count(), 1);
    QTest::mouseClick(&button, Qt::LeftButton); // the text is legal by now
    EXPECT_EQ(clicked.count(), 1);
    EXPECT_TRUE(button.hasFocus());
}

TEST_F(HoldingLineEditTest, OnlyTheOnePressIsTaken) {
    Type("12");
    button.setFocus(Qt::MouseFocusReason); // as if a press was on its way that never comes
    EXPECT_EQ(refused.count(), 1);
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QSignalSpy clicked(&button, &QPushButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicked.count(), 1);
}

TEST_F(HoldingLineEditTest, AControlThatDoesNotGetTheFocusStoresNothing) {
    list.setEnabled(true);
    const QSignalSpy stored(&list, &FieldList::FocusLeft);
    Type("12");
    list.setFocus();
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(stored.count(), 0);
}

TEST_F(HoldingLineEditTest, TwoBoxesWithIllegalTextsDoNotFightForTheFocus) {
    const QSignalSpy secondRefused(&second, &HoldingLineEdit::Refused);
    second.setText("1");
    Type("12");
    second.setFocus();
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(refused.count(), 1);
    EXPECT_EQ(secondRefused.count(), 0);
    EXPECT_EQ(second.text(), "1");
}

TEST_F(HoldingLineEditTest, TabFindsAControlThatTheTextEnables) {
    QObject::connect(&box, &HoldingLineEdit::FocusLeft, &list, [this] { list.setEnabled(true); });
    Type("123");
    QTest::keyClick(&box, Qt::Key_Tab);
    EXPECT_TRUE(list.hasFocus());
}

TEST_F(HoldingLineEditTest, AnotherChildWindowTakesTheFocusAndTheTextIsPutRight) {
    const QSignalSpy clicked(&elsewhere, &QPushButton::clicked);
    Type("12");
    QTest::mouseClick(&elsewhere, Qt::LeftButton);
    EXPECT_TRUE(elsewhere.hasFocus());
    EXPECT_FALSE(elsewhere.isDown());
    EXPECT_EQ(clicked.count(), 0);
    EXPECT_EQ(refused.count(), 1);
    EXPECT_EQ(box.text(), "000");
}

TEST_F(HoldingLineEditTest, ACommandThatCommitsPutsTheTextRight) {
    Type("12");
    CommitPendingEdit(form);
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(refused.count(), 1);
    EXPECT_EQ(box.text(), "000");
}

TEST_F(HoldingLineEditTest, MenusOtherProgramsAndTheOwnFrameLeaveTheTextAlone) {
    Type("12");
    for (const Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::MenuBarFocusReason, Qt::ActiveWindowFocusReason}) {
        QFocusEvent out(QEvent::FocusOut, reason);
        QFocusEvent in(QEvent::FocusIn, reason);
        QApplication::sendEvent(&box, &out);
        QApplication::sendEvent(&box, &in);
        EXPECT_EQ(refused.count(), 0) << reason;
    }
    window.setFocusPolicy(Qt::ClickFocus);
    window.setFocus(Qt::MouseFocusReason);
    EXPECT_TRUE(window.hasFocus());
    EXPECT_EQ(refused.count(), 0);
    EXPECT_EQ(left.count(), 0);
    EXPECT_EQ(box.text(), "12");
}

TEST_F(HoldingLineEditTest, AWindowThatGoesRefusesNothing) {
    Type("12");
    form.hide();
    EXPECT_FALSE(box.hasFocus());
    EXPECT_EQ(refused.count(), 0);
}

TEST_F(HoldingLineEditTest, ACommandPutsAnIllegalTextRightThatWaitsBehindAnotherWindow) {
    Type("12");
    QWidget help;
    help.show();
    help.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&help));
    EXPECT_EQ(refused.count(), 0);
    CommitPendingEdit(form);
    EXPECT_EQ(refused.count(), 1);
    EXPECT_EQ(box.text(), "000");
}

} // namespace
} // namespace zelvor
