#pragma once

#include <QRect>
#include <QSize>
#include <Qt>
#include <vector>

class QMdiArea;
class QMdiSubWindow;

namespace zelvor {

/// The places of count windows tiled over an area: horizontally up to three of them lie one above the other, vertically
/// side by side; more make a grid.
[[nodiscard]] std::vector<QRect> TilePlaces(QSize area, int count, Qt::Orientation orientation);

/// Tiles the visible windows that are not minimised, the topmost first.
void TileWindows(QMdiArea& area, Qt::Orientation orientation);

/// Lays the minimised windows along the bottom of the area, from the left and row by row.
void ArrangeIcons(QMdiArea& area);

/// The visible window that lies over all others; null where there is none.
[[nodiscard]] QMdiSubWindow* TopmostVisible(QMdiArea& area);

} // namespace zelvor
