#include "controls/FilteredLineEdit.h"

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QInputMethodEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include "controls/PendingEdit.h"

namespace zelvor {
namespace {

class FilteredLineEditTest : public testing::Test {
protected:
    void SetUp() override {
        edit.SetFilter(DigitOrPoint);
        edit.setMaxLength(5);
        edit.show();
        edit.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&edit));
        edit.setFocus();
    }
    FilteredLineEdit edit;
};

TEST_F(FilteredLineEditTest, RefusesWhatTheFilterRefuses) {
    QTest::keyClicks(&edit, "a1b.2c");
    EXPECT_EQ(edit.text(), "1.2");
}

TEST_F(FilteredLineEditTest, MayChangeACharacter) {
    edit.SetFilter([](QChar entered) { return entered.toUpper(); });
    QTest::keyClicks(&edit, "dN2");
    EXPECT_EQ(edit.text(), "DN2");
}

TEST_F(FilteredLineEditTest, FiltersPastedComposedAndMouseInsertedText) {
    QApplication::clipboard()->setText("x1y2");
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(edit.text(), "12");
    QInputMethodEvent composed;
    composed.setCommitString("三3");
    QApplication::sendEvent(&edit, &composed);
    EXPECT_EQ(edit.text(), "123");
    if (QApplication::clipboard()->supportsSelection()) {
        QApplication::clipboard()->setText("q4", QClipboard::Selection);
        QTest::mouseClick(&edit, Qt::MiddleButton);
        EXPECT_EQ(edit.text(), "1234");
    }
}

TEST_F(FilteredLineEditTest, TellsAPastedTextAsOneChangeAndARefusedOneNotAtAll) {
    const QSignalSpy changed(&edit, &QLineEdit::textChanged);
    QApplication::clipboard()->setText("1x2.3");
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed.front().front().toString(), "12.3");
    QApplication::clipboard()->setText("xyz");
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClicks(&edit, "a");
    EXPECT_EQ(changed.count(), 1);
    QTest::keyClicks(&edit, "4");
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(FilteredLineEditTest, StopsAtTheLengthUnlessTextIsSelected) {
    QTest::keyClicks(&edit, "1234567");
    EXPECT_EQ(edit.text(), "12345");
    edit.selectAll();
    QTest::keyClicks(&edit, "9");
    EXPECT_EQ(edit.text(), "9");
}

TEST_F(FilteredLineEditTest, BackspaceDeleteAndCursorKeysAreNotFiltered) {
    QTest::keyClicks(&edit, "123");
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_Home);
    QTest::keyClick(&edit, Qt::Key_Delete);
    EXPECT_EQ(edit.text(), "2");
}

TEST_F(FilteredLineEditTest, TellsOfEnterEscapeAndTheEnterLetter) {
    edit.SetEnterLetter(u'l');
    QSignalSpy enter(&edit, &FilteredLineEdit::EnterPressed);
    const QSignalSpy escape(&edit, &FilteredLineEdit::EscapePressed);
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClick(&edit, Qt::Key_Enter);
    QTest::keyClicks(&edit, "l");
    EXPECT_EQ(enter.count(), 3);
    QTest::keyClicks(&edit, "L");
    EXPECT_EQ(enter.count(), 3);
    QTest::keyClick(&edit, Qt::Key_Escape);
    EXPECT_EQ(escape.count(), 1);
    EXPECT_EQ(edit.text(), "");
}

TEST_F(FilteredLineEditTest, CodeMaySetAnyText) {
    edit.setText("None");
    EXPECT_EQ(edit.text(), "None");
}

TEST_F(FilteredLineEditTest, OpensNoContextMenu) {
    EXPECT_EQ(edit.contextMenuPolicy(), Qt::PreventContextMenu);
    QTest::mouseClick(&edit, Qt::RightButton);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(FilteredLineEditTest, TellsWhenTheFocusLeaves) {
    const QSignalSpy left(&edit, &FilteredLineEdit::FocusLeft);
    edit.clearFocus();
    EXPECT_EQ(left.count(), 1);
}

TEST_F(FilteredLineEditTest, CharactersOutsideTheFirstPlaneGoThroughTheFilterToo) {
    QKeyEvent face(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUtf8("\xF0\x9F\x98\x80"));
    QApplication::sendEvent(&edit, &face);
    QKeyEvent joiner(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(0x200D)));
    QApplication::sendEvent(&edit, &joiner);
    EXPECT_EQ(edit.text(), "");
}

