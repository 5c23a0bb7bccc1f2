#pragma once

namespace zelvor {

/// Where the toolbar is: at an edge of the client area, or floating.
enum class ToolbarAlignment { None = 0, Top = 1, Bottom = 2, Left = 3, Right = 4 };

/// The alignment of a toolbar dropped at (x, y) of a client area of that width and height, all in twips.
[[nodiscard]] ToolbarAlignment DockingRule(int x, int y, int width, int height);

} // namespace zelvor
