#pragma once

#include <QLineEdit>
#include <functional>

namespace zelvor {

class EditWatch;

/// A text box that decides on each entered character, however it arrives: typed, pasted, dropped by the mouse's middle
/// button or composed by an input method. What code sets is taken as it is. No context menu opens on it.
class FilteredLineEdit : public QLineEdit {
    Q_OBJECT

public:
    /// The character to insert for an entered one: itself, another case of it, or a null character to refuse it.
    using Filter = std::function<QChar(QChar entered)>;

    explicit FilteredLineEdit(QWidget* parent = nullptr);

    void SetFilter(Filter filter) { filter_ = std::move(filter); }
    /// From this length on, a character is refused unless text is selected. Unlike maxLength it never cuts what code
    /// sets. Where pasted text is free of it, only typing stops.
    void SetLengthLimit(int limit, bool alsoPasted = true) {
        lengthLimit_ = limit;
        limitsPasted_ = alsoPasted;
    }
    /// Taking the focus selects all; so does the click that gives the focus, unless it selects something itself.
    void SelectAllOnFocus() { selectsOnFocus_ = true; }
    /// A character that, typed, acts as Enter.
    void SetEnterLetter(QChar letter) { enterLetter_ = letter; }

    /// Enters a text as the user would, character by character through the filter. textChanged is raised once.
    void Enter(const QString& text) { Insert(text, true); }

signals:
    void EnterPressed();
    void EscapePressed();
    /// The focus went to another control; a popup of this control's own, and another window in front, are no such
    /// thing.
    void FocusLeft();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    /// The edit has ended: the box was left, or a command has ended it while another window was in front.
    virtual void Leave() { emit FocusLeft(); }
    /// Whether the window goes, and the edit with it.
    [[nodiscard]] bool IsDropped() const;

private:
    void Edit(QKeyEvent& event);
    void ShowComposing(QInputMethodEvent composing);
    void Insert(const QString& text, bool limited);
    void Paste(const QString& text);

    EditWatch* watch_;
    Filter filter_;
    int lengthLimit_ = 32767; // as a QLineEdit's own
    bool limitsPasted_ = true;
    bool selectsOnFocus_ = false;
    bool gettingFocusByMouse_ = false; // until the button is released
    QChar enterLetter_;
};

/// The text that a key types: that of a key alone, with Shift, Alt Gr or Option. Nothing for a key that is a command or
/// has no text. The number pad's decimal point is a point, also in layouts that make it a comma.
[[nodiscard]] QString TypedText(const QKeyEvent& event);

/// Filters that several boxes use.
[[nodiscard]] QChar Digit(QChar entered);
[[nodiscard]] QChar DigitOrPoint(QChar entered);

} // namespace zelvor
