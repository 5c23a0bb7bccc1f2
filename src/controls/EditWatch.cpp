#include "controls/EditWatch.h"

#include <QApplication>
#include <QFocusEvent>
#include <QMenuBar>
#include <QWidget>

namespace zelvor {

EditWatch::EditWatch(QWidget& control) : QObject(&control), control_(control) {}

void EditWatch::FocusOut(const QFocusEvent& event) {
    // A popup of the control's own is no other place.
    if (state_ == State::Dropped || event.reason() == Qt::PopupFocusReason) {
        return;
    }
    const QWidget* next = QApplication::focusWidget();
    const bool toAnotherWindow =
        next == nullptr ? event.reason() == Qt::ActiveWindowFocusReason : next->window() != control_.window();
    if (toAnotherWindow || event.reason() == Qt::MenuBarFocusReason) {
        Wait();
        return;
    }
    StopWaiting();
    emit Left();
}

bool EditWatch::FocusIn() {
    const bool goesOn = state_ == State::Waiting;
    StopWaiting();
    return goesOn;
}

void EditWatch::End() {
    if (state_ == State::Waiting) {
        StopWaiting();
        emit Left();
    }
}

void EditWatch::Drop() {
    StopWaiting();
    state_ = State::Dropped;
}

void EditWatch::Wait() {
    StopWaiting();
    state_ = State::Waiting;
    moves_ =
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* now) { OnFocusMoved(now); });
}

void EditWatch::StopWaiting() {
    disconnect(moves_);
    if (state_ == State::Waiting) {
        state_ = State::Told;
    }
}

/// Without a window manager, a click may give the keyboard to another control at once when the window is back.
void EditWatch::OnFocusMoved(const QWidget* now) {
    if (now == &control_) {
        StopWaiting();
        return;
    }
    const bool isElsewhere = now != nullptr && now->window() == control_.window() && !control_.isAncestorOf(now);
    if (isElsewhere && qobject_cast<const QMenuBar*>(now) == nullptr) {
        End();
    }
}

} // namespace zelvor
