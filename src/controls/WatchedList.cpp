#include "controls/WatchedList.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QWheelEvent>

#include "controls/EditWatch.h"

namespace zelvor {

WatchedList::WatchedList(QWidget* parent) : QComboBox(parent), watch_(new EditWatch(*this)) {
    setContextMenuPolicy(Qt::PreventContextMenu);
    connect(watch_, &EditWatch::Left, this, &WatchedList::FocusLeft);
}

void WatchedList::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void WatchedList::focusOutEvent(QFocusEvent* event) {
    QComboBox::focusOutEvent(event);
    // Opening the list gives the focus to the list's own window, in two steps with two reasons.
    if (!view()->isVisible()) {
        watch_->FocusOut(*event);
    }
}

} // namespace zelvor