TEST_F(FilteredLineEditTest, ALengthLimitStopsEntryButCutsNoTextOfCode) {
    FilteredLineEdit box;
    box.SetLengthLimit(3);
    box.setText("12345");
    EXPECT_EQ(box.text(), "12345");
    QTest::keyClicks(&box, "6");
    EXPECT_EQ(box.text(), "12345");
    box.selectAll();
    QApplication::clipboard()->setText("abcdef");
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.text(), "abc");
}

TEST_F(FilteredLineEditTest, ALimitOfTypingLetsPastedTextThrough) {
    FilteredLineEdit box;
    box.SetLengthLimit(3, false);
    QTest::keyClicks(&box, "1234");
    EXPECT_EQ(box.text(), "123");
    QApplication::clipboard()->setText("abcdef");
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.text(), "123abcdef");
}

TEST_F(FilteredLineEditTest, PastesTheFirstLineOfATextOfSeveral) {
    QApplication::clipboard()->setText("12\r\n34");
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(edit.text(), "12");
}

TEST_F(FilteredLineEditTest, SelectsAllOnTakingTheFocusWhereAskedTo) {
    edit.setText("12");
    edit.clearFocus();
    edit.setFocus();
    EXPECT_FALSE(edit.hasSelectedText());
    edit.SelectAllOnFocus();
    edit.clearFocus();
    edit.setFocus();
    EXPECT_EQ(edit.selectedText(), "12");
}

TEST_F(FilteredLineEditTest, TakesTheNumberPadsDecimalPointInEveryLayout) {
    QTest::keyClicks(&edit, "1");
    QKeyEvent comma(QEvent::KeyPress, Qt::Key_Comma, Qt::NoModifier, ",");
    QApplication::sendEvent(&edit, &comma);
    QKeyEvent padComma(QEvent::KeyPress, Qt::Key_Comma, Qt::KeypadModifier, ",");
    QApplication::sendEvent(&edit, &padComma);
    QTest::keyClicks(&edit, "5");
    EXPECT_EQ(edit.text(), "1.5");
}

/// A key as the system reports it: what it is, what is held with it, and what it would type.
bool Press(QWidget& box, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&box, &event);
    return event.isAccepted();
}

constexpr Qt::KeyboardModifiers AltGr = Qt::ControlModifier | Qt::AltModifier; // as some systems report it
constexpr Qt::KeyboardModifiers Option = Qt::AltModifier;

TEST_F(FilteredLineEditTest, AKeyOfACommandEntersNothing) {
    FilteredLineEdit box;
    box.setText("x");
    for (const Qt::KeyboardModifiers held :
         {Qt::AltModifier | Qt::NoModifier, Qt::AltModifier | Qt::ShiftModifier, Qt::MetaModifier | Qt::NoModifier,
          Qt::MetaModifier | Qt::ShiftModifier, Qt::AltModifier | Qt::KeypadModifier,
          Qt::MetaModifier | Qt::AltModifier, AltGr | Qt::MetaModifier}) {
        for (int code = 0x20; code < 0x7F; ++code) {
            EXPECT_FALSE(Press(box, QChar(code).toUpper().unicode(), held, QChar(code)))
                << static_cast<char>(code) << " with " << held;
            ASSERT_EQ(box.text(), "x") << static_cast<char>(code) << " with " << held;
        }
    }
    Press(box, 0x419, Qt::AltModifier, QString(QChar(0x439))); // Cyrillic
    Press(box, Qt::Key_ssharp, Qt::AltModifier, "ß");
    Press(box, Qt::Key_ydiaeresis, Qt::AltModifier, "ÿ");
    Press(box, Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier, QString(QChar(0x200D))); // a joiner
    EXPECT_EQ(box.text(), "x");
}

TEST_F(FilteredLineEditTest, WhatAltGrOrOptionTypesGoesThroughTheFilter) {
    edit.SetFilter([](QChar entered) { return entered == u'#' || entered.isDigit() ? entered : QChar(); });
    EXPECT_TRUE(Press(edit, Qt::Key_NumberSign, AltGr, "#"));
    EXPECT_TRUE(Press(edit, Qt::Key_3, AltGr, "#"));
    EXPECT_TRUE(Press(edit, Qt::Key_3, Option, "#"));
    EXPECT_TRUE(Press(edit, Qt::Key_3, Option | Qt::ShiftModifier, "#"));
    EXPECT_EQ(edit.text(), "####");
    EXPECT_TRUE(Press(edit, Qt::Key_Q, AltGr, "@"));
    EXPECT_TRUE(Press(edit, Qt::Key_Q, Option, "œ"));
    EXPECT_EQ(edit.text(), "####");
}

