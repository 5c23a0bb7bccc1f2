#include "shell/WindowArrangement.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>
#include <cmath>

namespace zelvor {

namespace {

constexpr int LargestStack = 3;

std::vector<QMdiSubWindow*> VisibleWindows(QMdiArea& area) {
    const auto stack = area.subWindowList(QMdiArea::StackingOrder);
    std::vector<QMdiSubWindow*> windows;
    std::copy_if(stack.rbegin(), stack.rend(), std::back_inserter(windows),
                 [](const QMdiSubWindow* window) { return !window->isHidden(); });
    return windows;
}

} // namespace

std::vector<QRect> TilePlaces(QSize area, int count, Qt::Orientation orientation) {
    // Full bands while they are few; then as many bands as make a grid, the last ones with a window more.
    const int bands = count <= LargestStack ? count : static_cast<int>(std::sqrt(count));
    const bool sideBySide = orientation == Qt::Vertical;
    std::vector<QRect> places;
    int left = count;
    for (int band = 0; band < bands; ++band) {
        const int inBand = left / (bands - band);
        left -= inBand;
        const int across = sideBySide ? area.width() : area.height();
        const int along = sideBySide ? area.height() : area.width();
        const int start = across * band / bands;
        const int end = across * (band + 1) / bands;
        for (int i = 0; i < inBand; ++i) {
            const QRect place(along * i / inBand, start, along * (i + 1) / inBand - along * i / inBand, end - start);
            places.push_back(sideBySide ? QRect(place.y(), place.x(), place.height(), place.width()) : place);
        }
    }
    return places;
}

void TileWindows(QMdiArea& area, Qt::Orientation orientation) {
    std::vector<QMdiSubWindow*> windows = VisibleWindows(area);
    std::erase_if(windows, [](const QMdiSubWindow* window) { return window->isMinimized(); });
    const auto places = TilePlaces(area.viewport()->size(), static_cast<int>(windows.size()), orientation);
    for (std::size_t i = 0; i < windows.size(); ++i) {
        windows[i]->showNormal();
        windows[i]->setGeometry(places[i]);
    }
}

void ArrangeIcons(QMdiArea& area) {
    QPoint place(0, area.viewport()->height());
    for (QMdiSubWindow* window : area.subWindowList()) {
        if (window->isHidden() || !window->isMinimized()) {
            continue;
        }
        const int bottom = place.y();
        const bool fits = place.x() == 0 || place.x() + window->width() <= area.viewport()->width();
        place = fits ? place : QPoint(0, bottom - window->height());
        window->move(place.x(), place.y() - window->height());
        place.rx() += window->width();
    }
}

QMdiSubWindow* TopmostVisible(QMdiArea& area) {
    const std::vector<QMdiSubWindow*> windows = VisibleWindows(area);
    return windows.empty() ? nullptr : windows.front();
}

} // namespace zelvor
