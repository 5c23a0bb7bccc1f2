#include "controls/FieldTabs.h"

#include <QKeyEvent>
#include <QTabBar>

#include "controls/EditGrid.h"
#include "controls/EnterAsTab.h"

namespace zelvor {

FieldTabs::FieldTabs(const QString& name, QWidget* parent) : QTabWidget(parent) {
    setObjectName(name);
    tabBar()->setFocusPolicy(Qt::StrongFocus);
    tabBar()->installEventFilter(this);
}

QWidget* FieldTabs::AddPage(const QString& caption) {
    auto* page = new QWidget(this);
    addTab(page, caption);
    return page;
}

bool FieldTabs::eventFilter(QObject* watched, QEvent* event) {
    if (watched != tabBar()) {
        return QTabWidget::eventFilter(watched, event);
    }
    if (event->type() == QEvent::Wheel) {
        return true; // scrolling past the tabs must not change the page
    }
    if (event->type() == QEvent::KeyPress && IsEnterKey(*static_cast<QKeyEvent*>(event))) {
        MoveOn(*tabBar());
        return true;
    }
    return QTabWidget::eventFilter(watched, event);
}

} // namespace zelvor
