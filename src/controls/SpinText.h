#pragma once

#include <QAbstractSpinBox>
#include <functional>
#include <optional>

#include "controls/FilteredLineEdit.h"
#include "controls/UpDownPair.h"

namespace zelvor {

/// What a SpinText holds and how it behaves. Fields at their defaults may be left out.
struct SpinTextRules {
    /// Range and step of the up-down's value.
    int first = 0;
    int last = 0;
    int increment = 1;
    /// From this many characters on, typing needs a selection.
    int lengthLimit = 0;
    FilteredLineEdit::Filter filter = Digit;
    /// The text of a value of the range.
    std::function<QString(int value)> show;
    /// The value that a typed text stands for, from which a step then starts; nothing: the step starts from the
    /// up-down's value, as it does without this rule.
    std::function<std::optional<int>(const QString& text)> read = nullptr;
    /// A way of stepping that differs from adding the increment and wrapping at the ends: the next value, or nothing
    /// where the step is to change nothing.
    std::function<std::optional<int>(const QString& text, bool up)> step = nullptr;
};

/// The two buttons of a SpinText, and the value that they step. Range, step size and text are for assistive technology,
/// which steps by setting another value.
class UpDown : public QAbstractSpinBox {
    Q_OBJECT
    Q_PROPERTY(int value READ Value WRITE StepTowards)
    Q_PROPERTY(int stepSize READ StepSize CONSTANT)
    Q_PROPERTY(int minimum READ First)
    Q_PROPERTY(int maximum READ Last)

public:
    explicit UpDown(QWidget* parent);

    [[nodiscard]] int Value() const { return value_; }
    void SetValue(int value) { value_ = value; }
    [[nodiscard]] int First() const { return first_; }
    [[nodiscard]] int Last() const { return last_; }
    void SetRange(int first, int last);
    [[nodiscard]] static int StepSize() { return 1; }
    void StepTowards(int value);
    /// What the box beside it shows.
    void TellText(const QString& text);

    void stepBy(int steps) override { emit StepAsked(steps > 0); }

signals:
    void StepAsked(bool up);

protected:
    [[nodiscard]] StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }
    void mousePressEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void EndRepeating();

    int value_ = 0;
    int first_ = 0;
    int last_ = 0;
};

/// A text box with an up-down pair: a number of a range, typed or stepped through.
///
/// Up and Down and the two buttons step, show the new value's text with all of it selected and the caret at its start,
/// and wrap: a box that shows the last text of the range steps to the first, and the other way round; from any other
/// text a step ends at the range's end at most. Stepping stores nothing: who stores listens to the box's FocusLeft.
/// Enter moves on like Tab. Text and up-down value are two things: code may show a text that stands for no value of the
/// range.
class SpinText : public UpDownPair {
    Q_OBJECT

public:
    /// The object names of the text box and of its up-down, such as "txtTOT" and "updTOT".
    SpinText(const QString& textName, const QString& upDownName, SpinTextRules rules, QWidget* parent = nullptr);

    [[nodiscard]] FilteredLineEdit& Box() const { return *box_; }
    [[nodiscard]] UpDown& Buttons() const { return *upDown_; }
    /// Names both parts for assistive technology.
    void SetAccessibleName(const QString& name);

    [[nodiscard]] int Value() const { return upDown_->Value(); }
    /// Sets the up-down alone, kept to its range.
    void SetValue(int value);
    /// Sets the box alone; any text.
    void SetText(const QString& text) { box_->setText(text); }
    /// Sets the up-down and shows its text.
    void Put(int value);

signals:
    /// A step was made by key or button; the box shows the new value.
    void Stepped(int value);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Step(bool up);
    [[nodiscard]] std::optional<int> NextValue(bool up) const;

    const SpinTextRules rules_;
    FilteredLineEdit* const box_;
    UpDown* const upDown_;
};

} // namespace zelvor
