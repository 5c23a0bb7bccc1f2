#include "platform/ScrolledDialog.h"

#include <QDialog>
#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

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
class ScrolledContents : public QScrollArea {
public:
    explicit ScrolledContents(QDialog& dialog) : QScrollArea(&dialog), panel_(new QWidget(this)) {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
        // The panel is the dialog's from the start, or the order of the tab key would go.
        const QMargins margins = dialog.layout()->contentsMargins(); // a window's are wider than a panel's
        panel_->setLayout(dialog.layout());                          // takes it and its widgets from the dialog
        panel_->layout()->setContentsMargins(margins);
        setWidget(panel_);
        panel_->installEventFilter(this);
        dialog.installEventFilter(this);
    }

    [[nodiscard]] QSize sizeHint() const override { return InRoom(panel_->sizeHint()); }
    [[nodiscard]] QSize minimumSizeHint() const override { return InRoom(panel_->minimumSizeHint()); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool handled = QScrollArea::eventFilter(watched, event);
        if (watched == panel_ && event->type() == QEvent::LayoutRequest) {
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

    QWidget* panel_;
};

} // namespace

void ScrollOnScreen(QDialog& dialog) {
    if (dialog.layout() == nullptr) {
        return;
    }
    auto* contents = new ScrolledContents(dialog);
    auto* layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(contents);
}

} // namespace zelvor
