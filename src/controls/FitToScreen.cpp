#include "controls/FitToScreen.h"

#include <QDialog>
#include <QEvent>
#include <QLayout>
#include <QScrollBar>
#include <QStyle>

#include "controls/FocusFollower.h"
#include "platform/DialogContents.h"
#include "platform/ScreenRoom.h"

namespace zelvor {

namespace {

/// What a dialog holds: as large as it wants to be, where the screen has room for it.
class DialogView : public DialogContents {
public:
    explicit DialogView(QDialog& dialog) : DialogContents(dialog) {
        dialog.layout()->setSizeConstraint(QLayout::SetFixedSize);
        Panel().layout()->setSizeConstraint(QLayout::SetFixedSize);
        connect(new FocusFollower(Panel()), &FocusFollower::Moved, this, [this](const FocusPlace& place) {
            BringIntoView(*horizontalScrollBar(), *verticalScrollBar(), viewport()->size(),
                          place.Translated(Panel().pos()));
        });
    }

    [[nodiscard]] QSize sizeHint() const override { return size_; }
    [[nodiscard]] QSize minimumSizeHint() const override { return size_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool handled = DialogContents::eventFilter(watched, event);
        const bool panelChanges = watched == &Panel() && event->type() == QEvent::LayoutRequest;
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
        Panel().layout()->activate();
        const QSize wanted = Panel().sizeHint();
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

    QSize size_;
};

} // namespace

void FitToScreen(QDialog& dialog) {
    new DialogView(dialog);
}

} // namespace zelvor