TEST_F(FilteredLineEditTest, KeysHeldLikeAltGrThatTypeNothingEnterNothing) {
    edit.SetFilter({});
    for (int key = Qt::Key_A; key <= Qt::Key_Z; ++key) {
        EXPECT_FALSE(Press(edit, key, AltGr, "")) << key;
        EXPECT_FALSE(Press(edit, key, AltGr, QChar(key - Qt::Key_A + 1))) << key; // the control character of Ctrl
    }
    EXPECT_EQ(edit.text(), "");
}

TEST_F(FilteredLineEditTest, AShortcutOfCtrlIsNoneWithAltGr) {
    QApplication::clipboard()->setText("12");
    edit.SetFilter({});
    EXPECT_TRUE(Press(edit, Qt::Key_V, AltGr, "„")); // as a layout of the keyboard has it
    EXPECT_EQ(edit.text(), "„");
}

TEST_F(FilteredLineEditTest, ADeadKeyTypesNothingAndItsCharacterGoesThroughTheFilter) {
    edit.SetFilter([](QChar entered) { return entered == u'é' || entered.isDigit() ? entered : QChar(); });
    Press(edit, Qt::Key_Dead_Acute, Qt::NoModifier, "");
    Press(edit, Qt::Key_Dead_Tilde, AltGr, "");
    EXPECT_EQ(edit.text(), "");
    Press(edit, Qt::Key_Eacute, Qt::NoModifier, "é");
    Press(edit, Qt::Key_Atilde, Qt::NoModifier, "ã");
    EXPECT_EQ(edit.text(), "é");
    // Before a key that it does not go with, the accent comes as a character of its own.
    Press(edit, Qt::Key_Apostrophe, Qt::NoModifier, "'");
    Press(edit, Qt::Key_1, Qt::NoModifier, "1");
    EXPECT_EQ(edit.text(), "é1");
}

/// A part of a character that an input method is at, and what it hands over.
void Compose(QWidget& box, const QString& part, const QString& character = {}) {
    QInputMethodEvent event(part, {});
    event.setCommitString(character);
    QApplication::sendEvent(&box, &event);
    EXPECT_TRUE(event.isAccepted());
}

TEST_F(FilteredLineEditTest, ABoxWithAFilterKeepsItsSelectionUntilACharacterIsTaken) {
    edit.setText("123");
    edit.selectAll();
    Compose(edit, "er");
    EXPECT_EQ(edit.selectedText(), "123");
    Compose(edit, "", "二");
    EXPECT_EQ(edit.text(), "123");
    Compose(edit, "", "2");
    EXPECT_EQ(edit.text(), "2");
}

TEST_F(FilteredLineEditTest, ABoxOfAnyCharactersShowsWhatIsComposed) {
    FilteredLineEdit box;
    box.SetLengthLimit(3);
    box.show();
    box.setText("对");
    const QImage before = box.grab().toImage();
    Compose(box, "jiang");
    EXPECT_EQ(box.text(), "对");
    EXPECT_NE(box.grab().toImage(), before);
    Compose(box, "", "讲");
    EXPECT_EQ(box.text(), "对讲");
    Compose(box, "ji", "机机");
    EXPECT_EQ(box.text(), "对讲机");
    Compose(box, "");
    EXPECT_EQ(box.text(), "对讲机");
    const QImage after = box.grab().toImage();
    box.setText("对讲机");
    EXPECT_EQ(box.grab().toImage(), after); // nothing that is not text is left
}

TEST_F(FilteredLineEditTest, WhatAltGrOrOptionTypesKeepsToTheLength) {
    FilteredLineEdit box;
    box.SetLengthLimit(2);
    box.setText("12");
    Press(box, Qt::Key_Q, AltGr, "@");
    Press(box, Qt::Key_Q, Option, "œ");
    EXPECT_EQ(box.text(), "12");
    box.selectAll();
    Press(box, Qt::Key_Q, Option, "œ");
    Press(box, Qt::Key_Q, AltGr, "@");
    Press(box, Qt::Key_E, AltGr, "€");
    EXPECT_EQ(box.text(), "œ@");
}

