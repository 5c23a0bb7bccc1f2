#include "controls/SpinText.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <gtest/gtest.h>
#include <memory>

#include "controls/HoldingLineEdit.h"
#include "support/QtPrinting.h"

namespace zelvor {
namespace {

/// A spin text between two text boxes. Its range is 0 to 10; 0 reads "Off".
class SpinTextTest : public testing::Test {
protected:
    void SetUp() override { Show(Rules()); }

    static SpinTextRules Rules() {
        SpinTextRules rules;
        rules.first = 0;
        rules.last = 10;
        rules.lengthLimit = 2;
        rules.show = [](int value) { return value == 0 ? QStringLiteral("Off") : QString::number(value); };
        return rules;
    }
    void Show(SpinTextRules rules) {
        window = std::make_unique<QWidget>();
        auto* layout = new QVBoxLayout(window.get());
        before = new QLineEdit;
        spin = new SpinText("txtTOTPreAlert", "updTOTPreAlert", std::move(rules));
        QObject::connect(&spin->Box(), &FilteredLineEdit::FocusLeft, spin, [this] { ++commits; });
        after = new QLineEdit;
        layout->addWidget(before);
        layout->addWidget(spin);
        layout->addWidget(after);
        spin->Put(5);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        Box().setFocus();
        ASSERT_TRUE(Box().hasFocus());
    }

    FilteredLineEdit& Box() { return spin->Box(); }
    void Key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    void Type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    QPoint Place(QStyle::SubControl which) {
        QStyleOptionSpinBox option;
        option.initFrom(&spin->Buttons());
        option.subControls = QStyle::SC_All;
        return spin->style()->subControlRect(QStyle::CC_SpinBox, &option, which, &spin->Buttons()).center();
    }
    void ClickButton(QStyle::SubControl which) {
        QTest::mouseClick(&spin->Buttons(), Qt::LeftButton, {}, Place(which));
    }
    void ExpectAllSelectedWithTheCaretAtTheStart() {
        EXPECT_EQ(Box().selectedText(), Box().text());
        EXPECT_EQ(Box().cursorPosition(), 0);
    }

