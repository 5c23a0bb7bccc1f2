#pragma once

#include <span>
#include <string_view>

namespace zelvor {

/// An entry of a menu: its control name, the number of its text in the string table, and whether it bears a check mark.
/// A separator has no text.
struct MenuEntry {
    static constexpr int Separator = 0;

    std::string_view name;
    int text = Separator;
    bool checkable = false;
    bool hidden = false; // from the start; nothing shows it again
};

struct MenuDescription {
    std::string_view name;
    int text;
    std::span<const MenuEntry> entries;
};

/// The menu bar, all but the window list at the foot of MnuWindow.
[[nodiscard]] std::span<const MenuDescription> MenuTree();

} // namespace zelvor