TEST_F(FilteredLineEditTest, TheEnterLetterIsNoneInACommand) {
    edit.SetEnterLetter(u'l');
    const QSignalSpy enter(&edit, &FilteredLineEdit::EnterPressed);
    Press(edit, Qt::Key_L, Qt::AltModifier, "l");
    Press(edit, Qt::Key_L, Qt::MetaModifier, "l");
    EXPECT_EQ(enter.count(), 0);
}

TEST_F(FilteredLineEditTest, KeysOfEditingWorkAsTheyDo) {
    edit.setText("12.34");
    QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(edit.selectedText(), "12.34");
    QTest::keyClick(&edit, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "12.34");
    QTest::keyClick(&edit, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(edit.text(), "");
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(edit.text(), "12.34");
    QTest::keyClick(&edit, Qt::Key_End);
    QTest::keyClick(&edit, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(edit.selectedText(), "4");
}

TEST_F(FilteredLineEditTest, TakesNothingThatIsDropped) {
    QMimeData text;
    text.setText("12");
    QDragEnterEvent enter(QPoint(3, 3), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&edit, &enter);
    QDropEvent drop(QPointF(3, 3), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&edit, &drop);
    EXPECT_EQ(edit.text(), "");
}

/// A box and a neighbour, with another window of the program beside.
class BoxBesideAWindow : public testing::Test {
protected:
    void SetUp() override {
        box.SelectAllOnFocus();
        neighbour.move(0, 40);
        form.show();
        form.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
        box.setFocus();
        QTest::keyClicks(&box, "14");
    }
    void BringOtherToFront() {
        other.show();
        other.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    }
    QWidget form;
    FilteredLineEdit box{&form};
    FilteredLineEdit neighbour{&form};
    FilteredLineEdit other;
    QSignalSpy left{&box, &FilteredLineEdit::FocusLeft};
};

TEST_F(BoxBesideAWindow, IsNotLeftWhereTheOtherOnlyComesToTheFront) {
    BringOtherToFront();
    EXPECT_EQ(left.count(), 0);
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    ASSERT_TRUE(box.hasFocus());
    EXPECT_FALSE(box.hasSelectedText()); // or the next key would replace what was typed
    neighbour.setFocus();
    EXPECT_EQ(left.count(), 1);
    CommitPendingEdit(form);
    EXPECT_EQ(left.count(), 1);
}

TEST_F(BoxBesideAWindow, IsLeftOnceByACommandMeanwhile) {
    BringOtherToFront();
    CommitPendingEdit(form);
    EXPECT_EQ(left.count(), 1);
    CommitPendingEdit(form);
    EXPECT_EQ(left.count(), 1);
}

TEST_F(BoxBesideAWindow, IsNotLeftByACommandOfTheOther) {
    BringOtherToFront();
    CommitPendingEdit(other);
    EXPECT_EQ(left.count(), 0);
    CommitPendingEdit(form);
    EXPECT_EQ(left.count(), 1);
}

TEST_F(BoxBesideAWindow, SaysNothingOnceItsEditIsDropped) {
    BringOtherToFront();
    DropPendingEdit(form);
    CommitPendingEdit(form);
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    neighbour.setFocus();
    EXPECT_EQ(left.count(), 0);
}

TEST_F(BoxBesideAWindow, MayGoMeanwhile) {
    auto* shortLived = new FilteredLineEdit(&form);
    shortLived->show();
    shortLived->setFocus();
    BringOtherToFront();
    delete shortLived;
    CommitPendingEdit(form);
    EXPECT_EQ(left.count(), 1); // when the other box got the focus
}

TEST_F(BoxBesideAWindow, IsLeftByAClickOnAnotherControlAsTheWindowComesBack) {
    BringOtherToFront();
    neighbour.setFocus(); // where the click makes the window the active one at once
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    EXPECT_EQ(left.count(), 1);
}

TEST_F(BoxBesideAWindow, IsNotLeftForTheMenuBar) {
    QMenuBar menus(&form);
    menus.addMenu("Menu");
    menus.show();
    menus.setFocus(Qt::MenuBarFocusReason);
    EXPECT_EQ(left.count(), 0);
    box.setFocus(Qt::MenuBarFocusReason);
    EXPECT_FALSE(box.hasSelectedText());
    EXPECT_EQ(left.count(), 0);
}

} // namespace
} // namespace zelvor
