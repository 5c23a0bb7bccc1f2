#include "controls/EditGrid.h"

#include <QAccessible>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include "controls/CellListEditor.h"
#include "controls/CellTextEditor.h"
#include "controls/TextCellEdit.h"

namespace zelvor {
namespace {

class EditGridTest : public testing::Test {
protected:
    void SetUp() override {
        panel.resize(400, 200);
        grid.setGeometry(10, 20, 300, 100);
        grid.SetCaptions({"No.", "First", "Second"}, {"1", "2", "3"});
        grid.FitCells({60, 100, 100});
        panel.show();
        panel.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
        grid.setFocus();
    }
    QPoint Center(int row, int column) { return grid.visualItemRect(grid.item(row - 1, column - 1)).center(); }

    QWidget panel;
    EditGrid grid{3, 2, &panel};
};

TEST_F(EditGridTest, GetsItsKeysPastTheInputMethod) {
    EXPECT_FALSE(grid.testAttribute(Qt::WA_InputMethodEnabled));
    grid.MoveTo(2, 2);
    EXPECT_FALSE(grid.testAttribute(Qt::WA_InputMethodEnabled));
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier, Center(3, 1));
    grid.clearFocus();
    grid.setFocus();
    EXPECT_FALSE(grid.testAttribute(Qt::WA_InputMethodEnabled));
}

TEST(TypedCharacter, IsThatOfAKeyWithAltGrAndOfNoCommand) {
    constexpr Qt::KeyboardModifiers altGr = Qt::ControlModifier | Qt::AltModifier;
    EXPECT_EQ(TypedCharacter(QKeyEvent(QEvent::KeyPress, Qt::Key_NumberSign, altGr, "#")), QChar(u'#'));
    EXPECT_EQ(TypedCharacter(QKeyEvent(QEvent::KeyPress, Qt::Key_Eacute, Qt::NoModifier, "é")), QChar(u'é'));
    EXPECT_EQ(TypedCharacter(QKeyEvent(QEvent::KeyPress, Qt::Key_1, altGr, "")), QChar());
    EXPECT_EQ(TypedCharacter(QKeyEvent(QEvent::KeyPress, Qt::Key_Dead_Acute, Qt::NoModifier, "")), QChar());
    EXPECT_EQ(TypedCharacter(QKeyEvent(QEvent::KeyPress, Qt::Key_1, Qt::ControlModifier, "1")), QChar());
    EXPECT_EQ(TypedCharacter(QKeyEvent(QEvent::KeyPress, Qt::Key_D, Qt::AltModifier, "d")), QChar());
}

TEST_F(EditGridTest, CountsRowsAndColumnsFromOne) {
    grid.SetText(3, 2, "last");
    EXPECT_EQ(grid.Text(3, 2), "last");
    EXPECT_EQ(grid.Text(4, 1), "");
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Column(), 1);
}

TEST_F(EditGridTest, ACellThatAssistiveTechnologySelectsGetsTheCursorAndTheKeys) {
    QWidget other(&panel);
    other.setFocusPolicy(Qt::StrongFocus);
    other.show();
    other.setFocus();
    ASSERT_FALSE(grid.hasFocus());
    const QSignalSpy moved(&grid, &EditGrid::CursorMoved);
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&grid);
    table->tableInterface()->cellAt(2, 1)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCoreApplication::processEvents();
    EXPECT_EQ(grid.Row(), 3);
    EXPECT_EQ(grid.Column(), 2);
    EXPECT_TRUE(grid.hasFocus());
    ASSERT_EQ(moved.count(), 1);
    EXPECT_EQ(moved.front().at(0).toInt(), 3);
    EXPECT_EQ(moved.front().at(1).toInt(), 2);
}

