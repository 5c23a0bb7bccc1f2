#include "controls/PendingEdit.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace zelvor {

namespace {

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

void DropPendingEdit(const QWidget& window) {
    for (QWidget* control : window.findChildren<QWidget*>()) {
        control->blockSignals(true);
    }
}

} // namespace zelvor
