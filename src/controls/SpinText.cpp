#include "controls/SpinText.h"

#include <QKeyEvent>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "controls/EnterAsTab.h"

namespace zelvor {

SpinText::SpinText(const QString& textName, const QString& upDownName, SpinTextRules rules, QWidget* parent)
    : QAbstractSpinBox(parent), rules_(std::move(rules)), box_(new FilteredLineEdit), value_(rules_.first) {
    setLineEdit(box_);
    setObjectName(upDownName);
    box_->setObjectName(textName);
    box_->SetFilter(rules_.filter);
    box_->SetLengthLimit(rules_.lengthLimit);
    box_->SelectAllOnFocus();
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
    connect(box_, &FilteredLineEdit::EnterPressed, this, [this] { MoveOn(*this); });
    if (rules_.commit) {
        connect(box_, &FilteredLineEdit::FocusLeft, this, rules_.commit);
    }
}

void SpinText::SetValue(int value) {
    value_ = std::clamp(value, rules_.first, rules_.last);
}

void SpinText::Put(int value) {
    SetValue(value);
    SetText(rules_.show(value_));
}

int SpinText::NextValue(bool up) const {
    const int end = up ? rules_.last : rules_.first;
    const int otherEnd = up ? rules_.first : rules_.last;
    if (box_->text() == rules_.show(end)) {
        return otherEnd;
    }
    const std::optional<int> shown = rules_.read ? rules_.read(box_->text()) : std::nullopt;
    const int next = shown.value_or(value_) + (up ? rules_.increment : -rules_.increment);
    return next < rules_.first || next > rules_.last ? otherEnd : next;
}

void SpinText::stepBy(int steps) {
    Put(NextValue(steps > 0));
    setFocus(Qt::OtherFocusReason);
    // From end to start, so that the caret ends at the start.
    const int length = static_cast<int>(box_->text().size());
    box_->setSelection(length, -length);
    emit Stepped(value_);
}

QAbstractSpinBox::StepEnabled SpinText::stepEnabled() const {
    return StepUpEnabled | StepDownEnabled;
}

void SpinText::keyPressEvent(QKeyEvent* event) {
    event->accept();
    switch (event->key()) {
    case Qt::Key_Up:
        stepBy(1);
        return;
    case Qt::Key_Down:
        stepBy(-1);
        return;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return;
    default:
        box_->event(event);
        return;
    }
}

void SpinText::wheelEvent(QWheelEvent* event) {
    // Scrolling past a box must not change it.
    event->ignore();
}

} // namespace zelvor