TEST_F(EditGridTest, AMoveOfTheCursorByTheProgramLeavesTheKeysWhereTheyAre) {
    grid.clearFocus();
    const QSignalSpy moved(&grid, &EditGrid::CursorMoved);
    grid.MoveTo(2, 2);
    QCoreApplication::processEvents();
    EXPECT_EQ(moved.count(), 1);
    EXPECT_FALSE(grid.hasFocus());
}

TEST_F(EditGridTest, SharesItsHeightOutAmongHeaderAndRows) {
    EXPECT_EQ(grid.rowHeight(0), (100 - 2 * grid.frameWidth()) / 4);
    EXPECT_EQ(grid.verticalScrollBar()->maximum(), 0);
}

TEST_F(EditGridTest, NothingIsShownBehindItsLastColumn) {
    EXPECT_EQ(grid.width(), 300);
    EXPECT_EQ(grid.mask().boundingRect(), QRect(0, 0, grid.frameWidth() + 260, 100));
    grid.FitCells({60, 200, 200}); // more than there is room for
    EXPECT_EQ(grid.mask().boundingRect(), QRect(0, 0, 300, 100));
}

TEST_F(EditGridTest, RowsWithAHeightOfTheirOwnScroll) {
    grid.FitCells({60, 100, 100}, 40);
    QCoreApplication::processEvents();
    EXPECT_EQ(grid.horizontalHeader()->height(), 40);
    EXPECT_EQ(grid.rowHeight(0), 40);
    EXPECT_EQ(grid.rowHeight(2), 40);
    EXPECT_GT(grid.verticalScrollBar()->maximum(), 0);
    const QSignalSpy scrolled(&grid, &EditGrid::Scrolled);
    grid.verticalScrollBar()->setValue(10);
    EXPECT_EQ(scrolled.count(), 1);
}

TEST_F(EditGridTest, ScrollingBringsTheTextOfAnEditedCellBack) {
    CellTextEditor editor(&panel);
    TextCellEdit edit(grid, editor);
    grid.FitCells({60, 100, 100}, 40);
    QCoreApplication::processEvents();
    grid.SetText(1, 1, "145");
    edit.Open();
    edit.PutText("146");
    ASSERT_EQ(grid.Text(1, 1), "146");
    grid.verticalScrollBar()->setValue(10);
    EXPECT_EQ(grid.Text(1, 1), "145");
    EXPECT_FALSE(edit.IsOpen());
    EXPECT_FALSE(editor.isVisible());
}

TEST_F(EditGridTest, TellsWhereTheCursorWent) {
    const QSignalSpy moved(&grid, &EditGrid::CursorMoved);
    QTest::keyClick(&grid, Qt::Key_Down);
    QTest::keyClick(&grid, Qt::Key_Right);
    ASSERT_EQ(moved.count(), 2);
    EXPECT_EQ(moved.last().at(0).toInt(), 2);
    EXPECT_EQ(moved.last().at(1).toInt(), 2);
    grid.MoveRight();
    EXPECT_EQ(grid.Column(), 2);
    grid.MoveTo(9, 9);
    EXPECT_EQ(grid.Row(), 2);
}

