#pragma once

#include <QByteArray>
#include <QPoint>
#include <QPointer>
#include <QWindow>
#include <Qt>

namespace zelvor::random {

/// A place in a window, as it was when it was looked for: the window may be gone when the hand comes there.
struct Spot {
    QPointer<QWindow> window;
    QPoint inWindow;
    QPoint onScreen; // of the display, in its dots
};

/// Hands of a user. They do not wait for what they cause, and neither look where they reach.
class Hands {
public:
    Hands() = default;
    Hands(const Hands&) = delete;
    Hands& operator=(const Hands&) = delete;
    virtual ~Hands() = default;

    virtual void Key(Qt::Key key, Qt::KeyboardModifiers modifiers) = 0;
    /// ASCII characters.
    virtual void Type(const QByteArray& text) = 0;
    virtual void Click(const Spot& spot, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) = 0;
    virtual void DoubleClick(const Spot& spot) = 0;
    virtual void Drag(const Spot& from, QPoint by) = 0;
    virtual void Wheel(const Spot& spot, bool up) = 0;
    /// As the frame's close button of the window in front.
    virtual void CloseWindow() = 0;
    /// What a window manager does to the window in front; way chooses what.
    virtual void Arrange(const Spot& spot, unsigned way) = 0;
};

} // namespace zelvor::random
