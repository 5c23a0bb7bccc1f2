#include "tour/User.h"

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <QWindow>
#include <chrono>
#include <memory>

#include "tour/Checks.h"
#include "tour/KeyEvents.h"
#include "tour/WindowOnTop.h"
#include "tour/WindowThread.h"

namespace zelvor::tour {

namespace {

QMenuBar* MenuBar() {
    auto* window = qobject_cast<QMainWindow*>(WindowOnTop());
    return window ? window->menuBar() : nullptr;
}

bool IsReadyForKeys() {
    const QWidget* top = WindowOnTop();
    return top && (QApplication::activeWindow() == top || QApplication::activePopupWidget());
}

/// A small window that has the keys for a moment; its closing hands them back.
void BorrowKeys() {
    constexpr auto moment = std::chrono::milliseconds(200);
    auto* borrower = new QWidget(nullptr, Qt::Tool);
    borrower->setAttribute(Qt::WA_DeleteOnClose);
    borrower->show();
    borrower->activateWindow();
    QTimer::singleShot(moment, borrower, &QWidget::close);
}

/// A window manager takes its time, and activates by itself what a closed dialog leaves behind; without one, nobody
/// does.
void AskForKeys(QWidget& window, int timesAsked) {
    constexpr int patience = 30;
    const int firstRequest = QGuiApplication::platformName() == "offscreen" ? 0 : patience;
    if (timesAsked == firstRequest || timesAsked == firstRequest + 2 * patience) {
        window.activateWindow();
    } else if (timesAsked == firstRequest + patience) {
        // The toolkit ignores a window that gets the keys while the completer's list of a closing file dialog is up,
        // until it gets them anew.
        BorrowKeys();
    }
}

} // namespace

void User::Activate() {
    const std::string top = windows_.Ask([] {
        const QWidget* window = WindowOnTop();
        return window ? window->objectName().toStdString() : "(none)";
    });
    windows_.WaitUntil("the active window to be " + top, [asked = std::make_shared<int>(0)] {
        if (IsReadyForKeys()) {
            return true;
        }
        if (QWidget* window = WindowOnTop()) {
            AskForKeys(*window, (*asked)++);
        }
        return false;
    });
}

// Press and release are posted one by one, here and for clicks: a press may open a dialog and return only when that is
// gone.
void User::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    Activate();
    WindowThread::Post([=] { SendKey(true, key, modifiers); });
    WindowThread::Post([=] { SendKey(false, key, modifiers); });
}

void User::Type(const QString& text) {
    Activate();
    for (const char character : text.toLatin1()) {
        WindowThread::Post([=] { SendCharacter(true, character); });
        WindowThread::Post([=] { SendCharacter(false, character); });
    }
}

std::optional<User::Place> User::Middle(QWidget* widget) {
    if (!widget || !widget->isVisible() || !widget->isEnabled()) {
        return std::nullopt;
    }
    return PlaceIn(*widget, widget->rect());
}

User::Place User::PlaceIn(const QWidget& widget, const QRect& area) {
    return {widget.window()->windowHandle(), widget.mapTo(widget.window(), area.center())};
}

User::Place User::WaitFor(const std::string& what, const FindPlace& find) {
    Activate();
    std::optional<Place> place;
    windows_.WaitUntil(what, [&] {
        place = find();
        return place.has_value();
    });
    return *place;
}

void User::ClickAt(const std::string& what, const FindPlace& find, Qt::KeyboardModifiers modifiers) {
    const Place at = WaitFor(what, find);
    WindowThread::Post([=] { QTest::mousePress(at.window, Qt::LeftButton, modifiers, at.point); });
    WindowThread::Post([=] { QTest::mouseRelease(at.window, Qt::LeftButton, modifiers, at.point); });
}

void User::ClickOn(const std::string& what, const std::function<QWidget*()>& find) {
    ClickAt(what, [&] { return Middle(find()); });
}

void User::Click(const QString& name) {
    ClickOn("the control " + name.toStdString(), [&] { return WidgetOnTop(name); });
}

