#include <QWheelEvent>

#include "features/CPUFormFixture.h"

namespace zelvor {
namespace {

class CPUFormEditingTest : public CPUFormTest {
protected:
    void SetUp() override { Show(); }
    /// Replaces the current cell's text by what is typed, and leaves it in that way.
    QString After(const char* typed, const std::function<void()>& leave) {
        Grid().MoveTo(1, 1);
        Grid().SetText(1, 1, "5C");
        Key(Qt::Key_Return);
        Key(Qt::Key_Backspace);
        Type(typed);
        leave();
        EXPECT_FALSE(Editor().isVisible());
        Grid().setFocus();
        return Grid().Text(1, 1);
    }
};

// --- Opening the editor ----------------------------------------------------------------------------------------------

TEST_F(CPUFormEditingTest, AClickOpensTheEditorOverTheCellWithAllItsTextSelected) {
    Grid().SetText(3, 5, "1F");
    ClickCell(3, 5);
    ASSERT_TRUE(Editor().isVisible());
    EXPECT_TRUE(Editor().hasFocus());
    EXPECT_EQ(Editor().geometry(), Grid().CellRect(3, 5));
    EXPECT_EQ(Editor().text(), "1F");
    EXPECT_EQ(Editor().selectedText(), "1F");
    EXPECT_EQ(Editor().accessibleName(), "Address 0024");
}

TEST_F(CPUFormEditingTest, EnterOfEitherBlockOpensTheEditor) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        Key(key);
        EXPECT_TRUE(Editor().isVisible());
        EXPECT_EQ(Editor().selectedText(), "FF");
        Key(Qt::Key_Escape);
    }
}

TEST_F(CPUFormEditingTest, ADigitOpensTheEditorWithThatTextAlone) {
    const QString typed = "0123456789ABCDEFabcdef";
    const QString shown = "0123456789ABCDEFABCDEF";
    for (int i = 0; i < typed.size(); ++i) {
        QTest::keyClick(&Grid(), typed[i].toLatin1());
        ASSERT_TRUE(Editor().isVisible()) << i;
        EXPECT_EQ(Editor().text(), shown.mid(i, 1));
        EXPECT_EQ(Editor().cursorPosition(), 1);
        EXPECT_EQ(Editor().selectedText(), "");
        Key(Qt::Key_Escape);
    }
}

TEST_F(CPUFormEditingTest, ADigitOfTheNumericKeypadOpensTheEditor) {
    Key(Qt::Key_7, Qt::KeypadModifier);
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_EQ(Editor().text(), "7");
}

TEST_F(CPUFormEditingTest, OtherKeysDoNotOpenTheEditor) {
    for (const char key : {'g', 'G', 'z', '-', '.', '*', '#', ' '}) {
        QTest::keyClick(&Grid(), key);
        EXPECT_FALSE(Editor().isVisible()) << key;
    }
    Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_FALSE(Editor().isVisible());
    Key(Qt::Key_F2);
    EXPECT_FALSE(Editor().isVisible());
    ExpectCursor(1, 1);
}

TEST_F(CPUFormEditingTest, ARightClickDoesNotOpenTheEditor) {
    QTest::mouseClick(Grid().viewport(), Qt::RightButton, {}, Grid().visualItemRect(Grid().item(2, 2)).center());
    EXPECT_FALSE(Editor().isVisible());
}

TEST_F(CPUFormEditingTest, ACellThatIsOutOfViewIsBroughtBackForTheEditor) {
    Grid().verticalScrollBar()->setValue(Grid().verticalScrollBar()->maximum());
    Type("A");
    ASSERT_TRUE(Editor().isVisible());
    EXPECT_EQ(Grid().verticalScrollBar()->value(), 0);
    EXPECT_EQ(Editor().geometry(), Grid().CellRect(1, 1));
    EXPECT_EQ(Editor().text(), "A");
}

// --- In the editor ---------------------------------------------------------------------------------------------------

