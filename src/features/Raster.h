#pragma once

/// Where the fields of the feature windows lie: a margin round a panel, a page or a frame, rows below each other, and
/// fields that begin in the middle. In logical pixels.
namespace zelvor::raster {

inline constexpr int Margin = 8;
inline constexpr int FrameMargin = 4;
inline constexpr int TabsTop = 4; // above the tabs: the longest page needs the height
inline constexpr int RowSpacing = 4;

} // namespace zelvor::raster
