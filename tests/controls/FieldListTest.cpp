#include "controls/FieldList.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace zelvor {
namespace {

class FieldListTest : public testing::Test {
protected:
    void SetUp() override {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(list);
        layout->addWidget(after);
        list->SetEntries({"None", "Fixed", "Selected"});
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        list->setFocus();
        ASSERT_TRUE(list->hasFocus());
    }
    void TakeFromPopup(int row) {
        list->showPopup();
        QAbstractItemView* view = list->view();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(view->window()));
        view->setCurrentIndex(view->model()->index(row, 0));
        QTest::keyClick(view, Qt::Key_Return);
    }

    QWidget window;
    FieldList* list = new FieldList;
    QLineEdit* after = new QLineEdit;
};

TEST_F(FieldListTest, FillingSelectsNothingAndTellsNothing) {
    const QSignalSpy selected(list, &FieldList::Selected);
    list->SetEntries({"A", "B"});
    EXPECT_EQ(list->currentIndex(), -1);
    EXPECT_EQ(list->count(), 2);
    list->ShowEntry(1);
    EXPECT_EQ(list->currentIndex(), 1);
    EXPECT_EQ(selected.count(), 0);
}

TEST_F(FieldListTest, ALetterFindsAnEntryAndAKeyOfACommandDoesNot) {
    list->setCurrentIndex(0);
    for (const Qt::KeyboardModifiers held : {Qt::AltModifier, Qt::MetaModifier}) {
        QTest::keyClick(list, 's', held);
        EXPECT_EQ(list->currentIndex(), 0);
    }
    QTest::keyClick(list, 's');
    EXPECT_EQ(list->currentIndex(), 2);
}

TEST_F(FieldListTest, ASelectionByKeyOrByCodeIsToldOnce) {
    const QSignalSpy selected(list, &FieldList::Selected);
    QTest::keyClick(list, Qt::Key_Down);
    ASSERT_EQ(selected.count(), 1);
    EXPECT_EQ(selected[0][0].toInt(), 0);
    list->setCurrentIndex(2);
    ASSERT_EQ(selected.count(), 2);
    EXPECT_EQ(selected[1][0].toInt(), 2);
    QTest::keyClick(list, Qt::Key_Up);
    ASSERT_EQ(selected.count(), 3);
    EXPECT_EQ(selected[2][0].toInt(), 1);
}

TEST_F(FieldListTest, TakingAnEntryFromThePopupIsToldOnceEvenTheSelectedOne) {
    const QSignalSpy selected(list, &FieldList::Selected);
    TakeFromPopup(1);
    ASSERT_EQ(selected.count(), 1);
    EXPECT_EQ(selected[0][0].toInt(), 1);
    TakeFromPopup(1);
    ASSERT_EQ(selected.count(), 2);
    EXPECT_EQ(selected[1][0].toInt(), 1);
}

TEST_F(FieldListTest, EnterMovesOnLikeTab) {
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_TRUE(after->hasFocus());
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Enter);
    EXPECT_TRUE(after->hasFocus());
}

TEST_F(FieldListTest, TellsWhenTheFocusLeavesButNotForItsOwnPopup) {
    const QSignalSpy left(list, &FieldList::FocusLeft);
    TakeFromPopup(1);
    EXPECT_EQ(left.count(), 0);
    after->setFocus();
    EXPECT_EQ(left.count(), 1);
}

TEST_F(FieldListTest, TheWheelDoesNotChangeIt) {
    list->ShowEntry(1);
    QWheelEvent wheel(QPointF(5, 5), list->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(list, &wheel);
    EXPECT_EQ(list->currentIndex(), 1);
}

} // namespace
} // namespace zelvor
