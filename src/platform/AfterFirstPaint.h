#pragma once

#include <functional>

class QWidget;

namespace zelvor {

/// Calls once, from the event loop, when the widget has been painted for the first time: for what a start needs not
/// wait for.
void AfterFirstPaint(QWidget& widget, std::function<void()> call);

} // namespace zelvor
