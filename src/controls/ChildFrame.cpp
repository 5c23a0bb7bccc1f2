#include "controls/ChildFrame.h"

#include <QAction>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMenu>
#include <QScrollBar>
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
    // Until it is shown: the toolkit lays the caption out anew at each of the steps in which the area takes the frame
    // in.
    setWindowTitle({});
    connect(form, &ChildForm::FocusShown, this, &ChildFrame::ShowInArea);
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

QSize ChildFrame::FirstSize(QSize room) const {
    const QMargins border = contentsMargins();
    const QSize frame(border.left() + border.right(), border.top() + border.bottom());
    return form_->SizeWithin(room, frame) + frame;
}

int ChildFrame::TitleBarHeight() const {
    return contentsMargins().top();
}

bool ChildFrame::event(QEvent* event) {
    if (event->type() == QEvent::ParentChange && parentWidget() != nullptr) {
        parentWidget()->installEventFilter(this);
    }
    return QMdiSubWindow::event(event);
}

bool ChildFrame::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize) {
        FitToArea();
    }
    return QMdiSubWindow::eventFilter(watched, event);
}

void ChildFrame::showEvent(QShowEvent* event) {
    QMdiSubWindow::showEvent(event);
    FitToArea();
    setWindowTitle(form_->windowTitle());
}

void ChildFrame::FitToArea() {
    const QMdiArea* area = mdiArea();
    if (area == nullptr || isHidden() || isMinimized() || isMaximized() || (fitted_.isValid() && size() != fitted_)) {
        return;
    }
    const QSize room = area->maximumViewportSize();
    resize(FirstSize(room));
    fitted_ = size();
    const QPoint last(std::max(0, room.width() - width()), std::max(0, room.height() - height()));
    move(std::clamp(x(), 0, last.x()), std::clamp(y(), 0, last.y()));
}

void ChildFrame::ShowInArea(const FocusPlace& place) {
    if (const QMdiArea* area = mdiArea()) {
        const QPoint corner = form_->mapTo(area->viewport(), QPoint());
        BringIntoView(*area->horizontalScrollBar(), *area->verticalScrollBar(), area->viewport()->size(),
                      place.Translated(corner));
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
    if (event->type() == QEvent::WindowStateChange) {
        FitToArea();
    }
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
