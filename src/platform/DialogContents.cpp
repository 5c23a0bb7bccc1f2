#include "platform/DialogContents.h"

#include <QDialog>
#include <QLayout>
#include <QVBoxLayout>

namespace zelvor {

DialogContents::DialogContents(QDialog& dialog) : QScrollArea(&dialog) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    auto* panel = new QWidget(this); // the dialog's from the start, or the order of the tab key would go
    const QMargins margins = dialog.layout()->contentsMargins(); // a window's are wider than a panel's
    panel->setLayout(dialog.layout());                           // takes it and its widgets from the dialog
    panel->layout()->setContentsMargins(margins);
    setWidget(panel);
    panel->installEventFilter(this);
    dialog.installEventFilter(this);
    auto* around = new QVBoxLayout(&dialog);
    around->setContentsMargins(0, 0, 0, 0);
    around->addWidget(this);
}

} // namespace zelvor
