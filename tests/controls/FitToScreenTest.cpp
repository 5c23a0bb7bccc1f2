#include "controls/FitToScreen.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include "../support/InView.h"

namespace zelvor {
namespace {

/// A dialog of a column of rows, the last one a button.
class RowsDialog : public QDialog {
public:
    explicit RowsDialog(int rows, int width = 100) {
        auto* layout = new QVBoxLayout(this);
        for (int row = 0; row < rows; ++row) {
            auto* box = new QLineEdit(this);
            box->setFixedSize(width, 40);
            layout->addWidget(box);
            boxes.append(box);
        }
        button = new QPushButton("Close", this);
        layout->addWidget(button);
        wanted = layout->totalSizeHint();
        FitToScreen(*this);
    }
    [[nodiscard]] QScrollBar& Vertical() const { return *findChild<QScrollArea*>()->verticalScrollBar(); }
    [[nodiscard]] QScrollBar& Horizontal() const { return *findChild<QScrollArea*>()->horizontalScrollBar(); }

    QList<QLineEdit*> boxes;
    QPushButton* button;
    QSize wanted;
};

TEST(FitToScreen, ADialogThatFitsIsAsLargeAsItsContents) {
    RowsDialog dialog(3);
    dialog.show();
    EXPECT_EQ(dialog.size(), dialog.wanted);
    EXPECT_FALSE(dialog.Vertical().isVisible());
    EXPECT_FALSE(dialog.Horizontal().isVisible());
    EXPECT_EQ(dialog.minimumSize(), dialog.maximumSize());
}

TEST(FitToScreen, ADialogFollowsTheSizeOfItsContents) {
    RowsDialog dialog(3);
    dialog.show();
    const QSize before = dialog.size();
    dialog.boxes.first()->setFixedHeight(90);
    QCoreApplication::processEvents();
    EXPECT_EQ(dialog.size(), before + QSize(0, 50));
    dialog.boxes.first()->hide();
    QCoreApplication::processEvents();
    EXPECT_LT(dialog.height(), before.height());
    EXPECT_FALSE(dialog.Vertical().isVisible());
}

TEST(FitToScreen, ADialogHigherThanItsScreenScrolls) {
    RowsDialog dialog(60);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_LT(dialog.height(), dialog.screen()->availableSize().height());
    EXPECT_GT(dialog.height(), dialog.screen()->availableSize().height() - 60);
    EXPECT_GE(dialog.y(), 20); // room for the title bar
    EXPECT_TRUE(dialog.Vertical().isVisible());
    EXPECT_FALSE(dialog.Horizontal().isVisible());
    dialog.boxes.first()->setFocus();
    for (int i = 0; i < 61; ++i) {
        QWidget* focus = QApplication::focusWidget();
        ASSERT_NE(focus, nullptr);
        EXPECT_TRUE(IsAllSeen(*focus, focus->rect())) << i;
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    EXPECT_TRUE(dialog.boxes.first()->hasFocus()); // the view itself is no stop
    EXPECT_TRUE(IsAllSeen(*dialog.boxes.first(), dialog.boxes.first()->rect()));
}

TEST(FitToScreen, ADialogWiderThanItsScreenScrolls) {
    RowsDialog dialog(2, 3000);
    dialog.show();
    EXPECT_EQ(dialog.frameGeometry().width(), dialog.screen()->availableSize().width());
    EXPECT_TRUE(dialog.Horizontal().isVisible());
    EXPECT_FALSE(dialog.Vertical().isVisible());
}

TEST(FitToScreen, EnterStillPressesTheDefaultButton) {
    RowsDialog dialog(2);
    dialog.button->setDefault(true);
    bool pressed = false;
    QObject::connect(dialog.button, &QPushButton::clicked, [&pressed] { pressed = true; });
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    dialog.boxes.first()->setFocus();
    QTest::keyClick(dialog.boxes.first(), Qt::Key_Return);
    EXPECT_TRUE(pressed);
}

} // namespace
} // namespace zelvor
