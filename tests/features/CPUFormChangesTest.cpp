// What the memory map does about bytes that were changed and not stored yet.

#include <QTableWidgetItem>

#include "features/CPUFormFixture.h"

namespace zelvor {
namespace {

class CPUFormChangesTest : public CPUFormTest {
protected:
    void SetUp() override {
        document.Image.Set(0x011, 0x5C);
        Show();
        Grid().MoveTo(2, 2);
    }
    const QTableWidgetItem& Cell(int row, int column) { return *Grid().item(row - 1, column - 1); }
    bool IsMarked(int row, int column) {
        const QTableWidgetItem& cell = Cell(row, column);
        const bool bold = cell.font().bold();
        EXPECT_EQ(cell.foreground().color() == Grid().palette().color(QPalette::Link), bold);
        EXPECT_EQ(!cell.toolTip().isEmpty(), bold);
        return bold;
    }
};

TEST_F(CPUFormChangesTest, EscapeWithoutAChangeLeavesWithoutAWord) {
    Key(Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result(), QDialog::Rejected);
}

TEST_F(CPUFormChangesTest, EscapeInACellCancelsTheCellAndTheNextOneLeaves) {
    Type("A1");
    Key(Qt::Key_Escape);
    EXPECT_EQ(Grid().Text(2, 2), "5C");
    EXPECT_TRUE(form->isVisible());
    Key(Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(CPUFormChangesTest, EscapeAsksWhereAByteWasChanged) {
    const DataImage before = document.Image;
    Type("A1");
    Key(Qt::Key_Return);
    services.messages.Expect(Question(), MessageAnswer::No);
    Key(Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Grid().Text(2, 2), "A1");
    services.messages.Expect(Question(), MessageAnswer::Yes);
    Key(Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result(), QDialog::Rejected);
    EXPECT_EQ(document.Image, before);
}

TEST_F(CPUFormChangesTest, AsksInChinese) {
    Show(Language::Chinese);
    Type("A1");
    Key(Qt::Key_Return);
    services.messages.Expect(Question(), MessageAnswer::Yes);
    Key(Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(CPUFormChangesTest, ClosingTheWindowAsksToo) {
    Type("A1");
    Key(Qt::Key_Return);
    services.messages.Expect(Question(), MessageAnswer::No);
    EXPECT_FALSE(form->close());
    EXPECT_TRUE(form->isVisible());
    // Digits that are being typed count as well.
    Grid().MoveTo(2, 2);
    Type("5C");
    Key(Qt::Key_Return);
    Type("7");
    services.messages.Expect(Question(), MessageAnswer::Yes);
    EXPECT_TRUE(form->close());
}

TEST_F(CPUFormChangesTest, AByteThatWasTypedBackIsNoChange) {
    Type("A1");
    Key(Qt::Key_Return);
    Grid().MoveTo(2, 2);
    Type("5c");
    Key(Qt::Key_Return);
    Key(Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(CPUFormChangesTest, CancelDoesNotAsk) {
    Type("A1");
    Key(Qt::Key_Return);
    Click("cmdCancel");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result(), QDialog::Rejected);
}

TEST_F(CPUFormChangesTest, MarksTheBytesThatDifferFromTheDocument) {
    EXPECT_FALSE(IsMarked(2, 2));
    Type("A1");
    Key(Qt::Key_Return);
    EXPECT_TRUE(IsMarked(2, 2));
    EXPECT_EQ(Cell(2, 2).toolTip(), "Changed, was 5C");
    EXPECT_FALSE(IsMarked(2, 3));
    Grid().MoveTo(2, 2);
    Type("3");
    Key(Qt::Key_Escape);
    EXPECT_TRUE(IsMarked(2, 2)); // A1 again
    Type("5C");
    Key(Qt::Key_Return);
    EXPECT_FALSE(IsMarked(2, 2));
    for (int row = 1; row <= 64; ++row) {
        for (int column = 1; column <= 16; ++column) {
            ASSERT_FALSE(IsMarked(row, column)) << row << ", " << column;
        }
    }
}

TEST_F(CPUFormChangesTest, TheMarkIsToBeSeen) {
    const auto picture = [this] {
        const QRect cell = Grid().visualItemRect(Grid().item(0, 4));
        return Grid().viewport()->grab(cell).toImage();
    };
    Grid().MoveTo(1, 5);
    Type("A1");
    Key(Qt::Key_Return);
    const QImage changed = picture();
    document.Image.Set(0x004, 0xA1);
    Show();
    EXPECT_NE(picture(), changed);
    EXPECT_EQ(Grid().Text(1, 5), "A1");
}

TEST_F(CPUFormChangesTest, TellsTheOldByteInChinese) {
    Show(Language::Chinese);
    Grid().MoveTo(2, 2);
    Type("A1");
    Key(Qt::Key_Return);
    EXPECT_EQ(Cell(2, 2).toolTip(), "已更改，原值 5C");
}

TEST_F(CPUFormChangesTest, CopyTakesTheCellOrWhatIsSelectedInIt) {
    QApplication::clipboard()->clear();
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "5C");
    EXPECT_FALSE(Editor().isVisible());
    QApplication::clipboard()->clear();
    Key(Qt::Key_Return);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "5C");
    EXPECT_EQ(Editor().text(), "5C");
}

} // namespace
} // namespace zelvor
