#pragma once

#include <QString>
#include <functional>

class QLabel;
class QPushButton;
class QWidget;

/// What the windows of the service mode look alike by.
namespace zelvor {

/// A sunken field that shows a text of at most so many logical pixels.
[[nodiscard]] QLabel* MakeDisplay(const QString& name, int width, QWidget* parent);
/// Shows a text; assistive technology reads it behind the display's label.
void ShowOn(QLabel& display, const QString& label, const QString& text);

/// Does something at Enter, of the keyboard or of its number pad, while the control has the focus.
void OnEnter(QWidget& control, const std::function<void()>& act);
/// A button that Enter presses where it has the focus. The windows of the service mode have no default button: what
/// they send cannot be taken back, and Enter from elsewhere sends nothing.
[[nodiscard]] QPushButton* MakeButton(const QString& name, const QString& text, QWidget* parent);

/// Gives all buttons of a window one size, in which every caption has room.
void AlignButtons(QWidget& window);

} // namespace zelvor
