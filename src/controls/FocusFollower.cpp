#include "controls/FocusFollower.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QItemSelectionModel>
#include <QTabBar>

namespace zelvor {

FocusFollower::FocusFollower(QWidget& panel) : QObject(&panel), panel_(panel) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { OnFocusMoved(now); });
}

void FocusFollower::OnFocusMoved(QWidget* now) {
    disconnect(cursor_);
    if (now == nullptr || !panel_.isAncestorOf(now)) {
        return;
    }
    if (const auto* view = qobject_cast<const QAbstractItemView*>(now); view != nullptr && view->selectionModel()) {
        cursor_ =
            connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this, [this, view] { Tell(*view); });
    } else if (const auto* tabs = qobject_cast<const QTabBar*>(now)) {
        cursor_ = connect(tabs, &QTabBar::currentChanged, this, [this, tabs] { Tell(*tabs); });
    }
    Tell(*now);
}

void FocusFollower::Tell(const QWidget& control) {
    if (QApplication::mouseButtons() == Qt::NoButton) {
        emit Moved(FocusPlaceOf(control, panel_));
    }
}

} // namespace zelvor
