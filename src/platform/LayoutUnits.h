#pragma once

#include <QRect>
#include <QSize>

/// The units in which windows are laid out by hand. The layouts are meant for desktop fonts of up to 9 points; with a
/// larger one all their lengths grow as it does, so that every text keeps its room.
namespace zelvor {

/// Lengths of a layout, told in pixels, in logical pixels of the desktop.
[[nodiscard]] int LaidOut(int pixels);
[[nodiscard]] QSize LaidOut(QSize pixels);
[[nodiscard]] QRect LaidOut(const QRect& pixels);

/// Window sizes are told in twips, 15 to a pixel.
inline constexpr int TwipsPerPixel = 15;
[[nodiscard]] int PixelsOfTwips(int twips); // of a layout
[[nodiscard]] constexpr int TwipsOfPixels(int pixels) {
    return pixels * TwipsPerPixel;
}

} // namespace zelvor
