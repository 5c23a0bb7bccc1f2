#include "controls/ChildFrame.h"

#include <QCloseEvent>

#include "controls/ChildForm.h"

namespace zelvor {

ChildFrame::ChildFrame(ChildForm* form, QWidget* parent) : QMdiSubWindow(parent), form_(form) {
    setWidget(form);
    setAttribute(Qt::WA_DeleteOnClose, false);
    setWindowTitle(form->windowTitle());
}

void ChildFrame::closeEvent(QCloseEvent* event) {
    event->ignore();
    form_->CloseFromFrame();
}

} // namespace zelvor
