#include "controls/PendingEdit.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include "controls/EditWatch.h"

namespace zelvor {

namespace {

/// Of those behind another window, or while the menu bar has the keyboard.
void EndWaitingEdits(const QWidget& window) {
    const QList<EditWatch*> found = window.findChildren<EditWatch*>();
    // An end may bring up a message box, behind which windows may go.
    for (const QPointer<EditWatch>& watch : QList<QPointer<EditWatch>>(found.begin(), found.end())) {
        if (watch) {
            watch->End();
        }
    }
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

void CommitPendingEdit(const QWidget& widget) {
    const QPointer<const QWidget> window = widget.window();
    EndWaitingEdits(*window);
    const QPointer<QWidget> editor = QApplication::focusWidget();
    if (!editor || editor->window() != window) {
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

void DropPendingEdit(const QWidget& window) {
    for (EditWatch* watch : window.findChildren<EditWatch*>()) {
        watch->Drop();
    }
}

} // namespace zelvor
