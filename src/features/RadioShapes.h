#pragma once

#include <QSizeF>

class QPainter;

namespace zelvor {

/// The keys of the radio that can be programmed.
enum class RadioKey { Pf1, Pf2 };

/// The size of the radio's picture, in units of its own.
inline constexpr QSizeF RadioPictureUnits{210, 270};

/// Draws a portable radio with its keys named and one of them marked, on the rectangle (0, 0) to RadioPictureUnits, in
/// colours that are meant for a white ground.
void DrawRadio(QPainter& painter, RadioKey marked);

} // namespace zelvor
