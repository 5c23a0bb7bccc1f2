#include "controls/ChildFrame.h"

#include <QAction>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMenu>
#include <algorithm>

#include "controls/ChildForm.h"

namespace zelvor {

namespace {

constexpr Qt::WindowFlags ToolWindowFlags = Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                            Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

} // namespace

ChildFrame::ChildFrame(ChildForm* form, QWidget* parent)
    : QMdiSubWindow(parent, form->IsToolWindow() ? ToolWindowFlags : Qt::WindowFlags()), form_(form) {
    setWidget(form);
    setAttribute(Qt::WA_DeleteOnClose, false);
    setWindowTitle(form->windowTitle());
    if (form->IsToolWindow()) {
        connect(this, &QMdiSubWindow::aboutToActivate, this, &ChildFrame::RestoreMaximised);
    }
}

/// Otherwise the area hands the state on to this one.
void ChildFrame::RestoreMaximised() {
    for (QMdiSubWindow* window : mdiArea()->subWindowList()) {
        if (window->isMaximized() && !window->isHidden()) {
            window->showNormal();
        }
    }
}

void ChildFrame::closeEvent(QCloseEvent* event) {
    event->ignore();
    form_->CloseFromFrame();
}

bool ChildFrame::focusNextPrevChild(bool next) {
    // The toolkit hides a window to change its state, and hands the focus on where it hides it. No other field may get
    // it for that moment: a field is stored when it is left.
    return !form_->isVisible() || QMdiSubWindow::focusNextPrevChild(next);
}

void ChildFrame::changeEvent(QEvent* event) {
    QMdiSubWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        // The toolkit leaves the menu of a frame in the language that the frame was made in.
        const QMdiSubWindow fresh;
        const QList<QAction*> from = fresh.systemMenu()->actions();
        const QList<QAction*> to = systemMenu()->actions();
        for (qsizetype i = 0; i < std::min(from.size(), to.size()); ++i) {
            to[i]->setText(from[i]->text());
        }
    }
}

} // namespace zelvor
