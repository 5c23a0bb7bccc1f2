#pragma once

#include <QSize>
#include <QString>
#include <QStringList>
#include <span>
#include <string>
#include <string_view>

namespace zelvor {

/// Our texts are UTF-8; the toolkit's are not.
[[nodiscard]] QString ToQString(std::string_view text);
[[nodiscard]] std::string FromQString(const QString& text);
[[nodiscard]] QStringList ToQStrings(std::span<const std::string> texts);

/// Window sizes are told in twips, 15 to a logical pixel.
inline constexpr int TwipsPerPixel = 15;
[[nodiscard]] constexpr int PixelsOfTwips(int twips) {
    return twips / TwipsPerPixel;
}
[[nodiscard]] constexpr int TwipsOfPixels(int pixels) {
    return pixels * TwipsPerPixel;
}

} // namespace zelvor
