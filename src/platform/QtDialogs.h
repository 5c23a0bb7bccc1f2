#pragma once

class QWidget;
class QWindow;

namespace zelvor {

/// Where a box or dialog of the system belongs: to the dialog on top, else to the window that the user works in, which
/// is the innermost one that is enabled. Never to a window that stands beside the work, also where that has the
/// keyboard; null where the program has no window to work in.
[[nodiscard]] QWidget* DialogParent();

/// Tells that the window stands beside the work, as the help window does: no box or dialog belongs to it.
void StandBesideWork(QWidget& window);

/// Makes the owner the window's transient parent, unless the owner itself belongs to the window by transient parents:
/// the toolkit follows them to their end, and a circle has none.
void SetOwner(QWindow& window, QWindow& owner);

} // namespace zelvor
