#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleOptionComboBox>
#include <QTreeWidget>

#include "../support/InView.h"
#include "controls/EditGrid.h"
#include "shell/ShellTest.h"

namespace zelvor {
namespace {

/// Whether texts of a width find it in a widget, and one line its height.
void ExpectRoom(const QWidget& widget, int textWidth, int roomAcross) {
    EXPECT_LE(textWidth, roomAcross) << Describe(widget);
    EXPECT_LE(widget.fontMetrics().height(), widget.height()) << Describe(widget);
}

int WidthOf(const QWidget& widget, const QString& text) {
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

void ExpectRoomInLabel(const QLabel& label) {
    if (label.wordWrap()) {
        EXPECT_LE(label.heightForWidth(label.width()), label.height()) << Describe(label);
    } else if (!label.text().isEmpty()) {
        ExpectRoom(label, label.sizeHint().width(), label.width());
    }
}

void ExpectRoomInList(const QComboBox& list) {
    QStyleOptionComboBox option;
    option.initFrom(&list);
    const QRect field = list.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list);
    for (int entry = 0; entry < list.count(); ++entry) {
        ExpectRoom(list, WidthOf(list, list.itemText(entry)), field.width());
    }
    EXPECT_LE(list.fontMetrics().height(), field.height()) << Describe(list);
}

void ExpectRoomInGrid(EditGrid& grid) {
    EXPECT_LE(grid.fontMetrics().height() - 1, grid.rowHeight(0)) << Describe(grid);
    for (int column = 1; column <= grid.columnCount(); ++column) {
        EXPECT_LE(WidthOf(grid, grid.Text(1, column)), grid.columnWidth(column - 1) - 2) << Describe(grid);
    }
}

/// Every text that shows, in the page that shows.
void ExpectRoomForTexts(const QWidget& form) {
    int looked = 0;
    for (QWidget* widget : form.findChildren<QWidget*>()) {
        if (!widget->isVisible()) {
            continue;
        }
        ++looked;
        if (const auto* label = qobject_cast<QLabel*>(widget)) {
            ExpectRoomInLabel(*label);
        } else if (const auto* check = qobject_cast<QCheckBox*>(widget)) {
            ExpectRoom(*check, check->sizeHint().width(), check->width());
        } else if (const auto* button = qobject_cast<QPushButton*>(widget)) {
            ExpectRoom(*button, WidthOf(*button, button->text()), button->width() - 8);
        } else if (const auto* list = qobject_cast<QComboBox*>(widget)) {
            ExpectRoomInList(*list);
        } else if (const auto* box = qobject_cast<QLineEdit*>(widget)) {
            ExpectRoom(*box, 0, 0);
        } else if (auto* grid = qobject_cast<EditGrid*>(widget)) {
            ExpectRoomInGrid(*grid);
        } else if (auto* tree = qobject_cast<QTreeWidget*>(widget)) {
            EXPECT_LE(static_cast<QAbstractItemView*>(tree)->sizeHintForColumn(0), tree->viewport()->width());
        }
    }
    EXPECT_GE(looked, 3) << Describe(form);
}

/// A desktop whose font has the points, and the program in English or Chinese.
class LargeFontTest : public ShellTest, public ::testing::WithParamInterface<std::tuple<int, bool>> {
protected:
    void SetUp() override {
        before = QApplication::font();
        QFont font = before;
        font.setPointSize(std::get<0>(GetParam()));
        QApplication::setFont(font);
        if (std::get<1>(GetParam())) {
            OpenMainWindowInChinese();
        } else {
            OpenMainWindow();
        }
    }
    void TearDown() override {
        window.reset();
        QApplication::setFont(before);
    }

    QFont before;
};

TEST_P(LargeFontTest, IsOnADesktopOfTheScaleThatTheTestsRunAt) {
    const double scale = qEnvironmentVariable("QT_SCALE_FACTOR", "1").toDouble();
    EXPECT_EQ(window->devicePixelRatioF(), scale); // not rounded to a whole number
}

TEST_P(LargeFontTest, EveryTextOfEveryChildWindowHasItsRoom) {
    VisitChildWindows(ExpectRoomForTexts);
}

TEST_P(LargeFontTest, EveryTextOfTheChannelWindowsHasItsRoom) {
    ClickButton("ChannelForm", "cmdChannelEdit");
    QCoreApplication::processEvents();
    auto* frequency = Find<QLineEdit>("txtRxFreq");
    frequency->setFocus();
    QTest::keyClicks(frequency, "148.88888");
    QTest::keyClick(frequency, Qt::Key_Tab);
    ExpectRoomForTexts(*Child("ChannelEditForm"));
    ASSERT_FALSE(Child("ChannelForm")->findChild<EditGrid*>()->Text(1, 1).isEmpty());
    ExpectRoomForTexts(*Child("ChannelForm"));
}

INSTANTIATE_TEST_SUITE_P(Desktops, LargeFontTest,
                         ::testing::Combine(::testing::Values(9, 10, 11, 14), ::testing::Bool()));

} // namespace
} // namespace zelvor