TEST_F(EditGridTest, AFormatCaptionsAndPlacesItsColumns) {
    grid.SetCaptions({"", "", ""}, {"Top", "Middle", "Bottom"});
    grid.SetFormat("^No.|^First |> Second");
    EXPECT_EQ(grid.findChild<QLabel*>("corner")->text(), "No.");
    EXPECT_EQ(grid.horizontalHeaderItem(0)->text(), "First ");
    EXPECT_EQ(grid.horizontalHeaderItem(1)->text(), " Second");
    EXPECT_EQ(grid.ColumnAlignment(1), Qt::AlignCenter);
    EXPECT_EQ(grid.ColumnAlignment(2), Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_EQ(grid.horizontalHeaderItem(1)->textAlignment(), static_cast<int>(Qt::AlignRight | Qt::AlignVCenter));
    EXPECT_EQ(grid.item(2, 1)->textAlignment(), static_cast<int>(Qt::AlignRight | Qt::AlignVCenter));
    EXPECT_EQ(grid.verticalHeaderItem(2)->text(), "3");
}

TEST_F(EditGridTest, ACaptionBehindASemicolonIsTheCorners) {
    grid.SetFormat("^|^First|^Second;Channel No.");
    EXPECT_EQ(grid.findChild<QLabel*>("corner")->text(), "Channel No.");
    EXPECT_EQ(grid.horizontalHeaderItem(1)->text(), "Second");
}

TEST_F(EditGridTest, ALeftClickTellsItsCellAndARightClickDoesNot) {
    const QSignalSpy clicked(&grid, &EditGrid::CellClicked);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, Center(3, 2));
    ASSERT_EQ(clicked.count(), 1);
    EXPECT_EQ(clicked.first().at(0).toInt(), 3);
    EXPECT_EQ(clicked.first().at(1).toInt(), 2);
    QTest::mouseClick(grid.viewport(), Qt::RightButton, {}, Center(1, 1));
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, Center(1, 1));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, Center(2, 2));
    EXPECT_EQ(clicked.count(), 1);
}

TEST_F(EditGridTest, AnEditorCoversTheCurrentCellAndSelectsItsText) {
    CellTextEditor editor(&panel);
    grid.MoveTo(2, 2);
    editor.ShowOver(grid, "145");
    const QPoint corner = grid.viewport()->mapTo(&panel, grid.visualItemRect(grid.item(1, 1)).topLeft());
    EXPECT_EQ(editor.geometry().topLeft(), corner);
    EXPECT_EQ(editor.width(), 100);
    EXPECT_TRUE(editor.hasFocus());
    EXPECT_EQ(editor.selectedText(), "145");
}

TEST_F(EditGridTest, TheLastCaptionHasABorderAtItsRightLikeTheOthers) {
    const QImage picture = grid.horizontalHeader()->grab().toImage();
    // The border's column of pixels differs from the heading's ground beside it.
    for (const int right : {99, 199}) {
        const int middle = picture.height() / 2;
        EXPECT_NE(picture.pixel(right, middle), picture.pixel(right - 2, middle)) << right;
        EXPECT_EQ(picture.pixel(right, middle), picture.pixel(99, middle)) << right;
    }
}

TEST_F(EditGridTest, AListCoversItsRowAloneAndStaysWithinTheGrid) {
    CellListEditor list(&panel);
    const QStringList entries{"Off", "A rather long entry of the list"};
    for (const int row : {1, 3}) {
        for (const int column : {1, 2}) {
            grid.MoveTo(row, column);
            list.ShowOver(grid, entries, "Off", false);
            const QRect cell = grid.CellRect(row, column);
            const QRect cells = grid.CellRect(1, 1) | grid.CellRect(3, 2);
            EXPECT_EQ(list.y(), cell.y());
            EXPECT_EQ(list.height(), cell.height());
            EXPECT_GT(list.width(), cell.width());
            EXPECT_TRUE(cells.contains(list.geometry())) << row << ' ' << column;
            EXPECT_EQ(list.lineEdit()->alignment(), Qt::AlignCenter);
            EXPECT_EQ(list.lineEdit()->height(), cell.height());
        }
    }
    list.ShowOver(grid, {"Off"}, "Off", false);
    EXPECT_EQ(list.geometry(), grid.CellRect(3, 2));
}

TEST_F(EditGridTest, HeadersShrinkTheirFontUntilNoCaptionIsCutOff) {
    grid.SetCaptions({"No.", "A caption that is rather long", "B"}, {"1", "2", "3"});
    grid.FitCells({60, 130, 60});
    const QFontMetrics metrics(grid.horizontalHeader()->font());
    EXPECT_LE(metrics.horizontalAdvance("A caption that is rather long"), 130);
}

} // namespace
} // namespace zelvor
