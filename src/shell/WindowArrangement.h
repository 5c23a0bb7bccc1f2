#pragma once

#include <QPoint>
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

/// Where count windows lie that overlap, the last one on top: each a step further right and down than the one before.
/// Where the area is too low for all of them, more such rows of windows lie side by side, so that the start of every
/// title bar shows. step: the height of a title bar.
[[nodiscard]] std::vector<QPoint> CascadeCorners(QSize area, int count, int step);

/// Cascades the visible windows that are not minimised in the order in which they lie, the active one on top, each
/// in its first size or what there is room for.
void CascadeWindows(QMdiArea& area);

/// Tiles the visible windows that are not minimised, the topmost first.
void TileWindows(QMdiArea& area, Qt::Orientation orientation);

/// Lays the minimised windows along the bottom of the area, from the left and row by row.
void ArrangeIcons(QMdiArea& area);

/// The visible window that lies over all others; null where there is none.
[[nodiscard]] QMdiSubWindow* TopmostVisible(QMdiArea& area);

} // namespace zelvor
