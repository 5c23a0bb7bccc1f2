#include "controls/FilteredLineEdit.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace zelvor {

namespace {

bool IsTyping(const QKeyEvent& event) {
    constexpr auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return !(event.modifiers() & commands) && !event.text().isEmpty() && event.text().front().isPrint();
}

} // namespace

FilteredLineEdit::FilteredLineEdit(QWidget* parent) : QLineEdit(parent) {
    setContextMenuPolicy(Qt::PreventContextMenu);
    setAcceptDrops(false);
}

void FilteredLineEdit::Enter(const QString& text) {
    if (isReadOnly()) {
        return;
    }
    for (const QChar entered : text) {
        const QChar accepted = filter_ ? filter_(entered) : entered;
        if (!accepted.isNull()) {
            insert(accepted);
        }
    }
}

void FilteredLineEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        emit EnterPressed();
    } else if (event->key() == Qt::Key_Escape) {
        emit EscapePressed();
    } else if (event->matches(QKeySequence::Paste)) {
        Enter(QApplication::clipboard()->text());
    } else if (IsTyping(*event)) {
        if (!enterLetter_.isNull() && event->text() == enterLetter_) {
            emit EnterPressed();
        } else {
            Enter(event->text());
        }
    } else {
        QLineEdit::keyPressEvent(event);
        return;
    }
    event->accept();
}

void FilteredLineEdit::inputMethodEvent(QInputMethodEvent* event) {
    Enter(event->commitString());
    event->accept();
}

void FilteredLineEdit::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) {
        Enter(QApplication::clipboard()->text(QClipboard::Selection));
        event->accept();
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
}

void FilteredLineEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) {
        emit FocusLeft();
    }
}

QChar DigitOrPoint(QChar entered) {
    const bool wanted = (entered >= u'0' && entered <= u'9') || entered == u'.';
    return wanted ? entered : QChar();
}

} // namespace zelvor
