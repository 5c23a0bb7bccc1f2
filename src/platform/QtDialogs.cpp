#include "platform/QtDialogs.h"

#include <QApplication>
#include <QVariant>
#include <QWidget>
#include <QWindow>

namespace zelvor {

namespace {

constexpr auto BesideWork = "BesideWork"; // a property of the window

/// A window beside the work stays usable beside every dialog by being the dialog's: the other way round too, the two
/// would belong to each other.
bool IsForWork(const QWidget& window) {
    const Qt::WindowType type = window.windowType();
    return window.isVisible() && window.isEnabled() && (type == Qt::Window || type == Qt::Dialog) &&
           !window.property(BesideWork).toBool();
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

void StandBesideWork(QWidget& window) {
    window.setProperty(BesideWork, true);
}

void SetOwner(QWindow& window, QWindow& owner) {
    if (!BelongsTo(owner, window)) { // NOLINT(readability-suspicious-call-argument): else each would own the other
        window.setTransientParent(&owner);
    }
}

} // namespace zelvor
