#pragma once

#include <QSize>

class QDialog;
class QWidget;

namespace zelvor {

/// What a window's screen, which is that of its owner, has room for inside the window's frame. Where the desktop has
/// not told the frame yet, it is that of the window's owner, or a title bar.
[[nodiscard]] QSize ScreenRoom(const QWidget& window);

/// Places a window that is about to be shown and so high that the toolkit, which puts a dialog over the middle of its
/// owner, would have its title bar above the screen. Any other is left to the toolkit.
void KeepTitleBarOnScreen(QWidget& window);

/// Makes a dialog of the toolkit no larger than its screen when it is shown.
void KeepOnScreen(QDialog& dialog);

} // namespace zelvor
