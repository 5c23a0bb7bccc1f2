#include "TestChannelFormFixture.h"

#include <QHeaderView>
#include <QScrollBar>

#include "data/BlankImage.h"

namespace zelvor {
namespace {

TEST_F(TestChannelFormTest, TheWindowHasItsNamesTitleAndTexts) {
    Show();
    EXPECT_EQ(form->objectName(), "TestChannelForm");
    EXPECT_EQ(form->Window(), ChildWindow::TestFrequency);
    EXPECT_EQ(form->windowTitle(), " Test Frequency");
    EXPECT_EQ(Find<QPushButton>("cmdClose").text(), "&Close");
    EXPECT_EQ(Find<QPushButton>("cmdHelp").text(), "&Help");
    EXPECT_EQ(form->Content()->objectName(), "picTestFreq");
    EXPECT_EQ(Grid().accessibleName(), "Test Frequency");
    for (const char* name : {"Picture2", "HScroll1", "VScroll1"}) {
        EXPECT_FALSE(Find<QWidget>(name).isVisible()) << name;
    }
}

TEST_F(TestChannelFormTest, TheWindowSpeaksChinese) {
    Show(Language::Chinese);
    EXPECT_EQ(form->windowTitle(), " 测试频率");
    EXPECT_EQ(Find<QPushButton>("cmdClose").text(), "关闭(&C)");
    EXPECT_EQ(Find<QPushButton>("cmdHelp").text(), "帮助(&H)");
    EXPECT_EQ(Find<QLabel>("corner").text(), "信道");
    EXPECT_EQ(Grid().horizontalHeaderItem(0)->text(), " 接收 [MHz]");
    EXPECT_EQ(Grid().horizontalHeaderItem(1)->text(), " 发射 [MHz]");
    EXPECT_EQ(Grid().accessibleName(), "测试频率");
}

TEST_F(TestChannelFormTest, TheGridShowsSixteenNumberedRowsOfTwoFrequencies) {
    Show();
    EXPECT_EQ(Find<QLabel>("corner").text(), "Channel");
    ASSERT_EQ(Grid().columnCount(), 2);
    EXPECT_EQ(Grid().horizontalHeaderItem(0)->text(), " RX [MHz]");
    EXPECT_EQ(Grid().horizontalHeaderItem(1)->text(), " TX [MHz]");
    ASSERT_EQ(Grid().rowCount(), 16);
    for (int k = 1; k <= 16; ++k) {
        EXPECT_EQ(Grid().verticalHeaderItem(k - 1)->text(), QString::number(k));
    }
    ExpectCursor(1, 1);
}

TEST_F(TestChannelFormTest, ColumnsAreAnEighthAndThreeEighthsOfTheGridAndAllRowsAreInView) {
    Show();
    EXPECT_EQ(Grid().width(), 480);
    EXPECT_EQ(Grid().verticalHeader()->width(), 60);
    EXPECT_EQ(Grid().columnWidth(0), 180);
    EXPECT_EQ(Grid().columnWidth(1), 180);
    EXPECT_EQ(Grid().verticalScrollBar()->maximum(), 0);
    EXPECT_TRUE(Grid().viewport()->rect().contains(Grid().visualItemRect(Grid().item(15, 1))));
}

TEST_F(TestChannelFormTest, FrequenciesLieAtTheRightAlsoInTheEditor) {
    Show();
    for (const int column : {1, 2}) {
        EXPECT_EQ(Grid().ColumnAlignment(column), Qt::AlignRight | Qt::AlignVCenter);
    }
    Type("1");
    EXPECT_EQ(Editor().alignment(), Qt::AlignRight | Qt::AlignVCenter);
}

TEST_F(TestChannelFormTest, PairsOfTheImageAreShown) {
    PutPair(1, "0025511400005015");
    PutPair(7, "0000405500000010");
    PutPair(8, "FF25511400255114");
    PutPair(16, "99999999FFFFFFFF");
    Show();
    EXPECT_EQ(Row(1), (Pair{"145.12500", "155.00000"}));
    EXPECT_EQ(Row(2), (Pair{"", ""}));
    EXPECT_EQ(Row(7), (Pair{"554.00000", "100.00000"}));
    EXPECT_EQ(Row(8), (Pair{"", ""}));
    EXPECT_EQ(Row(16), (Pair{"999.99999", "000.00000"}));
}

TEST_F(TestChannelFormTest, ABlankDocumentShowsItsSixDefaultPairs) {
    document.Image.Set(0x1BD, 0x21);
    InitAllFrameData(document.Image);
    Show();
    EXPECT_EQ(Row(1), (Pair{"470.05000", "470.10000"}));
    EXPECT_EQ(Row(2), (Pair{"450.05000", "450.10000"}));
    EXPECT_EQ(Row(3), (Pair{"489.95000", "489.90000"}));
    EXPECT_EQ(Row(4), (Pair{"470.00000", "470.00000"}));
    EXPECT_EQ(Row(5), (Pair{"470.20000", "470.20000"}));
    EXPECT_EQ(Row(6), (Pair{"470.40000", "470.40000"}));
    EXPECT_EQ(Row(7), (Pair{"", ""}));
}

TEST_F(TestChannelFormTest, ADigitOrThePointOpensTheEditorWithItAsTheOnlyText) {
    PutPair(1, "0025511400005015");
    for (const char* typed : {"0", "1", "9", "."}) {
        Show();
        Grid().MoveTo(1, 2);
        Type(typed);
        ExpectEditorOver(1, 2);
        EXPECT_EQ(Editor().text(), typed);
        EXPECT_EQ(Editor().cursorPosition(), 1);
        EXPECT_EQ(Editor().selectedText(), "");
        EXPECT_EQ(Cell(1, 2), typed);
    }
}

TEST_F(TestChannelFormTest, TheNumericPadOpensTheEditorToo) {
    Show();
    QTest::keyClick(&Grid(), Qt::Key_1, Qt::KeypadModifier);
    QTest::keyClick(&Editor(), Qt::Key_4, Qt::KeypadModifier);
    QTest::keyClick(&Editor(), Qt::Key_5, Qt::KeypadModifier);
    QTest::keyClick(&Editor(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(Cell(1, 1), "145.00000");
    QTest::keyClick(&Grid(), Qt::Key_Enter, Qt::KeypadModifier);
    ExpectEditorOver(1, 2);
}

TEST_F(TestChannelFormTest, ACharacterInColumnTwoOfAnEmptyRowStaysInColumnTwo) {
    Show();
    Grid().MoveTo(3, 2);
    Type("4");
    ExpectEditorOver(3, 2);
    EXPECT_EQ(Editor().text(), "4");
}

TEST_F(TestChannelFormTest, EnterOpensTheEditorWithTheCellsTextSelectedAndTheCaretAtItsStart) {
    PutPair(5, "0025511400005015");
    Show();
    Grid().MoveTo(5, 2);
    Key(Qt::Key_Return);
    ExpectEditorOver(5, 2);
    EXPECT_EQ(Editor().text(), "155.00000");
    EXPECT_EQ(Editor().selectedText(), "155.00000");
    EXPECT_EQ(Editor().cursorPosition(), 0);
    EXPECT_EQ(Editor().accessibleName(), "TX [MHz]");
}

TEST_F(TestChannelFormTest, EnterInColumnTwoOfAnEmptyRowGoesToColumnOne) {
    Show();
    Grid().MoveTo(9, 2);
    Key(Qt::Key_Return);
    ExpectEditorOver(9, 1);
    EXPECT_EQ(Editor().accessibleName(), "RX [MHz]");
}

TEST_F(TestChannelFormTest, AClickOpensTheClickedCellAndColumnTwoOfAnEmptyRowGoesToColumnOne) {
    PutPair(2, "0025511400005015");
    Show();
    ClickCell(2, 2);
    ExpectEditorOver(2, 2);
    EXPECT_EQ(Editor().selectedText(), "155.00000");
    ClickCell(4, 2);
    ExpectEditorOver(4, 1);
    ClickCell(16, 1);
    ExpectEditorOver(16, 1);
}

TEST_F(TestChannelFormTest, NothingElseOpensTheEditor) {
    PutPair(1, "0025511400005015");
    Show();
    for (const char* typed : {"a", "l", "D", " ", "-", ",", "+"}) {
        Type(typed);
        EXPECT_FALSE(Editor().isVisible()) << typed;
    }
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_F2, Qt::Key_Escape, Qt::Key_Right,
                              Qt::Key_Down, Qt::Key_Home, Qt::Key_PageUp}) {
        QTest::keyClick(&Grid(), key);
        EXPECT_FALSE(Editor().isVisible()) << key;
    }
    QTest::keyClick(&Grid(), Qt::Key_1, Qt::ControlModifier);
    QTest::keyClick(&Grid(), Qt::Key_1, Qt::AltModifier);
    ClickCell(1, 1, Qt::RightButton);
    ClickCell(1, 1, Qt::MiddleButton);
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_EQ(Row(1), (Pair{"145.12500", "155.00000"}));
}

TEST_F(TestChannelFormTest, ThePanelScrollsInASmallWindow) {
    Show();
    EXPECT_EQ(form->size(), QSize(496, 432));
    form->resize(300, 200);
    auto& horizontal = Find<QScrollBar>("HScroll1");
    auto& vertical = Find<QScrollBar>("VScroll1");
    EXPECT_TRUE(Find<QWidget>("Picture2").isVisible());
    EXPECT_EQ(horizontal.maximum(), 496 - (300 - 16));
    EXPECT_EQ(vertical.maximum(), 432 - (200 - 16));
    vertical.setValue(50);
    EXPECT_EQ(form->Content()->pos(), QPoint(0, -50));
}

} // namespace
} // namespace zelvor
