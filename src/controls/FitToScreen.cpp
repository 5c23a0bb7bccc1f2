#include "controls/FitToScreen.h"

#include <QDialog>
#include <QEvent>
#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>

#include "controls/FocusFollower.h"
#include "platform/ScreenRoom.h"

namespace zelvor {

namespace {

/// What a dialog holds: as large as it wants to be, where the screen has room for it.
class DialogView : public QScrollArea {
public:
    explicit DialogView(QDialog& dialog) : QScrollArea(&dialog), panel_(new QWidget(this)) {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
        // The panel is the dialog's from the start, or the order of the tab key would go.
        const QMargins margins = dialog.layout()->contentsMargins(); // a window's are wider than a panel's
        panel_->setLayout(dialog.layout());                          // takes it and its widgets from the dialog
        panel_->layout()->setContentsMargins(margins);
        panel_->layout()->setSizeConstraint(QLayout::SetFixedSize);
        setWidget(panel_);
        panel_->installEventFilter(this);
        dialog.installEventFilter(this);
        connect(new FocusFollower(*panel_), &FocusFollower::Moved, this, [this](const FocusPlace& place) {
            BringIntoView(*horizontalScrollBar(), *verticalScrollBar(), viewport()->size(),
                          place.Translated(panel_->pos()));
        });
    }

    [[nodiscard]] QSize sizeHint() const override { return size_; }
    [[nodiscard]] QSize minimumSizeHint() const override { return size_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool handled = QScrollArea::eventFilter(watched, event);
        const bool panelChanges = watched == panel_ && event->type() == QEvent::LayoutRequest;
        const bool dialogShows = watched == window() && event->type() == QEvent::Show;
        if (panelChanges || dialogShows) {
            Fit();
        }
        if (dialogShows) {
            KeepTitleBarOnScreen(*window());
        }
        return handled;
    }

private:
    /// At once, and each bar told: otherwise bars show for a moment that nobody needs.
    void Fit() {
        panel_->layout()->activate();
        const QSize wanted = panel_->sizeHint();
        const QSize room = ScreenRoom(*window());
        const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
        const bool isLow = wanted.height() > room.height();
        const bool needsHorizontal = wanted.width() + (isLow ? bar : 0) > room.width();
        const bool needsVertical = isLow || (needsHorizontal && wanted.height() + bar > room.height());
        setHorizontalScrollBarPolicy(needsHorizontal ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(needsVertical ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
        size_ = (wanted + QSize(needsVertical ? bar : 0, needsHorizontal ? bar : 0)).boundedTo(room);
        updateGeometry();
        window()->layout()->activate();
    }

    QWidget* panel_;
    QSize size_;
};

} // namespace

void FitToScreen(QDialog& dialog) {
    auto* view = new DialogView(dialog);
    auto* layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace zelvor
