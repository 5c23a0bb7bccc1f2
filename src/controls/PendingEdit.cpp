#include "controls/PendingEdit.h"

#include <QApplication>
#include <QFocusEvent>
#include <QPointer>
#include <QWidget>
#include <utility>

namespace zelvor {

namespace {

/// An edit whose window is behind another one.
struct WaitingEdit {
    QPointer<const QWidget> control;
    std::function<void()> leave;
};

WaitingEdit& Waiting() {
    static WaitingEdit waiting;
    return waiting;
}

bool TakesFocus(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() &&
           (widget.focusPolicy() != Qt::NoFocus || widget.focusProxy() != nullptr);
}

/// The nearest widget round an editor that takes the focus: itself, or the window it lies in.
QWidget* FocusBehind(QWidget* editor) {
    QWidget* widget = editor;
    while (widget != nullptr && !TakesFocus(*widget)) {
        widget = widget->parentWidget();
    }
    return widget;
}

} // namespace

void CommitPendingEdit() {
    if (const WaitingEdit waiting = std::exchange(Waiting(), {}); waiting.control) {
        waiting.leave();
    }
    const QPointer<QWidget> editor = QApplication::focusWidget();
    if (!editor) {
        return;
    }
    editor->clearFocus();
    // The keyboard stays where it was.
    if (editor && QApplication::focusWidget() == nullptr) {
        if (QWidget* behind = FocusBehind(editor)) {
            behind->setFocus(Qt::OtherFocusReason);
        }
    }
}

bool IsLeft(QWidget& control, const QFocusEvent& event, std::function<void()> leave) {
    const QWidget* next = QApplication::focusWidget();
    const bool left =
        next == nullptr ? event.reason() != Qt::ActiveWindowFocusReason : next->window() == control.window();
    Waiting() = left ? WaitingEdit() : WaitingEdit{&control, std::move(leave)};
    return left;
}

bool GoesOn(const QWidget& control) {
    return std::exchange(Waiting(), {}).control == &control;
}

void DropPendingEdit(const QWidget& window) {
    for (QWidget* control : window.findChildren<QWidget*>()) {
        control->blockSignals(true);
    }
}

} // namespace zelvor
