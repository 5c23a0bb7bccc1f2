#include "tour/User.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTableWidget>
#include <QTest>
#include <QTreeWidget>
#include <QWindow>
#include <memory>

#include "tour/WindowThread.h"

namespace zelvor::tour {

namespace {

QWidget* MainWindow() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMainWindow*>(window) && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

QMenuBar* MenuBar() {
    auto* window = qobject_cast<QMainWindow*>(MainWindow());
    return window ? window->menuBar() : nullptr;
}

/// An open menu gets the keys, wherever the window system has the focus.
QWindow* WindowForKeys() {
    const QWidget* popup = QApplication::activePopupWidget();
    if (popup) {
        return popup->windowHandle();
    }
    QWindow* focus = QGuiApplication::focusWindow();
    const QWidget* top = WindowOnTop();
    return focus || !top ? focus : top->windowHandle();
}

void SendKey(bool press, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    if (QWindow* window = WindowForKeys()) {
        press ? QTest::keyPress(window, key, modifiers) : QTest::keyRelease(window, key, modifiers);
    }
}

void SendCharacter(bool press, char character) {
    if (QWindow* window = WindowForKeys()) {
        press ? QTest::keyPress(window, character) : QTest::keyRelease(window, character);
    }
}

std::string NameOf(const QWidget* window) {
    return window ? window->objectName().toStdString() : "(none)";
}

bool IsReadyForKeys() {
    const QWidget* top = WindowOnTop();
    return top && (QApplication::activeWindow() == top || QApplication::activePopupWidget());
}

/// A window manager takes its time, and activates by itself what a closed dialog leaves behind; without one, nobody
/// does.
void AskForKeys(QWidget& window, int timesAsked) {
    constexpr int patience = 30;
    const int firstRequest = QGuiApplication::platformName() == "offscreen" ? 0 : patience;
    if (timesAsked == firstRequest) {
        window.activateWindow();
    } else if (timesAsked == firstRequest + patience) {
        // The toolkit ignores a window that gets the keys while the completer's list of a closing file dialog is up.
        QApplication::setActiveWindow(&window);
    }
}

} // namespace

QWidget* WindowOnTop() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : MainWindow();
}

std::string WindowsInAWord() {
    const QWindow* focus = QGuiApplication::focusWindow();
    const auto* box = qobject_cast<const QMessageBox*>(QApplication::activeModalWidget());
    return "on top: " + NameOf(WindowOnTop()) + (box ? " \"" + box->text().toStdString() + "\"" : "") +
           ", active: " + NameOf(QApplication::activeWindow()) +
           ", keys: " + (focus ? focus->objectName().toStdString() : "(none)") + " at " +
           NameOf(QApplication::focusWidget()) + ", menu: " + NameOf(QApplication::activePopupWidget());
}

QWidget* WidgetOnTop(const QString& name) {
    const QWidget* top = WindowOnTop();
    for (QWidget* widget : top ? top->findChildren<QWidget*>(name) : QList<QWidget*>()) {
        if (widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

void User::Activate() {
    const std::string top = windows_.Ask([] { return NameOf(WindowOnTop()); });
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
    return Place{widget->window()->windowHandle(), widget->mapTo(widget->window(), widget->rect().center())};
}

void User::ClickAt(const std::string& what, const std::function<std::optional<Place>()>& find, bool twice) {
    Activate();
    std::optional<Place> place;
    windows_.WaitUntil(what, [&] {
        place = find();
        return place.has_value();
    });
    const auto send = [at = *place](void (*event)(QWindow*, Qt::MouseButton, Qt::KeyboardModifiers, QPoint, int)) {
        WindowThread::Post([=] { event(at.window, Qt::LeftButton, Qt::NoModifier, at.point, -1); });
    };
    if (twice) {
        send(QTest::mouseDClick);
        return;
    }
    send(QTest::mousePress);
    send(QTest::mouseRelease);
}

void User::ClickOn(const std::string& what, const std::function<QWidget*()>& find) {
    ClickAt(what, [&] { return Middle(find()); });
}

void User::Click(const QString& name) {
    ClickOn("the control " + name.toStdString(), [&] { return WidgetOnTop(name); });
}

void User::ClickCell(int row, int column) {
    ClickAt("the channel grid", [=]() -> std::optional<Place> {
        auto* grid = qobject_cast<QTableWidget*>(WidgetOnTop("ChannelGrid"));
        if (!grid) {
            return std::nullopt;
        }
        QWidget* viewport = grid->viewport();
        const QPoint cell = grid->visualItemRect(grid->item(row - 1, column - 1)).center();
        return Place{grid->window()->windowHandle(), viewport->mapTo(grid->window(), cell)};
    });
}

void User::DoubleClickNode(const QString& text) {
    const auto find = [=]() -> std::optional<Place> {
        auto* tree = qobject_cast<QTreeWidget*>(WidgetOnTop("treView"));
        const auto nodes =
            tree ? tree->findItems(text, Qt::MatchExactly | Qt::MatchRecursive) : QList<QTreeWidgetItem*>();
        if (nodes.isEmpty()) {
            return std::nullopt;
        }
        const QPoint node = tree->visualItemRect(nodes.first()).center();
        return Place{tree->window()->windowHandle(), tree->viewport()->mapTo(tree->window(), node)};
    };
    ClickAt("the node " + text.toStdString(), find, true);
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
        const QPoint title = bar->actionGeometry(found->menuAction()).center();
        return Place{bar->window()->windowHandle(), bar->mapTo(bar->window(), title)};
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
