#pragma once

#include <QObject>
#include <functional>
#include <string_view>

class QAction;
class QKeySequence;
class QMenu;
class QMenuBar;

namespace zelvor {

class Session;

/// The menus of the main window, made of the menu tree: one QMenu and QAction per entry, named as the entry.
class Menus {
public:
    explicit Menus(QMenuBar& bar);

    /// Sets every text but those of separators and of the window list, in the current language.
    void ApplyCaptions(const Session& session);

    /// The menu and the entry of that control name; it must exist.
    [[nodiscard]] QMenu& Menu(std::string_view name) const;
    [[nodiscard]] QAction& Entry(std::string_view name) const;

    /// What choosing the entry does.
    void On(std::string_view name, std::function<void()> command);
    void On(std::string_view name, const QKeySequence& shortcut, std::function<void()> command);

private:
    QMenuBar& bar_;
};

} // namespace zelvor