void User::ClickCell(const QString& table, int row, int column) {
    ClickAt("the table " + table.toStdString(), [=]() -> std::optional<Place> {
        auto* grid = qobject_cast<QTableWidget*>(WidgetOnTop(table));
        return grid ? std::optional(PlaceIn(*grid->viewport(), grid->visualItemRect(grid->item(row - 1, column - 1))))
                    : std::nullopt;
    });
}

void User::ClickRow(const QString& list, int row) {
    ClickAt("the list " + list.toStdString(), [=]() -> std::optional<Place> {
        auto* found = qobject_cast<QListWidget*>(WidgetOnTop(list));
        return found ? std::optional(PlaceIn(*found->viewport(), found->visualItemRect(found->item(row - 1))))
                     : std::nullopt;
    });
}

void User::ClickTab(const QString& tabs, int page) {
    ClickAt("the tabs " + tabs.toStdString(), [=]() -> std::optional<Place> {
        auto* found = qobject_cast<QTabWidget*>(WidgetOnTop(tabs));
        return found ? std::optional(PlaceIn(*found->tabBar(), found->tabBar()->tabRect(page - 1))) : std::nullopt;
    });
}

void User::TabTo(const QString& control) {
    constexpr int patience = 60; // more than any window has controls
    const auto isThere = [=] {
        const QWidget* focus = QApplication::focusWidget();
        return focus && focus->objectName() == control;
    };
    for (int presses = 0; !windows_.Ask(isThere); ++presses) {
        Check("the Tab key leads to " + control.toStdString(), presses < patience);
        Press(Qt::Key_Tab);
    }
}

void User::DoubleClickNode(const QString& text) {
    const auto find = [=]() -> std::optional<Place> {
        auto* tree = qobject_cast<QTreeWidget*>(WidgetOnTop("treView"));
        const auto nodes =
            tree ? tree->findItems(text, Qt::MatchExactly | Qt::MatchRecursive) : QList<QTreeWidgetItem*>();
        if (nodes.isEmpty()) {
            return std::nullopt;
        }
        return PlaceIn(*tree->viewport(), tree->visualItemRect(nodes.first()));
    };
    const Place at = WaitFor("the node " + text.toStdString(), find);
    WindowThread::Post([=] { QTest::mouseDClick(at.window, Qt::LeftButton, Qt::NoModifier, at.point); });
}

void User::ChooseByKeys(Qt::Key menu, Qt::Key entry) {
    Press(menu, Qt::AltModifier);
    windows_.WaitUntil("an open menu", [] { return QApplication::activePopupWidget() != nullptr; });
    Press(entry);
}

void User::OpenMenu(const QString& menu) {
    ClickAt("the menu " + menu.toStdString(), [=]() -> std::optional<Place> {
        QMenuBar* bar = MenuBar();
        const QMenu* found = bar ? bar->findChild<QMenu*>(menu) : nullptr;
        if (!found) {
            return std::nullopt;
        }
        return PlaceIn(*bar, bar->actionGeometry(found->menuAction()));
    });
    windows_.WaitUntil("the open menu " + menu.toStdString(), [=] {
        const QWidget* popup = QApplication::activePopupWidget();
        return popup && popup->objectName() == menu;
    });
}

void User::CloseMenu() {
    Press(Qt::Key_Escape);
    windows_.WaitUntil("a closed menu", [] { return QApplication::activePopupWidget() == nullptr; });
    Press(Qt::Key_Escape); // the menu bar still has the keys
}

void User::ChooseByMouse(const QString& menu, const QString& entry) {
    OpenMenu(menu);
    ClickAt("the menu entry " + entry.toStdString(), [=]() -> std::optional<Place> {
        const auto* open = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QAction* action = open ? open->findChild<QAction*>(entry) : nullptr;
        if (!action || !action->isVisible() || !action->isEnabled()) {
            return std::nullopt;
        }
        return Place{open->windowHandle(), open->actionGeometry(action).center()};
    });
}

} // namespace zelvor::tour
