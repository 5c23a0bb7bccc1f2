#pragma once

#include <QAbstractSpinBox>
#include <functional>
#include <optional>

#include "controls/FilteredLineEdit.h"

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
    /// The focus left: bring the text into form and store it.
    std::function<void()> commit = nullptr;
};

/// A text box with an up-down pair: a number of a range, typed or stepped through.
///
/// Up and Down and the two buttons step, show the new value's text with all of it selected and the caret at its start,
/// and wrap: a box that shows the last text of the range steps to the first, and the other way round. Stepping stores
/// nothing. Enter moves on like Tab. Text and up-down value are two things: code may show a text that stands for no
/// value of the range.
class SpinText : public QAbstractSpinBox {
    Q_OBJECT
    Q_PROPERTY(int value READ Value)

public:
    /// The object names of the text box and of its up-down, such as "txtTOT" and "updTOT".
    SpinText(const QString& textName, const QString& upDownName, SpinTextRules rules, QWidget* parent = nullptr);

    [[nodiscard]] FilteredLineEdit& Box() const { return *box_; }
    [[nodiscard]] int Value() const { return value_; }
    /// Sets the up-down alone, kept to its range.
    void SetValue(int value);
    /// Sets the box alone; any text.
    void SetText(const QString& text) { box_->setText(text); }
    /// Sets the up-down and shows its text.
    void Put(int value);

    void stepBy(int steps) override;

signals:
    /// A step was made by key or button; the box shows the new value.
    void Stepped(int value);

protected:
    [[nodiscard]] StepEnabled stepEnabled() const override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] int NextValue(bool up) const;

    const SpinTextRules rules_;
    FilteredLineEdit* const box_;
    int value_;
};

} // namespace zelvor
