#include "random/Targets.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QScrollBar>
#include <QSlider>
#include <QTabBar>
#include <QTextEdit>
#include <QWidget>
#include <algorithm>

#include "tour/WindowOnTop.h"

namespace zelvor::random {

namespace {

constexpr std::uint32_t InFrontOfTen = 8; // so many of ten clicks go to the window in front

std::string NameOf(const QWidget& widget) {
    const QString name = widget.objectName();
    return (name.isEmpty() ? QString(widget.metaObject()->className()) : name).toStdString();
}

std::vector<QWidget*> VisibleWindows() {
    std::vector<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowHandle() != nullptr && !window->size().isEmpty()) {
            windows.push_back(window);
        }
    }
    return windows;
}

QWidget* SomeWindow(std::uint32_t number) {
    if (number % 10 < InFrontOfTen) {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            return popup;
        }
        if (QWidget* top =
                QApplication::activeModalWidget() ? QApplication::activeModalWidget() : tour::WindowOnTop()) {
            return top;
        }
    }
    const std::vector<QWidget*> windows = VisibleWindows();
    return windows.empty() ? nullptr : windows[number / 10 % windows.size()];
}

bool IsToBeClicked(const QWidget& widget) {
    return qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
           qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QAbstractSpinBox*>(&widget) ||
           qobject_cast<const QAbstractItemView*>(&widget) || qobject_cast<const QTabBar*>(&widget) ||
           qobject_cast<const QSlider*>(&widget) || qobject_cast<const QScrollBar*>(&widget) ||
           qobject_cast<const QMenuBar*>(&widget) || qobject_cast<const QMenu*>(&widget) ||
           qobject_cast<const QMdiSubWindow*>(&widget) || qobject_cast<const QTextEdit*>(&widget);
}

std::optional<Target> TargetAt(QWidget& widget, QPoint place) {
    QWidget* window = widget.window();
    QWindow* handle = window->windowHandle();
    if (handle == nullptr) {
        return std::nullopt;
    }
    const QPoint inWindow = widget.mapTo(window, place);
    const QPoint onScreen = window->mapToGlobal(inWindow) * handle->devicePixelRatio();
    const std::string name = &widget == window ? NameOf(widget) : NameOf(widget) + " in " + NameOf(*window);
    return Target{{handle, inWindow, onScreen},
                  name + " at " + std::to_string(inWindow.x()) + "," + std::to_string(inWindow.y())};
}

QPoint PlaceIn(QSize size, std::uint32_t number) {
    constexpr std::uint32_t half = 1U << 16U;
    return {static_cast<int>(number % half * static_cast<std::uint32_t>(size.width()) / half),
            static_cast<int>(number / half * static_cast<std::uint32_t>(size.height()) / half)};
}

const QMainWindow* MainWindow() {
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == "MDIForm1") {
            return qobject_cast<const QMainWindow*>(window);
        }
    }
    return nullptr;
}

/// The key behind the "&" of a text.
std::optional<Qt::Key> AccessKeyOf(const QString& text) {
    const auto mark = text.indexOf('&');
    if (mark < 0 || mark + 1 >= text.size()) {
        return std::nullopt;
    }
    return static_cast<Qt::Key>(text[mark + 1].toUpper().unicode());
}

std::vector<MenuKeys> Entries() {
    std::vector<MenuKeys> entries;
    const QMainWindow* window = MainWindow();
    for (const QAction* title : window ? window->findChild<QMenuBar*>()->actions() : QList<QAction*>()) {
        const auto menuKey = AccessKeyOf(title->text());
        for (const QAction* entry : title->isVisible() && menuKey ? title->menu()->actions() : QList<QAction*>()) {
            const auto entryKey = AccessKeyOf(entry->text());
            if (entryKey && entry->isVisible() && entry->isEnabled()) {
                entries.push_back({*menuKey, *entryKey, entry->objectName().toStdString()});
            }
        }
    }
    return entries;
}

} // namespace

std::optional<Target> SomeControl(std::uint32_t window, std::uint32_t control, std::uint32_t place) {
    QWidget* chosen = SomeWindow(window);
    if (chosen == nullptr) {
        return std::nullopt;
    }
    std::vector<QWidget*> controls;
    if (IsToBeClicked(*chosen)) {
        controls.push_back(chosen); // a menu
    }
    for (QWidget* child : chosen->findChildren<QWidget*>()) {
        if (child->isVisible() && !child->isWindow() && !child->visibleRegion().isEmpty() && IsToBeClicked(*child)) {
            controls.push_back(child);
        }
    }
    if (controls.empty()) {
        return TargetAt(*chosen, PlaceIn(chosen->size(), place));
    }
    QWidget& found = *controls[control % controls.size()];
    return TargetAt(found, PlaceIn(found.size(), place));
}

std::optional<Target> SomePlace(std::uint32_t window, std::uint32_t place) {
    const std::vector<QWidget*> windows = VisibleWindows();
    if (windows.empty()) {
        return std::nullopt;
    }
    QWidget& chosen = *windows[window % windows.size()];
    return TargetAt(chosen, PlaceIn(chosen.size(), place));
}

std::optional<Target> SomeAnswer(std::uint32_t button) {
    const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible() || box->buttons().isEmpty()) {
        return std::nullopt;
    }
    QAbstractButton& chosen =
        *box->buttons()[static_cast<qsizetype>(button % static_cast<std::uint32_t>(box->buttons().size()))];
    return TargetAt(chosen, chosen.rect().center());
}

std::optional<Target> MapCorner() {
    const QMainWindow* window = MainWindow();
    auto* area = window ? window->findChild<QMdiArea*>() : nullptr;
    return area ? TargetAt(*area, {area->width() - 2, 2}) : std::nullopt;
}

std::optional<MenuKeys> SomeEntry(std::uint32_t entry) {
    const std::vector<MenuKeys> entries = Entries();
    return entries.empty() ? std::nullopt : std::optional(entries[entry % entries.size()]);
}

std::optional<MenuKeys> EntryNamed(const char* name) {
    for (const MenuKeys& entry : Entries()) {
        if (entry.name == name) {
            return entry;
        }
    }
    return std::nullopt;
}

bool IsDialogInFront() {
    return QApplication::activeModalWidget() != nullptr;
}

bool IsFileDialogInFront() {
    return qobject_cast<const QFileDialog*>(QApplication::activeModalWidget()) != nullptr;
}

std::string Complaint() {
    const QWindowList windows = QGuiApplication::allWindows();
    for (const QWindow* window : windows) {
        qsizetype owners = 0;
        for (const QWindow* owner = window->transientParent(); owner != nullptr; owner = owner->transientParent()) {
            if (++owners > windows.size()) {
                return "the transient parents of " + window->objectName().toStdString() + " form a circle";
            }
        }
    }
    return {};
}

bool IsNobodyThere() {
    return std::ranges::none_of(QApplication::topLevelWidgets(), [](const QWidget* window) {
        return window->isVisible() && window->isEnabled() && window->objectName() != "HelpWindow";
    });
}

} // namespace zelvor::random
