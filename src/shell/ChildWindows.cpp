#include "shell/ChildWindows.h"

#include <QApplication>
#include <QMdiArea>
#include <utility>

#include "controls/ChildForm.h"
#include "controls/ChildFrame.h"
#include "controls/PendingEdit.h"
#include "shell/ChildWindowRows.h"
#include "shell/WindowArrangement.h"
#include "shell/WindowList.h"

namespace zelvor {

namespace {

void SetToNormal(QWidget& frame) {
    if (frame.isMinimized() || frame.isMaximized()) {
        frame.showNormal();
    }
}

} // namespace

ChildWindows::ChildWindows(WindowState& windows, QMdiArea& area, WindowList& list, Factory make)
    : windows_(windows), area_(area), list_(list), make_(std::move(make)) {
    connect(&area, &QMdiArea::subWindowActivated, this, &ChildWindows::OnActivated);
    connect(&list, &WindowList::Chosen, this, &ChildWindows::GoTo);
}

ChildFrame* ChildWindows::FrameOf(ChildWindow window) const {
    return frames_[static_cast<std::size_t>(window)];
}

ChildForm& ChildWindows::Load(ChildWindow window) {
    QPointer<ChildFrame>& frame = frames_[static_cast<std::size_t>(window)];
    if (!frame) {
        frame = new ChildFrame(make_(RowOf(window)));
        area_.addSubWindow(frame);
        if (frame->Form()->OpensAtOrigin()) {
            frame->move(0, 0);
        }
        Connect(*frame->Form());
    }
    return *frame->Form();
}

void ChildWindows::Connect(ChildForm& form) {
    const ChildWindow window = form.Window();
    connect(&form, &ChildForm::UnloadRequested, this, [this, window] { CloseByUnloading(window); });
    connect(&form, &ChildForm::HideRequested, this, [this, window] { CloseByHiding(window); });
    connect(&form, &ChildForm::CaptionChanged, &list_,
            [this, window](const QString& caption) { list_.SetCaption(window, caption); });
}

bool ChildWindows::IsVisible(ChildWindow window) const {
    const ChildFrame* frame = FrameOf(window);
    return frame != nullptr && !frame->isHidden();
}

ChildForm* ChildWindows::ActiveForm() const {
    for (const QPointer<ChildFrame>& frame : frames_) {
        if (frame && frame == area_.activeSubWindow() && !frame->isHidden()) {
            return frame->Form();
        }
    }
    return nullptr;
}

void ChildWindows::OpenChildWindow(ChildWindow window) {
    list_.SetMenuShown(true);
    windows_.SetOpen(window, true);
    if (list_.IsShown(window)) {
        keepMarks_ = true;
        BringToFront(window);
        keepMarks_ = false;
        return;
    }
    if (window == ChildWindow::Channels) {
        windows_.Cursor.SetCurrentChannel(1);
    }
    ListAsOpened(RowOf(window));
    BringToFront(window);
}

void ChildWindows::ListAsOpened(const ChildWindowRow& row) {
    if (row.listCaption != nullptr) {
        list_.Show(row.window, row.listCaption(windows_));
        list_.Mark(row.window);
    }
}

void ChildWindows::GoTo(ChildWindow window) {
    list_.Mark(window);
    BringToFront(window);
}

void ChildWindows::Show(ChildWindow window) {
    windows_.SetOpen(window, true);
    if (!IsVisible(window)) {
        BringToFront(window);
    }
}

void ChildWindows::PlaceAtOrigin(ChildWindow window) {
    if (ChildFrame* frame = FrameOf(window)) {
        SetToNormal(*frame);
        frame->move(0, 0);
    }
}

void ChildWindows::BringToFront(ChildWindow window) {
    Load(window);
    ChildFrame& frame = *FrameOf(window);
    if (frame.isMinimized()) {
        frame.showNormal();
    }
    frame.show();
    area_.setActiveSubWindow(&frame);
    frame.raise();
}

void ChildWindows::HideFrame(ChildWindow window) {
    ChildFrame* frame = FrameOf(window);
    if (frame == nullptr) {
        return;
    }
    // A maximised frame would leave its buttons in the menu bar.
    SetToNormal(*frame);
    frame->hide();
    if (QWidget* focus = QApplication::focusWidget(); focus != nullptr && frame->isAncestorOf(focus)) {
        focus->clearFocus(); // the frame keeps it
    }
    if (area_.activeSubWindow() == frame || area_.activeSubWindow() == nullptr) {
        area_.setActiveSubWindow(TopmostVisible(area_));
    }
}

void ChildWindows::Unload(ChildWindow window) {
    HideFrame(window);
    // Later, because a button of the window may be what asks for it.
    if (ChildFrame* frame = std::exchange(frames_[static_cast<std::size_t>(window)], nullptr)) {
        area_.removeSubWindow(frame);
        frame->deleteLater();
    }
}

void ChildWindows::LeaveList(ChildWindow window) {
    windows_.SetOpen(window, false);
    list_.Hide(window);
    UpdateWindowMenu();
}

void ChildWindows::CloseByHiding(ChildWindow window) {
    LeaveList(window);
    HideFrame(window);
}

void ChildWindows::CloseByUnloading(ChildWindow window) {
    LeaveList(window);
    Unload(window);
}

void ChildWindows::UnloadEditors() {
    for (const ChildWindowRow& row : ChildWindowRows()) {
        if (!row.staysOpen && windows_.IsOpen(row.window)) {
            CloseByUnloading(row.window);
        }
    }
}

void ChildWindows::DropEditors() {
    for (const ChildWindowRow& row : ChildWindowRows()) {
        if (const ChildFrame* frame = FrameOf(row.window); frame != nullptr && !row.staysOpen) {
            DropPendingEdit(*frame->Form());
        }
    }
    UnloadEditors();
    for (const ChildWindowRow& row : ChildWindowRows()) {
        if (!row.staysOpen) {
            Unload(row.window);
        }
    }
}

void ChildWindows::CloseAll() {
    for (const bool isListed : {true, false}) {
        for (const ChildWindowRow& row : ChildWindowRows()) {
            if ((row.listCaption != nullptr) == isListed && windows_.IsOpen(row.window)) {
                HideFrame(row.window);
                list_.Hide(row.window);
            }
        }
    }
    list_.SetMenuShown(false);
}

void ChildWindows::UpdateWindowMenu() {
    if (!windows_.IsAnyChildOpen()) {
        list_.SetMenuShown(false);
    }
}

void ChildWindows::Arrange(Arrangement arrangement) {
    if (arrangement == Arrangement::Icons) {
        ArrangeIcons(area_);
        return;
    }
    const QPointer<QMdiSubWindow> active = area_.activeSubWindow();
    const QPointer<ChildFrame> navigator =
        IsVisible(ChildWindow::Navigator) ? FrameOf(ChildWindow::Navigator) : nullptr;
    if (navigator) {
        navigator->hide();
    }
    switch (arrangement) {
    case Arrangement::Cascade:
        CascadeWindows(area_);
        break;
    case Arrangement::TileHorizontally:
        TileWindows(area_, Qt::Horizontal);
        break;
    case Arrangement::TileVertically:
        TileWindows(area_, Qt::Vertical);
        break;
    case Arrangement::Icons:
        break;
    }
    if (navigator) {
        navigator->show();
        area_.setActiveSubWindow(active); // which showing the navigator has taken that from
    }
}

void ChildWindows::OnActivated(QMdiSubWindow* frame) {
    const auto* child = qobject_cast<const ChildFrame*>(frame);
    if (child != nullptr && !keepMarks_) {
        list_.Mark(child->Form()->Window());
    }
}

} // namespace zelvor
