#include "platform/QtDialogs.h"

#include <QApplication>
#include <QWindow>

#include "platform/HelpWindow.h"

namespace zelvor {

namespace {

/// The help window stands beside the work and stays usable beside every dialog by being the dialog's: the other way
/// round too, the two would belong to each other.
bool IsForWork(const QWidget& window) {
    const Qt::WindowType type = window.windowType();
    return window.isVisible() && window.isEnabled() && (type == Qt::Window || type == Qt::Dialog) &&
           qobject_cast<const HelpWindow*>(&window) == nullptr;
}

bool BelongsTo(const QWidget& window, const QWidget& owner) {
    const QWidget* parent = window.parentWidget();
    while (parent != nullptr && parent != &owner) {
        parent = parent->parentWidget();
    }
    return parent != nullptr;
}

bool BelongsTo(const QWindow& window, const QWindow& owner) {
    const QWindow* parent = &window;
    while (parent != nullptr && parent != &owner) {
        parent = parent->transientParent();
    }
    return parent != nullptr;
}

} // namespace

QWidget* DialogParent() {
    QWidget* innermost = QApplication::activeModalWidget();
    if (innermost != nullptr) {
        return innermost;
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (IsForWork(*window) && (innermost == nullptr || BelongsTo(*window, *innermost))) {
            innermost = window;
        }
    }
    return innermost;
}

void SetOwner(QWindow& window, QWindow& owner) {
    if (!BelongsTo(owner, window)) {
        window.setTransientParent(&owner);
    }
}

} // namespace zelvor
