#pragma once

#include <span>
#include <string_view>

#include "shell/Command.h"
#include "text/Language.h"

class QAction;
class QMenu;
class QMenuBar;

namespace zelvor {

struct MenuDescription;

/// The menus of the main window, made of their descriptions: one QMenu and QAction per entry, named as the entry.
class Menus {
public:
    /// The descriptions must outlive the menus. run: what choosing an entry calls.
    Menus(QMenuBar& bar, std::span<const MenuDescription> menus, const RunCommand& run);

    /// Sets every text but those of separators and of the window list.
    void ApplyCaptions(Language language);

    /// The menu of that control name; it must exist.
    [[nodiscard]] QMenu& Menu(std::string_view name) const;

private:
    void AddEntry(QMenu& menu, const Command& command, const RunCommand& run);

    QMenuBar& bar_;
    const std::span<const MenuDescription> menus_;
};

} // namespace zelvor
