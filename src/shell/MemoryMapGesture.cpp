#include "shell/MemoryMapGesture.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>
#include <utility>

namespace zelvor {

namespace {

bool IsLeftAloneWithCtrlAlt(const QMouseEvent& event) {
    constexpr auto modifiers = Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier | Qt::MetaModifier;
    return event.button() == Qt::LeftButton && (event.buttons() & ~Qt::LeftButton) == Qt::NoButton &&
           (event.modifiers() & modifiers) == (Qt::ControlModifier | Qt::AltModifier);
}

} // namespace

MemoryMapGesture::MemoryMapGesture(QWidget& clientArea) : QObject(&clientArea), clientArea_(clientArea) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool MemoryMapGesture::eventFilter(QObject* watched, QEvent* event) {
    if (!watched->isWidgetType()) {
        return false;
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        took_ = IsInSquare(watched, *static_cast<QMouseEvent*>(event));
        return took_;
    case QEvent::MouseButtonRelease:
        if (IsInSquare(watched, *static_cast<QMouseEvent*>(event))) {
            Make();
        }
        return std::exchange(took_, false);
    default:
        return false;
    }
}

bool MemoryMapGesture::IsInSquare(const QObject* watched, const QMouseEvent& event) const {
    const auto* widget = static_cast<const QWidget*>(watched);
    const bool isOfArea = widget == &clientArea_ || clientArea_.isAncestorOf(widget);
    // The events of a disabled window come by here all the same.
    if (!isOfArea || !clientArea_.isEnabled()) {
        return false;
    }
    const QRect square(clientArea_.width() - SquareSize, 0, SquareSize, SquareSize);
    return IsLeftAloneWithCtrlAlt(event) &&
           square.contains(clientArea_.mapFromGlobal(event.globalPosition().toPoint()));
}

void MemoryMapGesture::Make() {
    if (!std::exchange(making_, true)) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                making_ = false;
                emit Made();
            },
            Qt::QueuedConnection);
    }
}

} // namespace zelvor
