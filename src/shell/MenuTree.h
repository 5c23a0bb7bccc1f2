#pragma once

#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include "shell/Command.h"
#include "text/Text.h"

namespace zelvor {

struct MenuSeparator {
    std::string_view name;
};

using MenuItem = std::variant<Command, MenuSeparator>;

struct MenuDescription {
    std::string_view name;
    Text text;
    std::vector<MenuItem> items;
};

/// The menu bar, all but the window list at the foot of MnuWindow.
[[nodiscard]] std::vector<MenuDescription> MenuTree();

/// The commands that have a key but no entry in a menu.
[[nodiscard]] std::vector<Command> KeyCommands();

/// The commands of the menus, in order.
[[nodiscard]] std::vector<const Command*> CommandsOf(std::span<const MenuDescription> menus);

/// The command of that name, which one of the menus must have.
[[nodiscard]] const Command& CommandOf(std::span<const MenuDescription> menus, std::string_view name);

} // namespace zelvor
