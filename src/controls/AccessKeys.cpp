#include "controls/AccessKeys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <utility>

namespace zelvor {

AccessKeys::AccessKeys(QWidget& form) : QObject(&form), form_(form) {
    form.installEventFilter(this);
}

bool AccessKeys::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &form_ && event->type() == QEvent::ShortcutOverride) {
        return Claim(*static_cast<QKeyEvent*>(event));
    }
    return event->type() == QEvent::KeyPress && claimed_ != nullptr && Press(*watched);
}

/// Null also where several have the letter: then the toolkit goes through them.
QAbstractButton* AccessKeys::ButtonOf(const QKeyEvent& key) const {
    const QKeySequence pressed(key.keyCombination());
    QAbstractButton* found = nullptr;
    for (auto* button : form_.findChildren<QAbstractButton*>()) {
        if (button->shortcut() != pressed || !button->isVisible() || !button->isEnabled()) {
            continue;
        }
        if (found != nullptr) {
            return nullptr;
        }
        found = button;
    }
    return found;
}

bool AccessKeys::Claim(QKeyEvent& key) {
    QWidget* focus = QApplication::focusWidget();
    claimed_ = key.modifiers() == Qt::AltModifier && focus != nullptr ? ButtonOf(key) : nullptr;
    if (!claimed_) {
        return false;
    }
    // The key press comes to the control that has the focus, which might take it for a letter that was typed.
    focus->installEventFilter(this);
    key.accept();
    return true;
}

bool AccessKeys::Press(QObject& focus) {
    if (&focus != &form_) {
        focus.removeEventFilter(this);
    }
    std::exchange(claimed_, nullptr)->click(); // at once: what comes later might find the window closing
    return true;
}

} // namespace zelvor
