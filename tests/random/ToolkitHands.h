#pragma once

#include <atomic>
#include <functional>

#include "random/Hands.h"

namespace zelvor::random {

/// Key and mouse events of the toolkit, made inside the process. Modal dialogs and menus are in the way as they are for
/// a user.
class ToolkitHands : public Hands {
public:
    /// Nothing is done any more once the flag is set.
    explicit ToolkitHands(const std::atomic<bool>& isOver) : isOver_(isOver) {}

    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers) override;
    void Type(const QByteArray& text) override;
    void Click(const Spot& spot, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) override;
    void DoubleClick(const Spot& spot) override;
    void Drag(const Spot& from, QPoint by) override;
    void Wheel(const Spot& spot, bool up) override;
    void CloseWindow() override;
    void Arrange(const Spot& spot, unsigned way) override;

private:
    void Post(std::function<void()> work) const;
    /// Does it to the window, if that is still there and the place in it.
    void PostTo(const Spot& spot, std::function<void(QWindow&, QPoint)> work) const;

    const std::atomic<bool>& isOver_;
};

} // namespace zelvor::random
