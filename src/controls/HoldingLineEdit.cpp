#include "controls/HoldingLineEdit.h"

#include <QApplication>
#include <QFocusEvent>
#include <QSignalBlocker>
#include <QTimer>
#include <utility>

#include "controls/ChildForm.h"

namespace zelvor {

namespace {

/// Takes the press of the mouse that is on its way to a control which was to get the focus and did not. The control
/// would stay pressed down, as the button is released over the message box.
class PressCatcher : public QObject {
public:
    PressCatcher() {
        qApp->installEventFilter(this);
        QTimer::singleShot(0, this, &QObject::deleteLater);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonDblClick) {
            return false;
        }
        qApp->removeEventFilter(this);
        event->accept();
        return true;
    }
};

} // namespace

HoldingLineEdit::HoldingLineEdit(Rule mayHold, QWidget* parent)
    : FilteredLineEdit(parent), mayHold_(std::move(mayHold)) {}

const QWidget& HoldingLineEdit::Form() const {
    for (const QWidget* widget = parentWidget(); widget != nullptr; widget = widget->parentWidget()) {
        if (const auto* form = qobject_cast<const ChildForm*>(widget)) {
            return *form;
        }
    }
    return *window();
}

bool HoldingLineEdit::focusNextPrevChild(bool next) {
    if (!isVisible()) {
        return FilteredLineEdit::focusNextPrevChild(next);
    }
    if (!mayHold_(text())) {
        emit Refused();
        return true;
    }
    emit FocusLeft();
    return FilteredLineEdit::focusNextPrevChild(next);
}

void HoldingLineEdit::focusInEvent(QFocusEvent* event) {
    entered_ = true;
    FilteredLineEdit::focusInEvent(event);
}

/// Whether the text is to be put right now: not while a menu is open or another window or program is in front, not by
/// a click on the frame round its own window, and not when that window goes.
bool HoldingLineEdit::IsLeft(Qt::FocusReason reason) const {
    if (reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason || !Form().isVisible()) {
        return false;
    }
    const QWidget* next = QApplication::focusWidget();
    if (next == nullptr) {
        return reason != Qt::ActiveWindowFocusReason;
    }
    return next->window() == window() && !next->isAncestorOf(this);
}

void HoldingLineEdit::focusOutEvent(QFocusEvent* event) {
    const bool entered = std::exchange(entered_, false);
    if (entered && mayHold_(text())) {
        FilteredLineEdit::focusOutEvent(event);
        return;
    }
    {
        const QSignalBlocker silent(this);
        FilteredLineEdit::focusOutEvent(event);
    }
    if (!entered || IsDropped() || !IsLeft(event->reason())) {
        return;
    }
    Hold();
    emit Refused();
    if (event->reason() == Qt::MouseFocusReason) {
        new PressCatcher;
    }
}

void HoldingLineEdit::Leave() {
    if (mayHold_(text())) {
        FilteredLineEdit::Leave();
    } else {
        emit Refused();
    }
}

/// Takes the focus back before anything else happens: the other control was not told of it yet.
void HoldingLineEdit::Hold() {
    QWidget* next = QApplication::focusWidget();
    if (isVisible() && (next == nullptr || Form().isAncestorOf(next))) {
        const QSignalBlocker silent(next); // it has nothing to store
        setFocus(Qt::OtherFocusReason);
    }
}

} // namespace zelvor
