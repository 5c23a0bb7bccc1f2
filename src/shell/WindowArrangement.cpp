#include "shell/WindowArrangement.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>
#include <cmath>
#include <iterator>

#include "controls/ChildFrame.h"

namespace zelvor {

namespace {

constexpr int LargestStack = 3;
/// So many title bars high is a cascaded window at least.
constexpr int LowestCascaded = 3;

std::vector<QMdiSubWindow*> VisibleWindows(QMdiArea& area) {
    const auto stack = area.subWindowList(QMdiArea::StackingOrder);
    std::vector<QMdiSubWindow*> windows;
    std::copy_if(stack.rbegin(), stack.rend(), std::back_inserter(windows),
                 [](const QMdiSubWindow* window) { return !window->isHidden(); });
    return windows;
}

/// Those that can be arranged, the topmost first.
std::vector<QMdiSubWindow*> OpenWindows(QMdiArea& area) {
    std::vector<QMdiSubWindow*> windows = VisibleWindows(area);
    std::erase_if(windows, [](const QMdiSubWindow* window) { return window->isMinimized(); });
    return windows;
}

void Restore(const std::vector<QMdiSubWindow*>& windows) {
    for (QMdiSubWindow* window : windows) {
        if (window->isMaximized()) {
            window->showNormal();
        }
    }
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

std::vector<QPoint> CascadeCorners(QSize area, int count, int step) {
    const int inRow = std::max(1, (area.height() - LowestCascaded * step) / step + 1);
    const int rows = (count + inRow - 1) / inRow;
    // Side by side, the steps to the right take no more than half of a row's width.
    const int rowWidth = area.width() / std::max(1, rows);
    const int right = rows <= 1 ? step : std::min(step, rowWidth / 2 / inRow);
    std::vector<QPoint> corners;
    corners.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        corners.emplace_back(i / inRow * rowWidth + i % inRow * right, i % inRow * step);
    }
    return corners;
}

void CascadeWindows(QMdiArea& area) {
    std::vector<QMdiSubWindow*> windows = OpenWindows(area);
    if (windows.empty()) {
        return;
    }
    std::reverse(windows.begin(), windows.end());
    const auto active = std::find(windows.begin(), windows.end(), area.activeSubWindow());
    if (active != windows.end()) {
        std::rotate(active, std::next(active), windows.end());
    }
    Restore(windows);
    const QSize room = area.maximumViewportSize();
    const int step = static_cast<const ChildFrame*>(windows.front())->TitleBarHeight();
    const auto corners = CascadeCorners(room, static_cast<int>(windows.size()), step);
    for (std::size_t i = 0; i < windows.size(); ++i) {
        auto* frame = static_cast<ChildFrame*>(windows[i]);
        frame->setGeometry({corners[i], frame->FirstSize(room - QSize(corners[i].x(), corners[i].y()))});
        frame->raise();
    }
}

void TileWindows(QMdiArea& area, Qt::Orientation orientation) {
    const std::vector<QMdiSubWindow*> windows = OpenWindows(area);
    const auto places = TilePlaces(area.viewport()->size(), static_cast<int>(windows.size()), orientation);
    Restore(windows);
    for (std::size_t i = 0; i < windows.size(); ++i) {
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
