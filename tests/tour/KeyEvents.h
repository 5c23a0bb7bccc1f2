#pragma once

#include <Qt>

namespace zelvor::tour {

// For work of the window thread. Keys go where the window system would send them: to the open menu, else to the window
// with the keyboard focus, else to the window on top; nowhere where there is no window.

void SendKey(bool press, Qt::Key key, Qt::KeyboardModifiers modifiers);
void SendCharacter(bool press, char character);

} // namespace zelvor::tour
