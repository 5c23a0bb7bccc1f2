#include "DTMFFormFixture.h"

#include <QHeaderView>
#include <QScrollBar>

namespace zelvor {
namespace {

constexpr const char* Unused = "................";

/// The window on its third tab, the focus in the grid; memory 2 holds 55512.
class DTMFAutodialTest : public DTMFFormTest {
protected:
    void SetUp() override {
        DTMFFormTest::SetUp();
        ShowAt(2, "msgAutodial");
    }
    /// Opens a row by Enter, with its text selected.
    void Open(int row) {
        Grid().setFocus();
        Grid().MoveTo(row, 1);
        Key(Qt::Key_Return);
        ASSERT_TRUE(Editor().hasFocus());
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers, const char* text) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    void ClickCell(int row, Qt::MouseButton button = Qt::LeftButton) {
        const QRect cell = Grid().visualItemRect(Grid().item(row - 1, 0));
        QTest::mouseClick(Grid().viewport(), button, {}, cell.center());
    }
    void ExpectEditorOver(int row) {
        EXPECT_TRUE(Editor().isVisible());
        EXPECT_TRUE(Editor().hasFocus());
        EXPECT_EQ(Grid().Row(), row);
        EXPECT_EQ(Editor().geometry(), Grid().CellRect(row, 1));
    }
    void ExpectOpenedWith(const char* digit) {
        ExpectEditorOver(1);
        EXPECT_EQ(Editor().text(), digit);
        EXPECT_EQ(Editor().selectedText(), "");
        EXPECT_EQ(Editor().cursorPosition(), 1);
        EXPECT_EQ(Cell(1), digit);
        EXPECT_EQ(Memory(1), std::string(digit) + "               ");
        Key(Qt::Key_Escape);
    }
};

TEST_F(DTMFAutodialTest, TheGridHasEightNumberedRowsAndColumnsOfAQuarterAndThreeQuarters) {
    ASSERT_EQ(Grid().rowCount(), 8);
    ASSERT_EQ(Grid().columnCount(), 1);
    for (int row = 1; row <= 8; ++row) {
        EXPECT_EQ(Grid().verticalHeaderItem(row - 1)->text(), QString::number(row));
    }
    EXPECT_NEAR(Grid().verticalHeader()->width(), Grid().width() / 4.0, 2);
    EXPECT_NEAR(Grid().columnWidth(0), Grid().width() * 3 / 4.0, 2);
    EXPECT_EQ(Grid().ColumnAlignment(1), Qt::AlignCenter);
    EXPECT_EQ(Grid().verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(Grid().horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(Grid().Row(), 1);
}

TEST_F(DTMFAutodialTest, ADigitOpensTheEditorWithItAsTheOnlyTextAndIsStoredAtOnce) {
    for (const char* digit : {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
        Type(digit);
        ExpectOpenedWith(digit);
        Press(static_cast<Qt::Key>(*digit), Qt::KeypadModifier, digit);
        ExpectOpenedWith(digit);
    }
}

TEST_F(DTMFAutodialTest, LettersOpenTheEditorAsCapitals) {
    const std::pair<const char*, const char*> letters[] = {{"A", "A"}, {"b", "B"}, {"C", "C"}, {"d", "D"}};
    for (const auto& [typed, shown] : letters) {
        Type(typed);
        ExpectOpenedWith(shown);
    }
}

TEST_F(DTMFAutodialTest, ShiftWithThreeAndEightOpensTheEditorWithHashAndStar) {
    QTest::keyClick(&Grid(), Qt::Key_3, Qt::ShiftModifier);
    ExpectOpenedWith("#");
    QTest::keyClick(&Grid(), Qt::Key_8, Qt::ShiftModifier);
    ExpectOpenedWith("*");
    Press(Qt::Key_NumberSign, Qt::ShiftModifier, "#"); // what the key gives on an American layout
    ExpectOpenedWith("#");
    Press(Qt::Key_Asterisk, Qt::ShiftModifier, "*");
    ExpectOpenedWith("*");
    Press(Qt::Key_3, Qt::ControlModifier | Qt::AltModifier, "#"); // by Alt Gr
    ExpectOpenedWith("#");
    Press(Qt::Key_3, Qt::AltModifier, "#"); // by Option
    ExpectOpenedWith("#");
}

TEST_F(DTMFAutodialTest, NothingElseOpensTheEditor) {
    const DataImage before = document.Image;
    for (const Qt::Key key : {Qt::Key_0, Qt::Key_1, Qt::Key_2, Qt::Key_4, Qt::Key_5, Qt::Key_6, Qt::Key_7, Qt::Key_9}) {
        QTest::keyClick(&Grid(), key, Qt::ShiftModifier);
        EXPECT_FALSE(Editor().isVisible()) << key;
    }
    Press(Qt::Key_Percent, Qt::ShiftModifier, "%");
    Press(Qt::Key_3, Qt::ShiftModifier | Qt::MetaModifier, "#");
    Press(Qt::Key_A, Qt::AltModifier, "a");
    Press(Qt::Key_5, Qt::AltModifier, "5");
    for (const char* typed : {"e", "Z", " ", "-", "+", ".", "/"}) {
        Type(typed);
        EXPECT_FALSE(Editor().isVisible()) << typed;
    }
    for (const Qt::Key key :
         {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_F2, Qt::Key_Escape, Qt::Key_Down, Qt::Key_End}) {
        QTest::keyClick(&Grid(), key);
        EXPECT_FALSE(Editor().isVisible()) << key;
    }
    QTest::keyClick(&Grid(), Qt::Key_1, Qt::ControlModifier);
    QTest::keyClick(&Grid(), Qt::Key_A, Qt::AltModifier);
    ClickCell(1, Qt::RightButton);
    ClickCell(1, Qt::MiddleButton);
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_EQ(document.Image, before);
}

TEST_F(DTMFAutodialTest, EnterAndAClickOpenTheEditorWithTheTextSelected) {
    Open(2);
    ExpectEditorOver(2);
    EXPECT_EQ(Editor().text(), "55512");
    EXPECT_EQ(Editor().selectedText(), "55512");
    Key(Qt::Key_Escape);
    ClickCell(8);
    ExpectEditorOver(8);
    ClickCell(2);
    ExpectEditorOver(2);
    EXPECT_EQ(Editor().selectedText(), "55512");
    EXPECT_EQ(Memory(8), Unused);
}

TEST_F(DTMFAutodialTest, TheImageFollowsEachKey) {
    Type("1");
    EXPECT_EQ(Memory(1), "1               ");
    Type("2");
    EXPECT_EQ(Memory(1), "12              ");
    Type("*");
    EXPECT_EQ(Memory(1), "12*             ");
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Memory(1), "12              ");
    EXPECT_EQ(Cell(1), "12");
    Key(Qt::Key_Backspace);
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Memory(1), Unused);
    EXPECT_EQ(Cell(1), "");
}

TEST_F(DTMFAutodialTest, TheEditorTakesUpToSixteenDtmfDigitsAlsoWhenPasted) {
    Open(1);
    Type("1aEb2#x*c-D34567890123");
    EXPECT_EQ(Editor().text(), "1AB2#*CD34567890");
    EXPECT_EQ(Memory(1), "1AB2#*CD34567890");
    Editor().selectAll();
    Type("d");
    EXPECT_EQ(Memory(1), "D               ");
    Editor().selectAll();
    Paste("1aEb2#x*c-D34567890123");
    EXPECT_EQ(Memory(1), "1AB2#*CD34567890");
    EXPECT_EQ(Cell(1), "1AB2#*CD34567890");
}

TEST_F(DTMFAutodialTest, EnterStoresClosesAndMovesDown) {
    Type("98765");
    Key(Qt::Key_Return);
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_TRUE(Grid().hasFocus());
    EXPECT_EQ(Grid().Row(), 2);
    EXPECT_EQ(Cell(1), "98765");
    EXPECT_EQ(Memory(1), "98765           ");
}

TEST_F(DTMFAutodialTest, EnterOnTheLastRowStaysThere) {
    Grid().MoveTo(8, 1);
    Type("1");
    Key(Qt::Key_Return);
    EXPECT_EQ(Grid().Row(), 8);
    EXPECT_TRUE(Grid().hasFocus());
    EXPECT_EQ(Memory(8), "1               ");
}

TEST_F(DTMFAutodialTest, EscapeBringsTheCellBackButTheImageKeepsWhatWasTypedLast) {
    Grid().MoveTo(2, 1);
    Type("78");
    Key(Qt::Key_Escape);
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_TRUE(Grid().hasFocus());
    EXPECT_EQ(Grid().Row(), 2);
    EXPECT_EQ(Cell(2), "55512");
    EXPECT_EQ(Memory(2), "78              ");
    ShowAt(2, "msgAutodial");
    EXPECT_EQ(Cell(2), "78");
}

TEST_F(DTMFAutodialTest, EscapeWithoutAKeyChangesNothing) {
    Put(0x210, {'5', ' ', '6'});
    ShowAt(2, "msgAutodial");
    const DataImage before = document.Image;
    Open(2);
    Key(Qt::Key_Escape);
    EXPECT_EQ(document.Image, before);
}

TEST_F(DTMFAutodialTest, LeavingTheEditorStoresTheCellAndHidesIt) {
    Put(0x210, {'5', ' ', '6'});
    ShowAt(2, "msgAutodial");
    EXPECT_EQ(Cell(2), "5612");
    Open(2);
    Key(Qt::Key_Tab);
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_EQ(Memory(2), "5612            ");
    EXPECT_EQ(Cell(2), "5612");
}

TEST_F(DTMFAutodialTest, FiveDigitsStoreElevenSpacesAndShowAgainOnReopening) {
    Grid().MoveTo(5, 1);
    Type("12345");
    Key(Qt::Key_Return);
    EXPECT_EQ(From(0x240, 16),
              (Bytes{0x31, 0x32, 0x33, 0x34, 0x35, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20}));
    Load();
    EXPECT_EQ(Cell(5), "12345");
}

TEST_F(DTMFAutodialTest, EmptyingACellErasesTheMemory) {
    Open(2);
    Key(Qt::Key_Backspace);
    Key(Qt::Key_Return);
    EXPECT_EQ(From(0x210, 16), Bytes(16, 0xFF));
    EXPECT_EQ(Cell(2), "");
}

TEST_F(DTMFAutodialTest, EachRowStoresToItsOwnMemory) {
    DataImage expected = document.Image;
    const char* digits[] = {"1", "2", "3", "4", "5", "6", "7", "8"};
    for (const char* digit : digits) {
        Type(digit);
        Key(Qt::Key_Return);
    }
    const int addresses[] = {0x200, 0x210, 0x220, 0x230, 0x240, 0x250, 0x260, 0x270};
    for (std::size_t i = 0; i < 8; ++i) {
        expected.Set(addresses[i], static_cast<std::uint8_t>(*digits[i]));
        for (int rest = 1; rest < 16; ++rest) {
            expected.Set(addresses[i] + rest, 0x20);
        }
    }
    EXPECT_EQ(document.Image, expected);
}

TEST_F(DTMFAutodialTest, ClosingStoresAnOpenEditAndUnloadingAddsNothing) {
    Type("12");
    const QSignalSpy unloaded(form.get(), &ChildForm::UnloadRequested);
    form->CloseFromFrame();
    EXPECT_EQ(unloaded.count(), 1);
    EXPECT_EQ(Memory(1), "12              ");
    Open(2);
    const DataImage before = document.Image;
    form.reset();
    EXPECT_EQ(document.Image, before);
}

TEST_F(DTMFAutodialTest, AnyCharactersOfAMemoryAreShownWithoutItsSpaces) {
    Put(0x210, {0x00, ' ', 'z', 0xFF, 0x80, ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', '9'});
    Load();
    EXPECT_EQ(Grid().Text(2, 1), QString::fromUtf16(u"\0zÿ€9", 5));
    Put(0x210, {0xFF, '1', '2'});
    Load();
    EXPECT_EQ(Cell(2), "");
}

} // namespace
} // namespace zelvor
