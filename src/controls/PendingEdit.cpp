#include "controls/PendingEdit.h"

#include <QApplication>
#include <QFocusEvent>
#include <QMenuBar>
#include <QPointer>
#include <QWidget>
#include <utility>

namespace zelvor {

namespace {

/// An edit whose window is behind another one, or whose keyboard is in the menu bar.
struct WaitingEdit {
    QPointer<const QWidget> control;
    std::function<void()> leave;
    QMetaObject::Connection watch;
};

WaitingEdit& Waiting() {
    static WaitingEdit waiting;
    return waiting;
}

/// Returns the edit that waited, if any.
WaitingEdit Forget() {
    QObject::disconnect(Waiting().watch);
    return std::exchange(Waiting(), {});
}

/// Without a window manager, a click may give the keyboard to another control at once when the window is back.
void OnFocusChanged(const QWidget* now) {
    const QWidget* control = Waiting().control;
    if (control == nullptr || now == nullptr || now->window() != control->window() || now == control ||
        control->isAncestorOf(now) || qobject_cast<const QMenuBar*>(now) != nullptr) {
        return;
    }
    Forget().leave();
}

void Keep(const QWidget& control, std::function<void()> leave) {
    Forget();
    Waiting() = {&control, std::move(leave),
                 QObject::connect(qApp, &QApplication::focusChanged, qApp,
                                  [](QWidget*, const QWidget* now) { OnFocusChanged(now); })};
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
    if (const WaitingEdit waiting = Forget(); waiting.control) {
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
    const bool toAnotherWindow =
        next == nullptr ? event.reason() == Qt::ActiveWindowFocusReason : next->window() != control.window();
    if (!toAnotherWindow && event.reason() != Qt::MenuBarFocusReason) {
        Forget();
        return true;
    }
    Keep(control, std::move(leave));
    return false;
}

bool GoesOn(const QWidget& control) {
    return Waiting().control == &control && Forget().control != nullptr;
}

void DropPendingEdit(const QWidget& window) {
    for (QWidget* control : window.findChildren<QWidget*>()) {
        control->blockSignals(true);
    }
}

} // namespace zelvor
