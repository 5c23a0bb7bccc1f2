#include "ChannelFormFixture.h"

#include <QAbstractItemView>

namespace zelvor {
namespace {

class ChannelGridToneTest : public ChannelFormTest {
protected:
    void SetUp() override {
        ChannelFormTest::SetUp();
        PutRecord(1, SimplexRecord);
    }

    std::string TypeTone(const char* typed) {
        GoTo(1, 3);
        Key(Qt::Key_Return);
        List().lineEdit()->selectAll();
        Key(Qt::Key_Delete);
        Type(typed);
        Key(Qt::Key_Return);
        return Cell(1, 3);
    }
};

TEST_F(ChannelGridToneTest, LeavingTheToneEditorNormalisesItsText) {
    Show();
    EXPECT_EQ(TypeTone("D23"), "D230N");
    EXPECT_EQ(TypeTone("D9"), "D700N");
    EXPECT_EQ(TypeTone("N"), "67.0");
    EXPECT_EQ(TypeTone("300"), "254.1");
    EXPECT_EQ(TypeTone("100.0"), "100.0");
    EXPECT_EQ(TypeTone(""), "None");
    EXPECT_EQ(TypeTone("d754i"), "D754I");
    EXPECT_EQ(document.Image.At(0x18), 0xEC);
    EXPECT_EQ(document.Image.At(0x19), 0xA9);
}

TEST_F(ChannelGridToneTest, TheTonesBoxTakesFiveCharactersOfItsAlphabet) {
    Show();
    GoTo(1, 3);
    Key(Qt::Key_Return);
    List().lineEdit()->selectAll();
    Type("d0x2 3n7");
    EXPECT_EQ(List().currentText(), "D023N");
    QApplication::clipboard()->setText("zz67.01234");
    List().lineEdit()->selectAll();
    QTest::keyClick(&List(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(List().currentText(), "67.01");
}

TEST_F(ChannelGridToneTest, ADigitOrALetterOnAToneCellOpensTheListWithIt) {
    Show();
    GoTo(1, 3);
    Type("d");
    EXPECT_TRUE(List().isVisible());
    EXPECT_EQ(List().currentText(), "D");
    EXPECT_EQ(List().lineEdit()->cursorPosition(), 1);
    EXPECT_EQ(List().count(), 205);
    EXPECT_EQ(List().itemText(0), "None");
    EXPECT_EQ(List().itemText(204), "D754I");
}

TEST_F(ChannelGridToneTest, TheDeadEncodeCellOfAReceiveOnlyRowLeadsToTheTransmitCell) {
    auto record = SimplexRecord;
    record[7] = 0xFF;
    PutRecord(2, record);
    Show();
    ClickCell(2, 4);
    ExpectCursor(2, 2);
    form->HideEditors();
    Grid().setFocus();
    GoTo(2, 4);
    Key(Qt::Key_Return);
    ExpectCursor(2, 2);
    form->HideEditors();
    Grid().setFocus();
    GoTo(2, 4);
    Type("1");
    ExpectCursor(2, 2);
    EXPECT_TRUE(TextBox().isVisible());
    EXPECT_EQ(TextBox().text(), "");
}

TEST_F(ChannelGridToneTest, EnterInTheDecodeColumnSkipsADeadEncodeCell) {
    Show();
    TypeTone("100");
    ExpectCursor(1, 4);
    auto record = SimplexRecord;
    record[7] = 0x00;
    PutRecord(1, record);
    document.Channels.DecodeImageToGrid(document.Image, windows.LanguageFlag);
    TypeTone("100");
    ExpectCursor(1, 5);
}

TEST_F(ChannelGridToneTest, EnterEscapeAndTheLetterLEndAListEditAlike) {
    Show();
    GoTo(1, 5);
    for (const int column : {5, 6, 7}) {
        ExpectCursor(1, column);
        Key(Qt::Key_Return);
        ASSERT_TRUE(List().isVisible());
        if (column == 5) {
            Key(Qt::Key_Return);
        } else if (column == 6) {
            Key(Qt::Key_Escape);
        } else {
            Type("l");
        }
        EXPECT_FALSE(List().isVisible());
        EXPECT_TRUE(Grid().hasFocus());
    }
    ExpectCursor(1, 8);
}

TEST_F(ChannelGridToneTest, EnterInTheLastColumnGoesToTheNextRow) {
    PutRecord(16, SimplexRecord);
    Show();
    GoTo(1, 9);
    Key(Qt::Key_Return);
    Key(Qt::Key_Return);
    ExpectCursor(2, 1);
    GoTo(16, 9);
    Key(Qt::Key_Return);
    Key(Qt::Key_Return);
    ExpectCursor(16, 9);
}

TEST_F(ChannelGridToneTest, ArrowsStepTheValueOfEveryListColumnIntoTheImage) {
    Show();
    struct Step {
        int column;
        Qt::Key key;
        std::string text;
        int address;
        int value;
    };
    const Step steps[] = {
        {5, Qt::Key_Down, "Low", 0x1D, 0x9F},  {5, Qt::Key_Up, "High", 0x1D, 0xBF},
        {6, Qt::Key_Up, "Narrow", 0x1D, 0xAF}, {6, Qt::Key_Down, "Wide", 0x1D, 0xBF},
        {7, Qt::Key_Up, "Yes", 0x17E, 0x01},   {7, Qt::Key_Down, "No", 0x17E, 0x00},
        {9, Qt::Key_Down, "On", 0x1E, 0xB1},   {9, Qt::Key_Up, "Off", 0x1E, 0xB0},
        {3, Qt::Key_Down, "67.0", 0x18, 0x9E}, {4, Qt::Key_Down, "67.0", 0x1A, 0x9E},
    };
    for (const Step& step : steps) {
        GoTo(1, step.column);
        Key(Qt::Key_Return);
        Key(step.key);
        EXPECT_EQ(Cell(1, step.column), step.text) << step.column;
        EXPECT_EQ(document.Image.At(step.address), step.value) << step.column;
        Key(Qt::Key_Return);
    }
}

TEST_F(ChannelGridToneTest, OptionSignallingStepsThroughItsThreeTexts) {
    Show();
    GoTo(1, 8);
    Key(Qt::Key_Return);
    Key(Qt::Key_Down);
    EXPECT_EQ(document.Image.At(0x1C) & 0x06, 0x02);
    Key(Qt::Key_Down);
    EXPECT_EQ(document.Image.At(0x1C) & 0x06, 0x04);
    Key(Qt::Key_Down);
    EXPECT_EQ(Cell(1, 8), "Corvane");
    Key(Qt::Key_Up);
    Key(Qt::Key_Up);
    EXPECT_EQ(document.Image.At(0x1C) & 0x06, 0x00);
}

TEST_F(ChannelGridToneTest, ChoosingPttIdOnAsksForTheCodesToBeChecked) {
    Show();
    EXPECT_FALSE(document.Flags.TxCodeError);
    GoTo(1, 9);
    Key(Qt::Key_Return);
    Key(Qt::Key_Down);
    EXPECT_TRUE(document.Flags.TxCodeError);
}

TEST_F(ChannelGridToneTest, AnEntryTakenFromTheListIsStored) {
    Show();
    GoTo(1, 3);
    Key(Qt::Key_Return);
    List().setCurrentIndex(39);
    emit List().activated(39);
    EXPECT_EQ(Cell(1, 3), "D023N");
    EXPECT_EQ(document.Image.At(0x18), 0x13);
    EXPECT_EQ(document.Image.At(0x19), 0x28);
}

TEST_F(ChannelGridToneTest, TheListOpensAndAClickOnAnEntryStoresIt) {
    Show();
    GoTo(1, 5);
    Key(Qt::Key_Return);
    List().showPopup();
    QAbstractItemView& entries = *List().view();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(entries.window()));
    EXPECT_TRUE(List().isVisible());
    // A list takes no click within the double-click time of its opening.
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    const QPoint low = entries.visualRect(entries.model()->index(1, 0)).center();
    QTest::mouseMove(entries.viewport(), low);
    QTest::mouseClick(entries.viewport(), Qt::LeftButton, {}, low);
    EXPECT_EQ(Cell(1, 5), "Low");
    EXPECT_EQ(document.Image.At(0x1D), 0x9F);
    EXPECT_TRUE(List().isVisible());
}

TEST_F(ChannelGridToneTest, NoEntryOfAnyListIsCutOff) {
    struct Case {
        Language language;
        std::uint8_t pttIdType;
    };
    for (const Case& shown : {Case{Language::English, 0}, Case{Language::English, 1}, Case{Language::Chinese, 1}}) {
        document.Image.Set(0x133, shown.pttIdType);
        Show(shown.language);
        for (int column = 3; column <= 9; ++column) {
            GoTo(1, column);
            Key(Qt::Key_Return);
            const int room = List().lineEdit()->width() - 4; // less the box's own margins
            for (int i = 0; i < List().count(); ++i) {
                EXPECT_LE(List().fontMetrics().horizontalAdvance(List().itemText(i)), room)
                    << FromQString(List().itemText(i));
            }
            List().showPopup();
            EXPECT_LE(List().view()->sizeHintForColumn(0), List().view()->viewport()->width()) << column;
            List().hidePopup();
            Key(Qt::Key_Return);
        }
        form.reset();
    }
}

TEST_F(ChannelGridToneTest, AListWhoseEntriesFitIsAsWideAsItsCell) {
    Show();
    GoTo(1, 3);
    Key(Qt::Key_Return);
    EXPECT_EQ(List().width(), 78);
}

TEST_F(ChannelGridToneTest, AnOpenEditorIsNamedAfterItsColumn) {
    Show();
    GoTo(1, 2);
    Key(Qt::Key_Return);
    EXPECT_EQ(TextBox().accessibleName(), "TX Frequency");
    GoTo(1, 6);
    form->HideEditors();
    Grid().setFocus();
    Key(Qt::Key_Return);
    EXPECT_EQ(List().accessibleName(), "W/N");
    EXPECT_EQ(List().accessibleDescription(), "W/N");
    EXPECT_EQ(List().lineEdit()->accessibleName(), "W/N");
}

TEST_F(ChannelGridToneTest, KeysTypedInColumnsFiveToNineAreRefused) {
    Show();
    for (int column = 5; column <= 9; ++column) {
        GoTo(1, column);
        Type("1dn.");
        EXPECT_FALSE(List().isVisible()) << column;
        Key(Qt::Key_Return);
        const QString shown = List().currentText();
        Type("1dnX");
        EXPECT_EQ(List().currentText(), shown) << column;
        Key(Qt::Key_Return);
    }
}

TEST_F(ChannelGridToneTest, AnUnknownPttIdTypeHasAnEmptyListAndAnEmptyCell) {
    document.Image.Set(0x133, 2);
    Show();
    EXPECT_EQ(Cell(1, 9), "");
    GoTo(1, 9);
    Key(Qt::Key_Return);
    EXPECT_TRUE(List().isVisible());
    EXPECT_EQ(List().count(), 0);
    const int before = document.Image.At(0x1E);
    Key(Qt::Key_Down);
    Key(Qt::Key_Return);
    EXPECT_EQ(document.Image.At(0x1E), before);
}

TEST_F(ChannelGridToneTest, EditingACellKeepsTheChannelsBusyChannelLockout) {
    for (const int bits : {0x00, 0x08, 0x10, 0x18}) {
        auto record = SimplexRecord;
        record[12] = static_cast<std::uint8_t>(bits);
        PutRecord(2, record);
        Show();
        GoTo(2, 5);
        Key(Qt::Key_Return);
        Key(Qt::Key_Down);
        EXPECT_EQ(document.Image.At(0x2C) & 0x18, bits);
        form.reset();
    }
}

} // namespace
} // namespace zelvor
