#include "tour/WindowOnTop.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QTableWidget>
#include <QWindow>

namespace zelvor::tour {

namespace {

std::string NameOf(const QWidget* window) {
    return window ? window->objectName().toStdString() : "(none)";
}

QWidget* VisibleWindow(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->objectName() == name) {
            return window;
        }
    }
    return nullptr;
}

QWidget* VisiblePart(const QWidget& window, const QString& name) {
    for (QWidget* widget : window.findChildren<QWidget*>(name)) {
        if (widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

/// Test mode is disabled while a tuning dialog is open over it, as the main window is.
QWidget* EnabledDialog() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->isEnabled() && qobject_cast<QDialog*>(window)) {
            return window;
        }
    }
    return nullptr;
}

} // namespace

QWidget* WindowOnTop() {
    if (QWidget* help = VisibleWindow("HelpWindow")) {
        return help;
    }
    if (QWidget* modal = QApplication::activeModalWidget()) {
        return modal;
    }
    QWidget* dialog = EnabledDialog();
    return dialog ? dialog : VisibleWindow("MDIForm1");
}

bool IsOnTop(const QString& window) {
    const QWidget* top = WindowOnTop();
    return top && top->isVisible() && top->objectName() == window;
}

QWidget* WidgetOnTop(const QString& name) {
    const QWidget* top = WindowOnTop();
    const auto* area = top ? top->findChild<const QMdiArea*>() : nullptr;
    const QMdiSubWindow* child = area ? area->activeSubWindow() : nullptr;
    QWidget* const inChild = child ? VisiblePart(*child, name) : nullptr;
    return inChild || !top ? inChild : VisiblePart(*top, name);
}

QWidget* PartOf(const QString& window, const QString& part) {
    const QWidget* found = WidgetOnTop(window);
    return found ? found->findChild<QWidget*>(part) : nullptr;
}

QString TextOnTop(const QString& name) {
    const QWidget* widget = WidgetOnTop(name);
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        return label->text();
    }
    if (const auto* box = qobject_cast<const QLineEdit*>(widget)) {
        return box->text();
    }
    if (const auto* list = qobject_cast<const QComboBox*>(widget)) {
        return list->currentText();
    }
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    return button ? button->text() : "(no " + name + ")";
}

QString CellOnTop(const QString& table, int row, int column) {
    const auto* found = qobject_cast<const QTableWidget*>(WidgetOnTop(table));
    const QTableWidgetItem* cell = found ? found->item(row - 1, column - 1) : nullptr;
    return cell ? cell->text() : QString("(no cell)");
}

QString TitleOnTop() {
    const QWidget* top = WindowOnTop();
    return top ? top->windowTitle() : QString("(no window)");
}

std::string WindowsInAWord() {
    const QWindow* focus = QGuiApplication::focusWindow();
    const auto* box = qobject_cast<const QMessageBox*>(QApplication::activeModalWidget());
    return "on top: " + NameOf(WindowOnTop()) + (box ? " \"" + box->text().toStdString() + "\"" : "") +
           ", active: " + NameOf(QApplication::activeWindow()) +
           ", keys: " + (focus ? focus->objectName().toStdString() : "(none)") + " at " +
           NameOf(QApplication::focusWidget()) + ", menu: " + NameOf(QApplication::activePopupWidget());
}

} // namespace zelvor::tour
