#pragma once

#include <Qt>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "random/Hands.h"

namespace zelvor::random {

// Questions to the window thread. Each chooses by the numbers that it gets; names are for the log.

struct Target {
    Spot spot;
    std::string name; // "cmdOK in ConnectForm"
};

/// A control that a user would click, mostly of the window in front.
[[nodiscard]] std::optional<Target> SomeControl(std::uint32_t window, std::uint32_t control, std::uint32_t place);
/// Any place of any window, also of one that a dialog blocks.
[[nodiscard]] std::optional<Target> SomePlace(std::uint32_t window, std::uint32_t place);
/// A button of the message box in front.
[[nodiscard]] std::optional<Target> SomeAnswer(std::uint32_t button);
/// Where a click with Ctrl and Alt opens the memory map.
[[nodiscard]] std::optional<Target> MapCorner();

/// An entry of the main window's menus, by its access keys.
struct MenuKeys {
    Qt::Key menu;
    Qt::Key entry;
    std::string name;
};
[[nodiscard]] std::optional<MenuKeys> SomeEntry(std::uint32_t entry);
[[nodiscard]] std::optional<MenuKeys> EntryNamed(const char* name);

[[nodiscard]] bool IsDialogInFront(); // a modal one
[[nodiscard]] bool IsFileDialogInFront();

/// What is wrong with the windows as they are, empty where nothing is.
[[nodiscard]] std::string Complaint();
/// No window is left that takes a click. Normal for a moment only.
[[nodiscard]] bool IsNobodyThere();

} // namespace zelvor::random
