// Where the keyboard goes when a cell editor is left, and what other windows in front do to an open one.

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QSignalSpy>

#include "channels/ChannelEditForm.h"
#include "channels/ChannelFormFixture.h"
#include "controls/PendingEdit.h"

namespace zelvor {
namespace {

class ChannelGridLeavingTest : public ChannelFormTest {
protected:
    /// Another window of the program, such as the help's.
    void BringAnotherWindowToFront() {
        other.setFocusPolicy(Qt::StrongFocus);
        other.show();
        other.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    }
    void ComeBack() {
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }

    QWidget other;
};

TEST_F(ChannelGridLeavingTest, TheGridIsTheOnlyOneToGetTheKeyboard) {
    PutRecord(1, SimplexRecord);
    Show();
    for (const int column : {1, 2, 3, 5}) {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            GoTo(1, column);
            Key(Qt::Key_Return);
            QStringList visited;
            const auto watch =
                QObject::connect(qApp, &QApplication::focusChanged, qApp, [&visited](QWidget*, const QWidget* now) {
                    visited.append(now != nullptr ? now->objectName() : QString());
                });
            Key(key);
            QObject::disconnect(watch);
            EXPECT_EQ(visited, QStringList{"ChannelGrid"}) << column;
        }
    }
}

TEST_F(ChannelGridLeavingTest, TheWindowIsNotScrolledAwayFromTheCell) {
    PutRecord(1, SimplexRecord);
    Show();
    form->resize(500, 300);
    GoTo(1, 1);
    auto& bar = Find<QScrollBar>("VScroll1");
    ASSERT_GT(bar.maximum(), 0);
    bar.setValue(0);
    Key(Qt::Key_Return);
    Key(Qt::Key_Return);
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(ChannelGridLeavingTest, AFrequencyIsEditedOnAfterAnotherWindowWasInFront) {
    PutRecord(1, SimplexRecord);
    Show();
    GoTo(1, 1);
    Type("14");
    BringAnotherWindowToFront();
    EXPECT_TRUE(TextBox().isVisible());
    EXPECT_EQ(Record(1)[1], 0x25);
    ComeBack();
    ASSERT_TRUE(TextBox().hasFocus());
    Type("6.5");
    Key(Qt::Key_Return);
    EXPECT_EQ(Cell(1, 1), "146.50000");
}

TEST_F(ChannelGridLeavingTest, AChannelIsNotErasedWhileAnotherWindowIsInFront) {
    PutRecord(1, SimplexRecord);
    Show();
    GoTo(1, 1);
    Key(Qt::Key_Return);
    Key(Qt::Key_Delete);
    ASSERT_EQ(TextBox().text(), "");
    BringAnotherWindowToFront();
    EXPECT_EQ(Record(1), (std::vector<int>(SimplexRecord.begin(), SimplexRecord.end())));
}

TEST_F(ChannelGridLeavingTest, AToneIsEditedOnAfterAnotherWindowWasInFront) {
    PutRecord(1, SimplexRecord);
    Show();
    GoTo(1, 3);
    Type("10");
    BringAnotherWindowToFront();
    EXPECT_TRUE(List().isVisible());
    EXPECT_EQ(List().currentText(), "10");
    ComeBack();
    Type("3.5");
    Key(Qt::Key_Return);
    EXPECT_EQ(Cell(1, 3), "103.5");
}

TEST_F(ChannelGridLeavingTest, ACommandCommitsWhatWaitsBehindAnotherWindow) {
    PutRecord(1, SimplexRecord);
    Show();
    GoTo(1, 1);
    Type("146.5");
    BringAnotherWindowToFront();
    CommitPendingEdit(*form);
    EXPECT_EQ(Cell(1, 1), "146.50000");
    EXPECT_EQ(Record(1)[2], 0x65);
    EXPECT_FALSE(TextBox().isVisible());
    GoTo(2, 1);
    CommitPendingEdit(*form); // once is enough
    EXPECT_EQ(Cell(1, 1), "146.50000");
}

TEST_F(ChannelGridLeavingTest, ALeftClickElsewhereStillCommits) {
    PutRecord(1, SimplexRecord);
    Show();
    GoTo(1, 1);
    Type("146.5");
    ClickCell(3, 1);
    EXPECT_EQ(Cell(1, 1), "146.50000");
}

TEST_F(ChannelGridLeavingTest, TheDialogMayBeGoneBehindTheMessage) {
    PutRecord(1, SimplexRecord);
    Show();
    auto dialog = std::make_unique<ChannelEditForm>(document, windows, services.Get());
    windows.SetOpen(ChildWindow::ChannelEdit, true);
    GoTo(1, 1);
    Type("1");
    services.messages.Expect(OutOfRange(), [&] {
        windows.SetOpen(ChildWindow::ChannelEdit, false);
        dialog.reset();
        return MessageAnswer::Ok;
    });
    Key(Qt::Key_Return);
    EXPECT_EQ(Cell(1, 1), "100.00000");
}

TEST_F(ChannelGridLeavingTest, TheGridTakesTheKeyboardFromTheFrame) {
    PutRecord(1, SimplexRecord);
    Show();
    QMdiArea area;
    auto* frame = area.addSubWindow(form.get());
    area.resize(900, 600);
    area.show();
    area.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&area));
    frame->show();
    for (const int column : {1, 3}) {
        GoTo(1, column);
        Grid().setFocus();
        Key(Qt::Key_Return);
        frame->setFocus(Qt::MouseFocusReason); // a click on its title
        EXPECT_TRUE(Grid().hasFocus()) << column;
    }
    frame->setWidget(nullptr);
    form->setParent(nullptr);
}

TEST_F(ChannelGridLeavingTest, ACursorThatMovesUnderAnOpenEditDoesNotMoveWhatIsStored) {
    PutRecord(1, SimplexRecord);
    Show();
    GoTo(1, 1);
    Type("150.5");
    BringAnotherWindowToFront();
    GoTo(1, 5); // as by a click that comes before the window is active again
    EXPECT_EQ(Cell(1, 1), "150.50000");
    EXPECT_EQ(Cell(1, 2), "145.12500");
    EXPECT_EQ(Record(1)[2], 0x05);
    EXPECT_EQ(Record(1)[3], 0x15);
    EXPECT_EQ(Record(1)[7], 0x14);
}

} // namespace
} // namespace zelvor