TEST_F(CPUFormEditingTest, TakesTwoHexadecimalDigitsAsCapitals) {
    Type("a");
    Type("gGxX-. #*");
    EXPECT_EQ(Editor().text(), "A");
    Type("f");
    EXPECT_EQ(Editor().text(), "AF");
    Type("1");
    EXPECT_EQ(Editor().text(), "AF");
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Editor().text(), "A");
    Type("3");
    EXPECT_EQ(Editor().text(), "A3");
}

TEST_F(CPUFormEditingTest, EveryKeyOfTheTextBoxIsItselfACapitalOrDropped) {
    for (int code = 0x20; code < 0x7F; ++code) {
        const char character = static_cast<char>(code);
        const QString accepted = QString("0123456789ABCDEF").contains(character) ? QString(character)
                                 : QString("abcdef").contains(character)         ? QString(character).toUpper()
                                                                                 : QString();
        Key(Qt::Key_Return);
        Key(Qt::Key_Backspace);
        QTest::keyClick(&Editor(), character);
        EXPECT_EQ(Editor().text(), accepted) << character;
        Key(Qt::Key_Escape);
    }
}

TEST_F(CPUFormEditingTest, ASelectedTextIsReplaced) {
    Key(Qt::Key_Return);
    Type("7");
    EXPECT_EQ(Editor().text(), "7");
}

TEST_F(CPUFormEditingTest, PasteGoesThroughTheKeys) {
    Key(Qt::Key_Return);
    QApplication::clipboard()->setText("0x3eFz");
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Editor().text(), "03");
}

TEST_F(CPUFormEditingTest, EnterStoresTheTextAndMovesToTheNextColumn) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        Grid().MoveTo(2, 15);
        Type("1e");
        Key(key);
        EXPECT_FALSE(Editor().isVisible());
        EXPECT_TRUE(Grid().hasFocus());
        EXPECT_EQ(Grid().Text(2, 15), "1E");
        ExpectCursor(2, 16);
        EXPECT_EQ(Address(), "001F");
    }
    EXPECT_TRUE(form->isVisible());
}

TEST_F(CPUFormEditingTest, EnterInTheLastColumnMovesToTheFirstOfTheNextRow) {
    Grid().MoveTo(2, 16);
    Type("1E");
    Key(Qt::Key_Return);
    EXPECT_EQ(Grid().Text(2, 16), "1E");
    ExpectCursor(3, 1);
    EXPECT_EQ(Address(), "0020");
}

TEST_F(CPUFormEditingTest, EnterScrollsTheNextRowIntoView) {
    ASSERT_EQ(Grid().verticalScrollBar()->value(), 0);
    Grid().MoveTo(16, 16);
    ASSERT_EQ(Grid().verticalScrollBar()->value(), 0);
    Type("1E");
    Key(Qt::Key_Return);
    ExpectCursor(17, 1);
    EXPECT_TRUE(Grid().viewport()->rect().contains(Grid().visualItemRect(Grid().item(16, 0))));
}

TEST_F(CPUFormEditingTest, EnterInTheVeryLastCellStaysThere) {
    Grid().MoveTo(64, 16);
    Type("1E");
    Key(Qt::Key_Return);
    EXPECT_EQ(Grid().Text(64, 16), "1E");
    ExpectCursor(64, 16);
    EXPECT_EQ(Address(), "03FF");
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_TRUE(Grid().hasFocus());
}

TEST_F(CPUFormEditingTest, HoweverTheCellIsLeftItHoldsTwoDigits) {
    const std::function<void()> ends[] = {[this] { Key(Qt::Key_Return); }, [this] { Key(Qt::Key_Tab); },
                                          [this] { ClickCell(2, 2), Key(Qt::Key_Escape); },
                                          [this] { Button("cmdCancel").setFocus(); }};
    for (const auto& end : ends) {
        EXPECT_EQ(After("A", end), "0A");
        EXPECT_EQ(After("", end), "FF");
        EXPECT_EQ(After("b7", end), "B7");
        EXPECT_EQ(After("00", end), "00");
    }
}

