#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "text/Text.h"

namespace zelvor {

/// An entry of a menu: its control name, its text, and whether it bears a check mark.
/// A separator has no text.
struct MenuEntry {
    std::string_view name;
    std::optional<Text> text = {};
    bool checkable = false;
    bool hidden = false; // from the start; nothing shows it again
};

struct MenuDescription {
    std::string_view name;
    Text text;
    std::span<const MenuEntry> entries;
};

/// The menu bar, all but the window list at the foot of MnuWindow.
[[nodiscard]] std::span<const MenuDescription> MenuTree();

} // namespace zelvor
