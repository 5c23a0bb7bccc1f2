#pragma once

#include <QObject>

class QFocusEvent;
class QWidget;

namespace zelvor {

/// Tells when an edit ends in a control that commits when it is left. Belongs to the control, which hands it its focus
/// events.
///
/// The edit does not end where another program or window only comes to the front, or the keyboard goes to the menu bar:
/// it waits, and goes on when the keyboard is back. While it waits, CommitPendingEdit ends it, and so does another
/// control of the window that gets the keyboard.
class EditWatch : public QObject {
    Q_OBJECT

public:
    explicit EditWatch(QWidget& control);

    void FocusOut(const QFocusEvent& event);
    /// Returns whether an edit that waited goes on.
    bool FocusIn();

    /// Ends an edit that waits.
    void End();
    /// The window goes: what is being edited is dropped, and nothing is told any more.
    void Drop();
    [[nodiscard]] bool IsDropped() const { return state_ == State::Dropped; }

signals:
    /// The edit has ended. Also where the control was left without having been changed.
    void Left();

private:
    enum class State {
        Told,    // every focus event is acted on
        Waiting, // behind another window, or while the menu bar has the keyboard
        Dropped,
    };

    void Wait();
    void StopWaiting();
    void OnFocusMoved(const QWidget* now);

    QWidget& control_;
    State state_ = State::Told;
    QMetaObject::Connection moves_; // of the keyboard, while waiting
};

} // namespace zelvor
