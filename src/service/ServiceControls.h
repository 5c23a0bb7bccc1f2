#pragma once

#include <QString>

class QLabel;
class QWidget;

/// What the windows of the service mode look alike by.
namespace zelvor {

/// A sunken field that shows a text of at most so many logical pixels.
[[nodiscard]] QLabel* MakeDisplay(const QString& name, int width, QWidget* parent);
/// Shows a text; assistive technology reads it behind the display's label.
void ShowOn(QLabel& display, const QString& label, const QString& text);

/// A name for assistive technology out of a caption: without the mark of its access key.
[[nodiscard]] QString SpokenName(QString caption);

/// Gives all buttons of a window one size, in which every caption has room.
void AlignButtons(QWidget& window);

} // namespace zelvor
