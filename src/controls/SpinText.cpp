#include "controls/SpinText.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "controls/EnterAsTab.h"

namespace zelvor {

namespace {

constexpr int ButtonsWidth = 20; // logical pixels

} // namespace

UpDown::UpDown(QWidget* parent) : QAbstractSpinBox(parent) {
    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setFixedWidth(ButtonsWidth);
    lineEdit()->setFocusPolicy(Qt::NoFocus);
    lineEdit()->hide(); // the text is in the box beside it
}

void UpDown::SetRange(int first, int last) {
    first_ = first;
    last_ = last;
}

void UpDown::StepTowards(int value) {
    if (value != value_) {
        emit StepAsked(value > value_);
    }
}

void UpDown::TellText(const QString& text) {
    lineEdit()->setText(text);
}

/// A step may bring up a message box, which takes the release of the mouse: nothing else would end the repeating.
void UpDown::EndRepeating() {
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(), QPointF(), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    mouseReleaseEvent(&release);
}

void UpDown::mousePressEvent(QMouseEvent* event) {
    QAbstractSpinBox::mousePressEvent(event);
    if (!QApplication::mouseButtons().testFlag(Qt::LeftButton)) {
        EndRepeating();
    }
}

void UpDown::timerEvent(QTimerEvent* event) {
    const QWidget* modal = QApplication::activeModalWidget();
    if (QApplication::mouseButtons() == Qt::NoButton || (modal != nullptr && modal != window())) {
        EndRepeating();
        return;
    }
    QAbstractSpinBox::timerEvent(event);
}

void UpDown::wheelEvent(QWheelEvent* event) {
    // Scrolling past a box must not change it.
    event->ignore();
}

SpinText::SpinText(const QString& textName, const QString& upDownName, SpinTextRules rules, QWidget* parent)
    : UpDownPair(parent), rules_(std::move(rules)), box_(new FilteredLineEdit(this)), upDown_(new UpDown(this)) {
    Hold(*box_, *upDown_);
    setFocusProxy(box_);

    box_->setObjectName(textName);
    upDown_->setObjectName(upDownName);
    upDown_->SetRange(rules_.first, rules_.last);
    upDown_->SetValue(rules_.first);
    box_->SetFilter(rules_.filter);
    box_->SetLengthLimit(rules_.lengthLimit);
    box_->SelectAllOnFocus();
    box_->installEventFilter(this);
    connect(upDown_, &UpDown::StepAsked, this, &SpinText::Step);
    connect(box_, &QLineEdit::textChanged, upDown_, &UpDown::TellText);
    connect(box_, &FilteredLineEdit::EnterPressed, this, [this] { MoveOn(*box_); });
}

void SpinText::SetAccessibleName(const QString& name) {
    box_->setAccessibleName(name);
    upDown_->setAccessibleName(name);
}

void SpinText::SetValue(int value) {
    upDown_->SetValue(std::clamp(value, rules_.first, rules_.last));
}

void SpinText::Put(int value) {
    SetValue(value);
    SetText(rules_.show(Value()));
}

std::optional<int> SpinText::NextValue(bool up) const {
    if (rules_.step) {
        return rules_.step(box_->text(), up);
    }
    const int end = up ? rules_.last : rules_.first;
    const int otherEnd = up ? rules_.first : rules_.last;
    if (box_->text() == rules_.show(end)) {
        return otherEnd;
    }
    const std::optional<int> shown = rules_.read ? rules_.read(box_->text()) : std::nullopt;
    const int start = shown.value_or(Value());
    if (start == end) {
        return otherEnd;
    }
    return std::clamp(start + (up ? rules_.increment : -rules_.increment), rules_.first, rules_.last);
}

void SpinText::Step(bool up) {
    box_->setFocus(Qt::OtherFocusReason);
    if (window()->focusWidget() != box_) {
        return; // another box, with a text that it may not hold, kept the keyboard
    }
    if (const auto next = NextValue(up)) {
        Put(*next);
    }
    // From end to start, so that the caret ends at the start.
    const int length = static_cast<int>(box_->text().size());
    box_->setSelection(length, -length);
    emit Stepped(Value());
}

bool SpinText::eventFilter(QObject* watched, QEvent* event) {
    if (watched != box_ || event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
        Step(true);
        return true;
    case Qt::Key_Down:
        Step(false);
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

} // namespace zelvor
