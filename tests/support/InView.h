#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QSet>
#include <QTabBar>
#include <QTest>
#include <gtest/gtest.h>
#include <string>

namespace zelvor {

/// A window's view of its contents, and the bars that move them.
struct ScrolledView {
    QWidget* contents = nullptr;
    QScrollBar* horizontal = nullptr;
    QScrollBar* vertical = nullptr;
    QSize size; // of the view
};

inline std::string Describe(const QWidget& widget) {
    return widget.metaObject()->className() + std::string(" ") + widget.objectName().toStdString();
}

/// Whether nothing of the part is cut off by what it lies on, and its middle and corners are not covered.
inline bool IsAllSeen(const QWidget& widget, const QRect& part) {
    for (const QWidget* around = &widget; !around->isWindow(); around = around->parentWidget()) {
        const QWidget* outer = around->parentWidget();
        if (!outer->rect().contains(QRect(widget.mapTo(outer, part.topLeft()), part.size()))) {
            return false;
        }
    }
    for (const QPoint point : {part.center(), part.topLeft(), part.topRight(), part.bottomLeft(), part.bottomRight()}) {
        const QWidget* there = widget.window()->childAt(widget.mapTo(widget.window(), point));
        if (there == nullptr || (there != &widget && !widget.isAncestorOf(there))) {
            return false;
        }
    }
    return widget.isVisible();
}

inline bool Fits(QSize size, QSize view) {
    return size.width() <= view.width() && size.height() <= view.height();
}

/// What of the control with the keyboard says where the user is.
inline QRect PartOf(const QWidget& control) {
    if (const auto* tabs = qobject_cast<const QTabBar*>(&control)) {
        return tabs->tabRect(tabs->currentIndex());
    }
    if (qobject_cast<const QCheckBox*>(&control) != nullptr || qobject_cast<const QRadioButton*>(&control) != nullptr) {
        return {QPoint(), QSize(std::min(control.width(), control.sizeHint().width()), control.height())};
    }
    return control.rect();
}

inline void ExpectCurrentCellSeen(const QAbstractItemView& view, const std::string& where) {
    if (!view.currentIndex().isValid()) {
        return;
    }
    const QRect cell = view.visualRect(view.currentIndex());
    EXPECT_TRUE(IsAllSeen(*view.viewport(), cell)) << where << ": the cursor's cell of " << Describe(view);
}

inline const QLabel* LabelOf(const QWidget& control, const QWidget& contents) {
    for (const QLabel* label : contents.findChildren<const QLabel*>()) {
        if (label->isVisible() && label->buddy() != nullptr &&
            (label->buddy() == &control || label->buddy()->isAncestorOf(&control))) {
            return label;
        }
    }
    return nullptr;
}

inline void ExpectFocusSeen(QWidget& control, const ScrolledView& view, const std::string& where) {
    if (auto* items = qobject_cast<QAbstractItemView*>(&control)) {
        ExpectCurrentCellSeen(*items, where);
        QTest::keyClick(items, Qt::Key_End, Qt::ControlModifier);
        ExpectCurrentCellSeen(*items, where);
        QTest::keyClick(items, Qt::Key_Home, Qt::ControlModifier);
        ExpectCurrentCellSeen(*items, where);
        return;
    }
    const QRect part = PartOf(control);
    if (!Fits(part.size(), view.size)) {
        EXPECT_TRUE(IsAllSeen(control, {part.topLeft(), QSize(1, 1)}))
            << where << ": the start of " << Describe(control);
        return;
    }
    EXPECT_TRUE(IsAllSeen(control, part)) << where << ": " << Describe(control);
    if (const QLabel* label = LabelOf(control, *view.contents)) {
        const QRect both = QRect(control.mapTo(view.contents, QPoint()), control.size()) |
                           QRect(label->buddy()->mapTo(view.contents, QPoint()), label->buddy()->size()) |
                           QRect(label->mapTo(view.contents, QPoint()), label->size());
        EXPECT_TRUE(!Fits(both.size(), view.size) || IsAllSeen(*label, label->rect()))
            << where << ": the label of " << Describe(control);
    }
}

/// Goes round by the Tab key and back by Shift+Tab, and looks whether what has the keyboard is in view. Returns how
/// many controls the keyboard came to.
inline int ExpectTabKeyShowsControls(const ScrolledView& view, const std::string& where) {
    constexpr int Most = 80;
    QSet<QWidget*> visited;
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        QSet<QWidget*> round;
        for (int i = 0; i < Most; ++i) {
            QWidget* focus = QApplication::focusWidget();
            if (focus == nullptr || round.contains(focus)) {
                break;
            }
            round.insert(focus);
            if (view.contents->isAncestorOf(focus)) {
                ExpectFocusSeen(*focus, view, where);
                visited.insert(focus);
            }
            QTest::keyClick(focus, key);
        }
    }
    return static_cast<int>(visited.size());
}

/// Scrolls to each control and label, and looks whether it can be seen whole where the view has room for it.
inline void ExpectBarsReachEverything(const ScrolledView& view, const std::string& where) {
    for (const QWidget* widget : view.contents->findChildren<QWidget*>()) {
        const bool isLeaf = qobject_cast<const QLabel*>(widget) != nullptr || widget->focusPolicy() != Qt::NoFocus;
        if (!isLeaf || !widget->isVisible() || widget->testAttribute(Qt::WA_TransparentForMouseEvents)) {
            continue;
        }
        const QPoint place = widget->mapTo(view.contents, QPoint());
        const QRect shown = widget->mask().isEmpty() ? widget->rect() : widget->mask().boundingRect();
        view.horizontal->setValue(place.x());
        view.vertical->setValue(place.y());
        const QRect part(QPoint(), shown.size().boundedTo(view.size));
        EXPECT_TRUE(IsAllSeen(*widget, part)) << where << ": " << Describe(*widget);
        // Of one that is larger, the other end as well.
        view.horizontal->setValue(place.x() + shown.width() - view.size.width());
        view.vertical->setValue(place.y() + shown.height() - view.size.height());
        EXPECT_TRUE(IsAllSeen(*widget, {shown.bottomRight(), QSize(1, 1)}))
            << where << ": the end of " << Describe(*widget);
    }
}

} // namespace zelvor