    int commits = 0;
    std::unique_ptr<QWidget> window;
    QLineEdit* before = nullptr;
    SpinText* spin = nullptr;
    QLineEdit* after = nullptr;
};

TEST_F(SpinTextTest, BoxAndUpDownHaveTheirOwnNames) {
    EXPECT_EQ(spin->Buttons().objectName(), "updTOTPreAlert");
    EXPECT_EQ(window->findChild<FilteredLineEdit*>("txtTOTPreAlert"), &Box());
}

TEST_F(SpinTextTest, TakingTheFocusByTheKeyboardSelectsAll) {
    before->setFocus();
    Key(Qt::Key_Tab);
    EXPECT_TRUE(Box().hasFocus());
    EXPECT_EQ(Box().selectedText(), "5");
}

TEST_F(SpinTextTest, TakingTheFocusByAClickSelectsAllAndTheNextClickPutsTheCaret) {
    before->setFocus();
    QTest::mouseClick(&Box(), Qt::LeftButton);
    EXPECT_TRUE(Box().hasFocus());
    EXPECT_EQ(Box().selectedText(), "5");
    QTest::mouseClick(&Box(), Qt::LeftButton);
    EXPECT_FALSE(Box().hasSelectedText());
}

TEST_F(SpinTextTest, UpAndDownStepAndSelectWithoutCommitting) {
    Key(Qt::Key_Up);
    EXPECT_EQ(Box().text(), "6");
    EXPECT_EQ(spin->Value(), 6);
    ExpectAllSelectedWithTheCaretAtTheStart();
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    EXPECT_EQ(Box().text(), "4");
    EXPECT_EQ(spin->Value(), 4);
    ExpectAllSelectedWithTheCaretAtTheStart();
    EXPECT_EQ(commits, 0);
}

TEST_F(SpinTextTest, StepsWrapAtBothEndsOfTheRange) {
    spin->Put(10);
    Key(Qt::Key_Up);
    EXPECT_EQ(Box().text(), "Off");
    EXPECT_EQ(spin->Value(), 0);
    Key(Qt::Key_Down);
    EXPECT_EQ(Box().text(), "10");
    EXPECT_EQ(spin->Value(), 10);
}

TEST_F(SpinTextTest, StepsWrapByTheTextWhateverTheUpDownHolds) {
    spin->Put(3);
    spin->SetText("10");
    Key(Qt::Key_Up);
    EXPECT_EQ(Box().text(), "Off");
    spin->Put(3);
    spin->SetText("Off");
    Key(Qt::Key_Down);
    EXPECT_EQ(Box().text(), "10");
}

TEST_F(SpinTextTest, StepsStartFromTheUpDownUnlessARuleReadsTheText) {
    Type("8");
    Key(Qt::Key_Up);
    EXPECT_EQ(Box().text(), "6");
    SpinTextRules rules = Rules();
    rules.read = [](const QString& text) { return text.isEmpty() ? std::nullopt : std::optional(text.toInt()); };
    Show(rules);
    Type("8");
    Key(Qt::Key_Up);
    EXPECT_EQ(Box().text(), "9");
    Key(Qt::Key_Backspace);
    Key(Qt::Key_Up);
    EXPECT_EQ(Box().text(), "10");
}

TEST_F(SpinTextTest, StepsByItsIncrement) {
    SpinTextRules rules = Rules();
    rules.first = 10;
    rules.last = 100;
    rules.increment = 5;
    rules.show = [](int value) { return QString::number(value * 10); };
    Show(rules);
    spin->Put(20);
    Key(Qt::Key_Up);
    EXPECT_EQ(Box().text(), "250");
    spin->Put(100);
    Key(Qt::Key_Up);
    EXPECT_EQ(Box().text(), "100");
}

TEST_F(SpinTextTest, TheButtonsStepAndPutTheFocusInTheBox) {
    after->setFocus();
    commits = 0;
    ClickButton(QStyle::SC_SpinBoxUp);
    EXPECT_EQ(Box().text(), "6");
    EXPECT_TRUE(Box().hasFocus());
    ExpectAllSelectedWithTheCaretAtTheStart();
    ClickButton(QStyle::SC_SpinBoxDown);
    EXPECT_EQ(Box().text(), "5");
    ExpectAllSelectedWithTheCaretAtTheStart();
    EXPECT_EQ(commits, 0);
    Key(Qt::Key_Tab);
    EXPECT_EQ(commits, 1);
}

TEST_F(SpinTextTest, TellsOfEachStepWithItsValue) {
    const QSignalSpy stepped(spin, &SpinText::Stepped);
    Key(Qt::Key_Up);
    spin->Put(2);
    ASSERT_EQ(stepped.count(), 1);
    EXPECT_EQ(stepped[0][0].toInt(), 6);
}

TEST_F(SpinTextTest, LeavingCommitsOnce) {
    Type("7");
    Key(Qt::Key_Tab);
    EXPECT_EQ(commits, 1);
    EXPECT_TRUE(after->hasFocus());
    after->clearFocus();
    EXPECT_EQ(commits, 1);
}

TEST_F(SpinTextTest, EnterMovesOnLikeTab) {
    Key(Qt::Key_Return);
    EXPECT_TRUE(after->hasFocus());
    EXPECT_EQ(commits, 1);
    Box().setFocus();
    Key(Qt::Key_Enter);
    EXPECT_TRUE(after->hasFocus());
    EXPECT_EQ(commits, 2);
}

TEST_F(SpinTextTest, OnlyCharactersOfTheFilterAreTyped) {
    Type("a-7 .b");
    EXPECT_EQ(Box().text(), "7");
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Box().text(), "");
}

TEST_F(SpinTextTest, TypingStopsAtTheLimitUnlessTextIsSelected) {
    Type("123");
    EXPECT_EQ(Box().text(), "12");
    Box().selectAll();
    Type("9");
    EXPECT_EQ(Box().text(), "9");
}

TEST_F(SpinTextTest, ATextLongerThanTheLimitIsShownWholeAndTakesNoFurtherCharacter) {
    spin->SetText("3825");
    EXPECT_EQ(Box().text(), "3825");
    Box().end(false);
    Type("1");
    EXPECT_EQ(Box().text(), "3825");
    Box().setSelection(0, 1);
    Type("1");
    EXPECT_EQ(Box().text(), "1825");
}

TEST_F(SpinTextTest, PastedTextGoesThroughFilterAndLimit) {
    Box().selectAll();
    QApplication::clipboard()->setText("x1y23\n4");
    QTest::keyClick(&Box(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Box().text(), "12");
}

TEST_F(SpinTextTest, PageKeysAndTheWheelDoNotStep) {
    Key(Qt::Key_PageUp);
    Key(Qt::Key_PageDown);
    QWheelEvent wheel(QPointF(5, 5), spin->Buttons().mapToGlobal(QPointF(5, 5)), {}, QPoint(0, 120), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&spin->Buttons(), &wheel);
    EXPECT_EQ(Box().text(), "5");
}

TEST_F(SpinTextTest, OpensNoContextMenu) {
    QContextMenuEvent onBox(QContextMenuEvent::Mouse, QPoint(3, 3), Box().mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&Box(), &onBox);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(spin->Buttons().contextMenuPolicy(), Qt::PreventContextMenu);
}

TEST_F(SpinTextTest, TheUpDownStaysInItsRangeAndLeavesTheTextAlone) {
    spin->SetValue(200);
    EXPECT_EQ(spin->Value(), 10);
    spin->SetValue(-1);
    EXPECT_EQ(spin->Value(), 0);
    EXPECT_EQ(Box().text(), "5");
}

TEST_F(SpinTextTest, DisablingItDisablesTheBox) {
    spin->setEnabled(false);
    EXPECT_FALSE(Box().isEnabled());
    EXPECT_FALSE(spin->Buttons().isEnabled());
}

TEST_F(SpinTextTest, AMessageBoxOverAPressedButtonEndsItsRepeating) {
    int steps = 0;
    QObject::connect(spin, &SpinText::Stepped, spin, [this, &steps] {
        ++steps;
        QDialog box(window.get());
        QTimer::singleShot(0, &box, [&box] {
            QTest::mouseRelease(&box, Qt::LeftButton);
            box.accept();
        });
        box.exec();
    });
    QTest::mousePress(&spin->Buttons(), Qt::LeftButton, {}, Place(QStyle::SC_SpinBoxUp));
    QTest::qWait(1500); // longer than the time after which a held button repeats
    EXPECT_EQ(steps, 1);
    EXPECT_EQ(Box().text(), "6");
    ClickButton(QStyle::SC_SpinBoxDown);
    EXPECT_EQ(Box().text(), "5");
}

TEST_F(SpinTextTest, DoesNotStepWhereAnotherBoxKeepsTheKeyboard) {
    HoldingLineEdit holding([](const QString& text) { return text.size() >= 3; });
    window->layout()->addWidget(&holding);
    holding.show();
    holding.setFocus();
    QTest::keyClicks(&holding, "1");
    const QSignalSpy refused(&holding, &HoldingLineEdit::Refused);
    ClickButton(QStyle::SC_SpinBoxUp);
    EXPECT_EQ(refused.count(), 1);
    EXPECT_TRUE(holding.hasFocus());
    EXPECT_EQ(Box().text(), "5");
    holding.setParent(nullptr);
}

} // namespace
} // namespace zelvor
