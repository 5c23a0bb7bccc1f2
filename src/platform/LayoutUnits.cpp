#include "platform/LayoutUnits.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <algorithm>
#include <cmath>

namespace zelvor {

namespace {

constexpr double LargestFontPixels = 12; // a 9 point font

} // namespace

int LaidOut(int pixels) {
    const double scale = std::max(1.0, QFontInfo(QGuiApplication::font()).pixelSize() / LargestFontPixels);
    return static_cast<int>(std::lround(pixels * scale));
}

QSize LaidOut(QSize pixels) {
    return {LaidOut(pixels.width()), LaidOut(pixels.height())};
}

QRect LaidOut(const QRect& pixels) {
    return {QPoint(LaidOut(pixels.x()), LaidOut(pixels.y())), LaidOut(pixels.size())};
}

int PixelsOfTwips(int twips) {
    return LaidOut(twips / TwipsPerPixel);
}

} // namespace zelvor
