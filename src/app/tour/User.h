#pragma once

#include <QPoint>
#include <QString>
#include <functional>
#include <optional>
#include <string>

class QWidget;
class QWindow;

namespace zelvor::tour {

class WindowThread;

/// Hands of a user: keys go to the window with the keyboard focus, clicks to a place in a window, and modal dialogs and
/// menus are in the way as they are for a user.
class User {
public:
    explicit User(WindowThread& windows) : windows_(windows) {}

    /// Makes the dialog on top, else the main window, the active one where the window system has not.
    void Activate();

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// ASCII characters.
    void Type(const QString& text);

    /// Clicks the middle of the visible widget of that name in the dialog on top, else in the main window.
    void Click(const QString& name);
    void ClickOn(const std::string& what, const std::function<QWidget*()>& find);
    void ClickCell(int row, int column);
    void DoubleClickNode(const QString& text);

    /// Chooses a menu entry by its access keys, such as Alt+F, A.
    void ChooseByKeys(Qt::Key menu, Qt::Key entry);
    /// Chooses a menu entry by clicks; the names are control names.
    void ChooseByMouse(const QString& menu, const QString& entry);
    /// Opens a menu by a click, and leaves it open.
    void OpenMenu(const QString& menu);
    void CloseMenu();

private:
    struct Place {
        QWindow* window = nullptr;
        QPoint point;
    };
    void ClickAt(const std::string& what, const std::function<std::optional<Place>()>& find, bool twice = false);
    static std::optional<Place> Middle(QWidget* widget);

    WindowThread& windows_;
};

/// For questions to the window thread: the dialog on top, else the main window; null where there is none.
[[nodiscard]] QWidget* WindowOnTop();
/// What is on the screen and has the keys, in a line for the report of a failure.
[[nodiscard]] std::string WindowsInAWord();
/// The visible widget of that name in the window on top; null where there is none.
[[nodiscard]] QWidget* WidgetOnTop(const QString& name);

} // namespace zelvor::tour
