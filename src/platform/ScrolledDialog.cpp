#include "platform/ScrolledDialog.h"

#include <QDialog>
#include <QEvent>
#include <QScreen>
#include <QStyle>
#include <algorithm>

#include "platform/DialogContents.h"
#include "platform/ScreenRoom.h"

namespace zelvor {

namespace {

void MoveOntoScreen(QWidget& window) {
    const QRect screen = window.screen()->availableGeometry();
    const QSize frame = window.frameGeometry().size();
    const QPoint last(screen.x() + screen.width() - frame.width(), screen.y() + screen.height() - frame.height());
    // A corner that is off the screen at the left or the top is where the desktop or the user has put it.
    const QPoint place(std::min(window.x(), std::max(screen.x(), last.x())),
                       std::min(window.y(), std::max(screen.y(), last.y())));
    if (place != window.pos()) {
        window.move(place);
    }
}

/// What a dialog holds, as large as it has to be where the screen has room for it.
class ScrolledContents : public DialogContents {
public:
    using DialogContents::DialogContents;

    [[nodiscard]] QSize sizeHint() const override { return InRoom(Panel().sizeHint()); }
    [[nodiscard]] QSize minimumSizeHint() const override { return InRoom(Panel().minimumSizeHint()); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool handled = DialogContents::eventFilter(watched, event);
        if (watched == &Panel() && event->type() == QEvent::LayoutRequest) {
            updateGeometry();
        } else if (watched == window() && event->type() == QEvent::Resize && window()->isVisible()) {
            MoveOntoScreen(*window());
        }
        return handled;
    }

private:
    [[nodiscard]] QSize InRoom(QSize wanted) const {
        const QSize room = ScreenRoom(*window());
        const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
        const QSize bars(wanted.height() > room.height() ? bar : 0, wanted.width() > room.width() ? bar : 0);
        return (wanted + bars).boundedTo(room);
    }
};

} // namespace

void ScrollOnScreen(QDialog& dialog) {
    if (dialog.layout() != nullptr) {
        new ScrolledContents(dialog);
    }
}

} // namespace zelvor
