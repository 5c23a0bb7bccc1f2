#include "platform/ScreenRoom.h"

#include <QDialog>
#include <QEvent>
#include <QScreen>
#include <QStyle>
#include <algorithm>

namespace zelvor {

namespace {

constexpr int ToolkitsTitleBar = 40; // what the toolkit leaves for one above a dialog that it places

class SizeLimit : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Show) {
            auto& dialog = static_cast<QDialog&>(*watched);
            dialog.resize(dialog.size().boundedTo(ScreenRoom(dialog)));
            KeepTitleBarOnScreen(dialog);
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

QSize ScreenRoom(const QWidget& window) {
    const QWidget* owner = window.parentWidget();
    const QWidget& framed = owner == nullptr ? window : *owner->window();
    const QSize frame = framed.frameGeometry().size() - framed.geometry().size();
    const QSize titleBar(0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window));
    return framed.screen()->availableSize() - frame.expandedTo(titleBar);
}

void KeepTitleBarOnScreen(QWidget& window) {
    const QWidget* owner = window.parentWidget();
    const QWidget& over = owner == nullptr ? window : *owner->window();
    const QRect screen = over.screen()->availableGeometry();
    const QPoint middle = owner == nullptr ? screen.center() : over.frameGeometry().center();
    if (middle.y() - window.height() / 2 - ToolkitsTitleBar >= screen.top()) {
        return;
    }
    const QSize room = ScreenRoom(window);
    const int rightmost = std::max(screen.left(), screen.left() + room.width() - window.width());
    window.move(std::clamp(middle.x() - window.width() / 2, screen.left(), rightmost),
                screen.top() + screen.height() - room.height());
}

void KeepOnScreen(QDialog& dialog) {
    dialog.installEventFilter(new SizeLimit(&dialog));
}

} // namespace zelvor