TEST_F(CPUFormEditingTest, AClickOnAnotherCellStoresTheTextInTheCellItWasTypedIn) {
    Type("A");
    ClickCell(5, 6);
    EXPECT_EQ(Grid().Text(1, 1), "0A");
    EXPECT_EQ(Grid().Text(5, 6), "FF");
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_EQ(Editor().geometry(), Grid().CellRect(5, 6));
}

TEST_F(CPUFormEditingTest, EscapeBringsTheCellsTextBack) {
    Grid().SetText(1, 1, "5C");
    Type("A1");
    Key(Qt::Key_Escape);
    EXPECT_EQ(Grid().Text(1, 1), "5C");
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_TRUE(Grid().hasFocus());
    EXPECT_TRUE(form->isVisible());
    ExpectCursor(1, 1);
}

TEST_F(CPUFormEditingTest, ScrollingTheGridCancelsTheEdit) {
    Grid().SetText(1, 1, "5C");
    Type("A1");
    Grid().verticalScrollBar()->setValue(3);
    EXPECT_EQ(Grid().Text(1, 1), "5C");
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_TRUE(Grid().hasFocus());
}

TEST_F(CPUFormEditingTest, TheWheelOverTheGridCancelsTheEdit) {
    Grid().SetText(1, 1, "5C");
    Type("A1");
    const QPointF place = Grid().viewport()->rect().center();
    QWheelEvent turn(place, Grid().viewport()->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                     false);
    QApplication::sendEvent(Grid().viewport(), &turn);
    EXPECT_GT(Grid().verticalScrollBar()->value(), 0);
    EXPECT_EQ(Grid().Text(1, 1), "5C");
    EXPECT_FALSE(Editor().isVisible());
}

TEST_F(CPUFormEditingTest, AClickOnTheScrollBarCancelsTheEdit) {
    QScrollBar& bar = *Grid().verticalScrollBar();
    Grid().SetText(1, 1, "5C");
    Type("3");
    ASSERT_EQ(Grid().Text(1, 1), "3");
    QTest::mouseClick(&bar, Qt::LeftButton, {}, {bar.width() / 2, bar.height() - 4});
    EXPECT_GT(bar.value(), 0);
    EXPECT_EQ(Grid().Text(1, 1), "5C");
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_TRUE(Grid().hasFocus());
}

TEST_F(CPUFormEditingTest, AClickOnTheScrollBarThatScrollsNothingLeavesTheEditOpen) {
    QScrollBar& bar = *Grid().verticalScrollBar();
    Grid().SetText(1, 1, "5C");
    Type("3");
    QTest::mouseClick(&bar, Qt::LeftButton, {}, {bar.width() / 2, 4});
    EXPECT_EQ(bar.value(), 0);
    EXPECT_TRUE(Editor().hasFocus());
    EXPECT_EQ(Editor().text(), "3");
}

// --- Ending the dialog while a cell is edited ------------------------------------------------------------------------

TEST_F(CPUFormEditingTest, OkTakesTheTextThatIsBeingEdited) {
    Grid().MoveTo(28, 14);
    Type("A");
    Click("cmdOK");
    EXPECT_EQ(document.Image.At(0x1BD), 0x0A);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(CPUFormEditingTest, OkByItsAccessKeyDoesTheSame) {
    Type("A");
    Key(Qt::Key_O, Qt::AltModifier);
    QTRY_VERIFY(!form->isVisible());
    EXPECT_EQ(document.Image.At(0x000), 0x0A);
}

TEST_F(CPUFormEditingTest, CancelDropsTheTextThatIsBeingEdited) {
    Type("A");
    Click("cmdCancel");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(document.Image, DataImage());
}

TEST_F(CPUFormEditingTest, ADialogDestroyedWhileACellIsEditedStoresNothing) {
    Type("A");
    form.reset();
    EXPECT_EQ(document.Image, DataImage());
}

} // namespace
} // namespace zelvor
