#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "controls/WindowState.h"
#include "text/Text.h"

namespace zelvor {

class ChildForm;
class ChildWindows;
class Document;
struct Services;

/// What child windows are made with.
struct ChildWindowParts {
    Document& document;
    WindowState& windows;
    Services& services;
    ChildWindows& children;
    bool isStarted; // the program has its first document and window
};

/// An entry of the Edit menu.
struct EditMenuEntry {
    std::string_view name;
    Text text;
    std::string_view separator = {}; // above it: its name, empty for none
};

/// A node of the navigator.
struct NavigatorNode {
    std::string_view key;
    Text text;
};

/// All that the shell knows of a child window. Its class, which `make` names, has its own title and help page.
struct ChildWindowRow {
    ChildWindow window{};
    std::optional<EditMenuEntry> menu = {};
    std::optional<NavigatorNode> node = {};
    std::string (*listCaption)(const WindowState& windows) =
        nullptr;            // as it opens; without, the window is not in the list
    bool staysOpen = false; // when the document is replaced
    ChildForm* (*make)(const ChildWindowParts& parts) = nullptr;
};

/// A row for each window, in the order of ChildWindow. That is the order of the window list, of the Edit menu, of the
/// navigator's nodes and of unloading, too.
[[nodiscard]] std::span<const ChildWindowRow> ChildWindowRows();

[[nodiscard]] const ChildWindowRow& RowOf(ChildWindow window);

} // namespace zelvor
