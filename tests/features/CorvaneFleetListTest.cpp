#include "CorvaneFormFixture.h"

namespace zelvor {
namespace {

TEST_F(CorvaneFormTest, TheListShowsEveryEntryInItsRow) {
    PutEntry(1, {0, 0, 0});
    PutEntry(3, {250, 0xA0, 0x0F});
    PutEntry(4, {0xFF, 1, 0});
    PutEntry(5, {1, 0xFF, 0xFF});
    PutEntry(8, {254, 0, 0xFF});
    Put(0x1CC, {1, 1, 1, 1}); // no part of the list
    Put(0x1DC, {1, 1, 1, 1});
    const char* const cells[8][2] = {{"All", "All"}, {"150", "1234"}, {"349", "4999"}, {"", "1000"},
                                     {"100", ""},    {"", ""},        {"", ""},        {"353", "66279"}};
    Load();
    for (int row = 1; row <= 8; ++row) {
        EXPECT_EQ(Cell(row, 1), cells[row - 1][0]) << row;
        EXPECT_EQ(Cell(row, 2), cells[row - 1][1]) << row;
        EXPECT_EQ(Grid().verticalHeaderItem(row - 1)->text(), QString::number(row));
    }
    Load(Language::Chinese);
    EXPECT_EQ(Cell(1, 1), "全部");
    EXPECT_EQ(Cell(1, 2), "全部");
}

TEST_F(CorvaneFormTest, TheEditorOpensOverTheCellWithItsTextSelected) {
    ShowList();
    ClickCell(2, 2);
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_TRUE(Editor().hasFocus());
    EXPECT_EQ(Editor().geometry(), Grid().CellRect(2, 2));
    EXPECT_EQ(Editor().selectedText(), "1234");
    Key(Qt::Key_Escape);
    EXPECT_FALSE(Editor().isVisible());
    Open(2, 1);
    EXPECT_EQ(Editor().geometry(), Grid().CellRect(2, 1));
    EXPECT_EQ(Editor().selectedText(), "150");
}

TEST_F(CorvaneFormTest, AHintBelowTheListTellsHowANumberIsEntered) {
    for (const Language language : {Language::English, Language::Chinese}) {
        ShowList(language);
        const auto& hint = Find<QLabel>("LabHint");
        EXPECT_TRUE(hint.isVisible());
        EXPECT_TRUE(hint.text().contains(language == Language::English ? "Shift+arrow" : "Shift 加方向键"));
        EXPECT_LT(Grid().geometry().bottom(), hint.y());
        EXPECT_LE(hint.heightForWidth(hint.width()), hint.height());
        EXPECT_TRUE(hint.parentWidget()->rect().contains(hint.geometry()));
    }
}

TEST_F(CorvaneFormTest, ANumberIsEnteredAsTheHintTells) {
    ShowList();
    Open(6, 1);
    Type("2");
    EXPECT_EQ(Cell(6, 1), "100");
    for (const char* digit : {"7", "3", "2"}) { // from the last one on
        QTest::keyClick(&Editor(), Qt::Key_Left, Qt::ShiftModifier);
        Type(digit);
        QTest::keyClick(&Editor(), Qt::Key_Home);
        const int place = *digit == '7' ? 2 : *digit == '3' ? 1 : 0;
        for (int i = 0; i < place; ++i) {
            QTest::keyClick(&Editor(), Qt::Key_Right);
        }
    }
    EXPECT_EQ(Cell(6, 1), "237");
    EXPECT_EQ(Entry(6)[0], 138); // 237 - 99
}

TEST_F(CorvaneFormTest, OtherButtonsAndKeysDoNotOpenTheEditor) {
    ShowList();
    const DataImage before = document.Image;
    ClickCell(2, 2, Qt::RightButton);
    EXPECT_FALSE(Editor().isVisible());
    Type("bBzD#*+-. !");
    EXPECT_FALSE(Editor().isVisible());
    QTest::keyClick(&Grid(), Qt::Key_1, Qt::ControlModifier);
    QTest::keyClick(&Grid(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_EQ(document.Image, before);
    EXPECT_EQ(Cell(2, 1), "150");
}

TEST_F(CorvaneFormTest, EveryDigitOpensTheEditorAndBecomesTheLowerLimit) {
    for (int column = 1; column <= 2; ++column) {
        for (int digit = 1; digit <= 9; ++digit) {
            for (const Qt::KeyboardModifier block : {Qt::NoModifier, Qt::KeypadModifier}) {
                PutEntry(6, {0xFF, 0xFF, 0xFF});
                ShowList();
                Grid().MoveTo(6, column);
                QTest::keyClick(&Grid(), static_cast<Qt::Key>(Qt::Key_0 + digit), block);
                EXPECT_TRUE(Editor().hasFocus());
                EXPECT_FALSE(Editor().hasSelectedText());
                EXPECT_EQ(Editor().text(), column == 1 ? "100" : "1000");
                EXPECT_EQ(Editor().cursorPosition(), column == 1 ? 3 : 4);
                EXPECT_EQ(Cell(6, column), column == 1 ? "100" : "1000");
                EXPECT_EQ(Cell(6, 3 - column), "All");
                EXPECT_EQ(Entry(6), column == 1 ? (Bytes{1, 0, 0}) : (Bytes{0, 1, 0})) << digit;
            }
        }
    }
}

TEST_F(CorvaneFormTest, ZeroAndTheLetterAStandForAll) {
    for (const char* typed : {"0", "A", "a"}) {
        for (const Language language : {Language::English, Language::Chinese}) {
            const char* all = language == Language::English ? "All" : "全部";
            PutEntry(7, {0xFF, 0xFF, 0xFF});
            ShowList(language);
            Grid().MoveTo(7, 1);
            Type(typed);
            EXPECT_EQ(Editor().text(), all);
            EXPECT_EQ(Cell(7, 1), all);
            EXPECT_EQ(Cell(7, 2), all);
            EXPECT_EQ(Entry(7), (Bytes{0, 0, 0}));
        }
    }
}

TEST_F(CorvaneFormTest, AllIdsOfAnEmptyRowStoreAllFleetsBehindAnEmptyCell) {
    for (const char* typed : {"0", "A", "a"}) {
        PutEntry(7, {0xFF, 0xFF, 0xFF});
        ShowList();
        Grid().MoveTo(7, 2);
        Type(typed);
        EXPECT_EQ(Cell(7, 1), "");
        EXPECT_EQ(Cell(7, 2), "All");
        EXPECT_EQ(Entry(7), (Bytes{0, 0, 0}));
        Key(Qt::Key_Return);
        EXPECT_EQ(Cell(7, 1), "");
        EXPECT_EQ(Entry(7), (Bytes{0, 0, 0}));
        Load();
        EXPECT_EQ(Cell(7, 1), "All");
        EXPECT_EQ(Cell(7, 2), "All");
    }
}

TEST_F(CorvaneFormTest, AllInOneCellLeavesANumberInTheOther) {
    ShowList();
    Open(2, 1);
    Type("A");
    EXPECT_EQ(Cell(2, 2), "1234");
    EXPECT_EQ(Entry(2), (Bytes{0, 235, 0}));
    Key(Qt::Key_Return);
    PutEntry(2, {51, 235, 0});
    ShowList();
    Open(2, 2);
    Type("A");
    EXPECT_EQ(Cell(2, 1), "150");
    EXPECT_EQ(Entry(2), (Bytes{51, 0, 0}));
}

TEST_F(CorvaneFormTest, EachKeyIsStoredAtOnce) {
    ShowList();
    Open(2, 1);
    Editor().setSelection(1, 1); // the 5 of 150
    Type("2");
    EXPECT_EQ(Cell(2, 1), "120");
    EXPECT_EQ(Entry(2), (Bytes{21, 235, 0}));
    Editor().setSelection(0, 1);
    Type("3");
    EXPECT_EQ(Editor().text(), "320");
    EXPECT_EQ(Entry(2), (Bytes{221, 235, 0}));
    Editor().setSelection(0, 1);
    Type("9");
    EXPECT_EQ(Editor().text(), "349");
    EXPECT_EQ(Entry(2), (Bytes{250, 235, 0}));
    Key(Qt::Key_Backspace); // 34
    EXPECT_EQ(Editor().text(), "100");
    EXPECT_EQ(Entry(2), (Bytes{1, 235, 0}));
}

TEST_F(CorvaneFormTest, EachKeyOfAnIdIsStoredAtOnce) {
    ShowList();
    Open(2, 2);
    Editor().setSelection(0, 1); // the 1 of 1234
    Type("4");
    EXPECT_EQ(Cell(2, 2), "4234");
    EXPECT_EQ(Entry(2), (Bytes{51, 0xA3, 0x0C}));
    Editor().setSelection(0, 1);
    Type("5");
    EXPECT_EQ(Editor().text(), "4999");
    EXPECT_EQ(Entry(2), (Bytes{51, 0xA0, 0x0F}));
    Editor().setSelection(0, 1);
    Type("0");
    EXPECT_EQ(Editor().text(), "1000");
    EXPECT_EQ(Entry(2), (Bytes{51, 1, 0}));
}

TEST_F(CorvaneFormTest, APastedNumberCountsAsAWhole) {
    ShowList();
    Open(2, 1);
    Paste("2-7x5");
    EXPECT_EQ(Editor().text(), "275");
    EXPECT_EQ(Entry(2), (Bytes{176, 235, 0}));
    Key(Qt::Key_Tab);
    Open(2, 2);
    Paste("43217");
    EXPECT_EQ(Editor().text(), "4321");
    EXPECT_EQ(Entry(2), (Bytes{176, 0xFA, 0x0C}));
    Editor().selectAll();
    Paste("xyz");
    EXPECT_EQ(Editor().text(), "4321");
}

TEST_F(CorvaneFormTest, DigitsAreTakenUpToTheLengthOfTheColumn) {
    ShowList();
    Open(2, 1);
    Editor().end(false);
    Type("7");
    EXPECT_EQ(Editor().text(), "150");
    Key(Qt::Key_Tab);
    Open(2, 2);
    Editor().end(false);
    Type("7");
    EXPECT_EQ(Editor().text(), "1234");
    EXPECT_EQ(Entry(2), (Bytes{51, 235, 0}));
}

TEST_F(CorvaneFormTest, TheLetterAIsTakenForTheWholeTextOnly) {
    ShowList();
    Open(2, 1);
    Type("bB*#.-");
    EXPECT_EQ(Editor().text(), "150");
    Editor().setSelection(0, 2);
    Type("A");
    EXPECT_EQ(Editor().text(), "150");
    Editor().end(false);
    Type("a");
    EXPECT_EQ(Editor().text(), "150");
    Editor().selectAll();
    Type("a");
    EXPECT_EQ(Editor().text(), "All");
}

TEST_F(CorvaneFormTest, TheLetterAIsTakenForAnEmptyText) {
    ShowList();
    ClickCell(3, 1);
    EXPECT_EQ(Editor().text(), "");
    Type("A");
    EXPECT_EQ(Editor().text(), "All");
    EXPECT_EQ(Entry(3), (Bytes{0, 0, 0}));
}

TEST_F(CorvaneFormTest, EmptyingEitherCellErasesTheEntry) {
    for (int row = 1; row <= 8; ++row) {
        for (int column = 1; column <= 2; ++column) {
            document.Image.Fill(0x55);
            PutEntry(row, {51, 235, 0});
            DataImage expected = document.Image;
            const int addresses[] = {0x1C0, 0x1C3, 0x1C6, 0x1C9, 0x1D0, 0x1D3, 0x1D6, 0x1D9};
            for (int i = 0; i < 3; ++i) {
                expected.Set(addresses[row - 1] + i, 0xFF);
            }
            ShowList();
            expected.Set(0x170, document.Image.At(0x170)); // the focus was on the fleet when the tab was changed
            Open(row, column);
            Key(Qt::Key_Backspace);
            EXPECT_EQ(Cell(row, 1), "");
            EXPECT_EQ(Cell(row, 2), "");
            EXPECT_EQ(Differences(document.Image, expected), Bytes{}) << row;
            Key(Qt::Key_Return);
            EXPECT_EQ(Differences(document.Image, expected), Bytes{}) << row;
        }
    }
}

TEST_F(CorvaneFormTest, EnterMovesToTheIdAndFromThereToTheNextRow) {
    ShowList();
    for (int row = 1; row <= 7; ++row) {
        Open(row, 1);
        Key(Qt::Key_Return);
        EXPECT_FALSE(Editor().isVisible());
        ExpectCursor(row, 2);
        Open(row, 2);
        Key(Qt::Key_Return);
        ExpectCursor(row + 1, 1);
    }
    Open(8, 1);
    Key(Qt::Key_Return);
    ExpectCursor(8, 2);
    Open(8, 2);
    Key(Qt::Key_Return);
    ExpectCursor(8, 2);
}

TEST_F(CorvaneFormTest, EscapeBringsTheCellsTextBackAndLeavesTheImage) {
    ShowList();
    Open(2, 1);
    Type("7");
    EXPECT_EQ(Cell(2, 1), "100");
    Key(Qt::Key_Escape);
    EXPECT_FALSE(Editor().isVisible());
    ExpectCursor(2, 1);
    EXPECT_EQ(Cell(2, 1), "150");
    EXPECT_EQ(Entry(2), (Bytes{1, 235, 0}));
    Load();
    EXPECT_EQ(Cell(2, 1), "100");
}

TEST_F(CorvaneFormTest, EscapeAfterEmptyingBringsBackOneCellOfTheErasedEntry) {
    ShowList();
    Open(2, 2);
    Key(Qt::Key_Backspace);
    Key(Qt::Key_Escape);
    EXPECT_EQ(Cell(2, 1), "");
    EXPECT_EQ(Cell(2, 2), "1234");
    EXPECT_EQ(Entry(2), (Bytes{0xFF, 0xFF, 0xFF}));
}

TEST_F(CorvaneFormTest, LeavingTheEditorStoresTheEntryAndHidesIt) {
    PutEntry(5, {253, 0x00, 0x40}); // 352 and 17383, both beyond the range
    ShowList();
    Open(5, 1);
    EXPECT_EQ(Editor().text(), "352");
    ClickCell(5, 2);
    EXPECT_EQ(Cell(5, 1), "349");
    EXPECT_EQ(Entry(5), (Bytes{250, 0x00, 0x40}));
    EXPECT_EQ(Editor().geometry(), Grid().CellRect(5, 2));
    EXPECT_EQ(Editor().text(), "17383");
    Click("cmdHelp");
    Find<QPushButton>("cmdHelp").setFocus();
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_EQ(Cell(5, 2), "4999");
    EXPECT_EQ(Entry(5), (Bytes{250, 0xA0, 0x0F}));
}

TEST_F(CorvaneFormTest, AChangeOfTheTabEndsTheEdit) {
    ShowList();
    Open(2, 1);
    Paste("222");
    ClickTab(0);
    ClickTab(1);
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_EQ(Cell(2, 1), "222");
    EXPECT_EQ(Entry(2), (Bytes{123, 235, 0}));
}

TEST_F(CorvaneFormTest, EveryLegalEntryStaysAsItIsWhenItsCellsAreEnteredAndLeft) {
    for (int row = 1; row <= 8; ++row) {
        for (const auto& bytes : {Bytes{0, 0, 0}, Bytes{1, 1, 0}, Bytes{250, 0xA0, 0x0F}, Bytes{77, 0, 0},
                                  Bytes{0, 0xFF, 0}, Bytes{0xFF, 0xFF, 0xFF}}) {
            PutEntry(row, {bytes[0], bytes[1], bytes[2]});
            const DataImage before = document.Image;
            ShowList();
            Open(row, 1);
            Key(Qt::Key_Tab);
            Open(row, 2);
            Key(Qt::Key_Return);
            EXPECT_EQ(document.Image, before) << row << ", " << bytes[0];
        }
    }
}

TEST_F(CorvaneFormTest, EveryFleetByteOfAnEntryCommitsToALegalOne) {
    for (int byte = 0; byte < 256; ++byte) {
        PutEntry(4, {byte, 235, 0});
        ShowList();
        const std::string shown = byte == 0xFF ? "" : byte == 0 ? "All" : std::to_string(byte + 99);
        EXPECT_EQ(Cell(4, 1), shown);
        Open(4, 1);
        Key(Qt::Key_Return);
        if (byte == 0xFF) {
            EXPECT_EQ(Entry(4), (Bytes{0xFF, 0xFF, 0xFF}));
        } else {
            EXPECT_EQ(Entry(4), (Bytes{byte > 250 ? 250 : byte, 235, 0})) << byte;
        }
    }
}

} // namespace
} // namespace zelvor
