#pragma once

#include <QStringList>

#include "random/Hands.h"

namespace zelvor::random {

/// Real events of the display's keyboard and mouse, which the program xdotool has the X server make. For one thread.
class DisplayHands : public Hands {
public:
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers) override;
    void Type(const QByteArray& text) override;
    void Click(const Spot& spot, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) override;
    void DoubleClick(const Spot& spot) override;
    void Drag(const Spot& from, QPoint by) override;
    void Wheel(const Spot& spot, bool up) override;
    void CloseWindow() override;
    void Arrange(const Spot& spot, unsigned way) override;

    /// How often xdotool could not do it: a window may have gone meanwhile.
    [[nodiscard]] int Refusals() const { return refusals_; }

private:
    void Tell(const QStringList& words);

    int refusals_ = 0;
};

} // namespace zelvor::random
