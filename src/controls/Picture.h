#pragma once

class QWidget;

namespace zelvor {

/// Tells assistive technology that a widget which paints itself is a picture: without a role of its own it would be
/// taken for a part of the window's layout, which is passed over. For the widget's constructor, before anybody asks.
void TellAsPicture(QWidget& widget);

} // namespace zelvor
