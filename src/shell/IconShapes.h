#pragma once

#include "shell/Icons.h"

class QPainter;

namespace zelvor {

/// Icons are drawn on a square of this many units.
inline constexpr int IconUnits = 24;

/// Draws the picture on the square (0, 0) to (IconUnits, IconUnits).
void DrawIconShape(QPainter& painter, IconShape shape);

} // namespace zelvor
