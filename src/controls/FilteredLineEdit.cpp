#include "controls/FilteredLineEdit.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <algorithm>

#include "controls/EditWatch.h"

namespace zelvor {

namespace {

/// Whether a key would type the character that it is named after.
bool IsItself(const QKeyEvent& event) {
    const QChar character = event.text().front();
    const auto isKey = [&event](QChar form) { return event.key() == form.unicode(); };
    return isKey(character) || isKey(character.toUpper());
}

/// Whether a key that has a text enters it, and is no command. Alt Gr is told as Ctrl and Alt together, or not at all.
/// The Option key of a Mac is told as Alt alone; what it makes is never the key's own character, so that an access key
/// is told from it.
bool IsTyping(const QKeyEvent& event) {
    const auto held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return held == Qt::NoModifier || held == (Qt::ControlModifier | Qt::AltModifier) ||
           (held == Qt::AltModifier && !IsItself(event));
}

/// What a box of one line takes of a pasted text.
QString FirstLine(const QString& text) {
    const auto isBreak = [](QChar character) { return character == u'\r' || character == u'\n'; };
    return text.left(std::find_if(text.begin(), text.end(), isBreak) - text.begin());
}

} // namespace

FilteredLineEdit::FilteredLineEdit(QWidget* parent) : QLineEdit(parent), watch_(new EditWatch(*this)) {
    setContextMenuPolicy(Qt::PreventContextMenu);
    setAcceptDrops(false);
    connect(watch_, &EditWatch::Left, this, [this] { Leave(); });
}

void FilteredLineEdit::Insert(const QString& text, bool limited) {
    if (isReadOnly()) {
        return;
    }
    const QString before = this->text();
    {
        // A pasted text is told as one change: who stores each change never sees its beginning alone.
        const QSignalBlocker quiet(this);
        for (const QChar entered : text) {
            const QChar accepted = filter_ ? filter_(entered) : entered;
            const bool full = limited && this->text().size() >= lengthLimit_ && !hasSelectedText();
            if (!accepted.isNull() && !full) {
                insert(accepted);
            }
        }
    }
    if (this->text() != before) {
        emit textChanged(this->text());
    }
}

void FilteredLineEdit::Paste(const QString& text) {
    Insert(FirstLine(text), limitsPasted_);
}

void FilteredLineEdit::keyPressEvent(QKeyEvent* event) {
    const QString typed = TypedText(*event);
    const bool isEnterKey = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnterKey || (!enterLetter_.isNull() && typed == enterLetter_)) {
        emit EnterPressed();
    } else if (event->key() == Qt::Key_Escape) {
        emit EscapePressed();
    } else if (event->matches(QKeySequence::Paste)) {
        Paste(QApplication::clipboard()->text());
    } else if (typed.isEmpty()) {
        Edit(*event);
        return;
    } else {
        Enter(typed);
    }
    event->accept();
}

/// A key that moves the cursor, deletes or is a command. Its text is kept from the toolkit, which would enter it past
/// the filter.
void FilteredLineEdit::Edit(QKeyEvent& event) {
    QKeyEvent withoutText(event.type(), event.key(), event.modifiers(), QString(), event.isAutoRepeat(),
                          static_cast<quint16>(event.count()));
    QLineEdit::keyPressEvent(&withoutText);
    event.setAccepted(withoutText.isAccepted());
}

void FilteredLineEdit::inputMethodEvent(QInputMethodEvent* event) {
    ShowComposing(QInputMethodEvent());
    Enter(event->commitString());
    ShowComposing(QInputMethodEvent(event->preeditString(), event->attributes()));
    event->accept();
}

/// What is not a character yet shows where any may come. A box with a filter would give its selection up for it, and
/// then may refuse it.
void FilteredLineEdit::ShowComposing(QInputMethodEvent composing) {
    if (!filter_) {
        QLineEdit::inputMethodEvent(&composing);
    }
}

void FilteredLineEdit::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) {
        Paste(QApplication::clipboard()->text(QClipboard::Selection));
        event->accept();
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
    if (gettingFocusByMouse_ && !hasSelectedText()) {
        selectAll();
    }
    gettingFocusByMouse_ = false;
}

void FilteredLineEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (!watch_->FocusIn() && selectsOnFocus_ && event->reason() != Qt::PopupFocusReason) {
        selectAll();
        gettingFocusByMouse_ = event->reason() == Qt::MouseFocusReason;
    }
}

void FilteredLineEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    gettingFocusByMouse_ = false;
    watch_->FocusOut(*event);
}

bool FilteredLineEdit::IsDropped() const {
    return watch_->IsDropped();
}

QString TypedText(const QKeyEvent& event) {
    const QString text = event.text();
    if (text.isEmpty() || text.front().category() == QChar::Other_Control || !IsTyping(event)) {
        return {};
    }
    const bool isPadPoint = event.key() == Qt::Key_Comma && event.modifiers().testFlag(Qt::KeypadModifier);
    return isPadPoint ? QStringLiteral(".") : text;
}

QChar Digit(QChar entered) {
    return entered >= u'0' && entered <= u'9' ? entered : QChar();
}

QChar DigitOrPoint(QChar entered) {
    return entered == u'.' ? entered : Digit(entered);
}

} // namespace zelvor
