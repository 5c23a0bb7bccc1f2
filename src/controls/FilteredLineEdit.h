#pragma once

#include <QLineEdit>
#include <functional>

namespace zelvor {

/// A text box that decides on each entered character, however it arrives: typed, pasted, dropped by the mouse's middle
/// button or composed by an input method. What code sets is taken as it is. No context menu opens on it.
class FilteredLineEdit : public QLineEdit {
    Q_OBJECT

public:
    /// The character to insert for an entered one: itself, another case of it, or a null character to refuse it.
    using Filter = std::function<QChar(QChar entered)>;

    explicit FilteredLineEdit(QWidget* parent = nullptr);

    void SetFilter(Filter filter) { filter_ = std::move(filter); }
    /// A character that, typed, acts as Enter.
    void SetEnterLetter(QChar letter) { enterLetter_ = letter; }

    /// Enters a text as the user would, character by character through the filter.
    void Enter(const QString& text);

signals:
    void EnterPressed();
    void EscapePressed();
    /// The focus went to another control or window; opening a popup of this control's own is no such thing.
    void FocusLeft();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    Filter filter_;
    QChar enterLetter_;
};

/// Filters that several boxes use.
[[nodiscard]] QChar DigitOrPoint(QChar entered);

} // namespace zelvor
