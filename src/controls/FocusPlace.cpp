#include "controls/FocusPlace.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTableView>
#include <algorithm>

namespace zelvor {

namespace {

QRect PlaceIn(const QWidget& widget, const QRect& part, const QWidget& ancestor) {
    return {widget.mapTo(&ancestor, part.topLeft()), part.size()};
}

/// The label of the control, or of what the control is a part of.
const QLabel* LabelOf(const QWidget& control, const QWidget& ancestor) {
    for (const QLabel* label : ancestor.findChildren<const QLabel*>()) {
        const QWidget* buddy = label->buddy();
        if (buddy != nullptr && label->isVisible() && (buddy == &control || buddy->isAncestorOf(&control))) {
            return label;
        }
    }
    return nullptr;
}

QRect CurrentItem(const QAbstractItemView& view, const QWidget& ancestor) {
    const QRect seen = view.viewport()->rect();
    const QRect item = view.visualRect(view.currentIndex()).intersected(seen);
    return PlaceIn(*view.viewport(), item.isEmpty() ? seen : item, ancestor);
}

/// Grown to the captions where no other cell lies between.
QRect WithCaptions(const QTableView& table, QRect cell, const QWidget& ancestor) {
    const QRect outline = PlaceIn(table, table.rect(), ancestor);
    if (table.currentIndex().row() == 0) {
        cell.setTop(outline.top());
    }
    if (table.currentIndex().column() == 0) {
        cell.setLeft(outline.left());
    }
    return cell;
}

/// How far the view has to move along one axis; ends are exclusive.
int Shift(int view, int first, int last, int wholeFirst, int wholeLast) {
    if (wholeLast - wholeFirst <= view) {
        return wholeFirst < 0 ? wholeFirst : std::max(0, wholeLast - view);
    }
    if (last - first <= view) {
        return std::clamp(wholeFirst, last - view, first);
    }
    const bool fillsHalf = 2 * (std::min(last, view) - std::max(first, 0)) >= view;
    return fillsHalf ? 0 : first;
}

} // namespace

FocusPlace FocusPlaceOf(const QWidget& control, const QWidget& ancestor) {
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&control)) {
        const QRect item = CurrentItem(*view, ancestor);
        const auto* table = qobject_cast<const QTableView*>(view);
        return {item, table == nullptr ? item : WithCaptions(*table, item, ancestor)};
    }
    QRect part = control.rect();
    if (const auto* tabs = qobject_cast<const QTabBar*>(&control)) {
        part = tabs->tabRect(tabs->currentIndex());
    } else if (qobject_cast<const QCheckBox*>(&control) != nullptr ||
               qobject_cast<const QRadioButton*>(&control) != nullptr) {
        part.setWidth(std::min(part.width(), control.sizeHint().width()));
    }
    FocusPlace place{PlaceIn(control, part, ancestor), {}};
    place.whole = place.control;
    if (const QLabel* label = LabelOf(control, ancestor)) {
        place.control |= PlaceIn(*label->buddy(), label->buddy()->rect(), ancestor);
        place.whole = place.control | PlaceIn(*label, label->rect(), ancestor);
    }
    return place;
}

QPoint BringIntoView(QScrollBar& horizontal, QScrollBar& vertical, QSize view, const FocusPlace& place) {
    const auto move = [](QScrollBar& bar, int by) {
        const int before = bar.value();
        bar.setValue(before + by);
        return before - bar.value();
    };
    const QRect& part = place.control;
    const QRect& whole = place.whole;
    const int across =
        Shift(view.width(), part.left(), part.left() + part.width(), whole.left(), whole.left() + whole.width());
    const int down =
        Shift(view.height(), part.top(), part.top() + part.height(), whole.top(), whole.top() + whole.height());
    return {move(horizontal, across), move(vertical, down)};
}

} // namespace zelvor
