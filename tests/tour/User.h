#pragma once

#include <QPoint>
#include <QString>
#include <functional>
#include <optional>
#include <string>

class QRect;
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
    /// Presses Tab until the control has the focus.
    void TabTo(const QString& control);

    /// Clicks the middle of the visible widget of that name in the dialog on top, else in the main window.
    void Click(const QString& name);
    void ClickOn(const std::string& what, const std::function<QWidget*()>& find);
    /// Rows, columns and pages count from 1.
    void ClickCell(const QString& table, int row, int column);
    void ClickRow(const QString& list, int row);
    void ClickTab(const QString& tabs, int page);
    /// Clicks a place in a window, found by the window thread.
    struct Place {
        QWindow* window = nullptr;
        QPoint point;
    };
    using FindPlace = std::function<std::optional<Place>()>;
    void ClickAt(const std::string& what, const FindPlace& find, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void DoubleClickNode(const QString& text);

    /// Chooses a menu entry by its access keys, such as Alt+F, A.
    void ChooseByKeys(Qt::Key menu, Qt::Key entry);
    /// Chooses a menu entry by clicks; the names are control names.
    void ChooseByMouse(const QString& menu, const QString& entry);
    /// Opens a menu by a click, and leaves it open.
    void OpenMenu(const QString& menu);
    void CloseMenu();

private:
    /// The place once it is there.
    [[nodiscard]] Place WaitFor(const std::string& what, const FindPlace& find);
    static std::optional<Place> Middle(QWidget* widget);
    static Place PlaceIn(const QWidget& widget, const QRect& area);

    WindowThread& windows_;
};

} // namespace zelvor::tour
