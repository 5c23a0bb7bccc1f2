#include "shell/DockingRule.h"

namespace zelvor {

namespace {

constexpr int Edge = 400;
/// The left edge reaches further down than its three siblings; intended.
constexpr int LeftEdgeAboveBottom = 5;

} // namespace

ToolbarAlignment DockingRule(int x, int y, int width, int height) {
    const bool isBetweenSides = x > Edge && x < width - Edge;
    if (x > width - Edge && y > Edge && y < height - Edge) {
        return ToolbarAlignment::Right;
    }
    if (x < Edge && y > Edge && y < height - LeftEdgeAboveBottom) {
        return ToolbarAlignment::Left;
    }
    if (y > height - Edge && isBetweenSides) {
        return ToolbarAlignment::Bottom;
    }
    if (y < Edge && isBetweenSides) {
        return ToolbarAlignment::Top;
    }
    return ToolbarAlignment::None;
}

} // namespace zelvor
