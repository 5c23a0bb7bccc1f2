#include "shell/ChildWindows.h"

#include <QApplication>
#include <QMdiArea>

#include "controls/ChildForm.h"
#include "controls/ChildFrame.h"
#include "controls/PendingEdit.h"
#include "shell/WindowArrangement.h"
#include "shell/WindowList.h"

namespace zelvor {

namespace {

constexpr std::array UnloadOrder{
    ChildWindow::OptionalFeatures,
    ChildWindow::KeyAssignment,
    ChildWindow::Scan,
    ChildWindow::Dtmf,
    ChildWindow::Corvane,
    ChildWindow::TestFrequency,
    ChildWindow::EmbeddedMessage,
    ChildWindow::Navigator,
    ChildWindow::ChannelEdit,
};

/// The window list's captions of entries 1 to 8.
constexpr std::array Captions{
    Text::OptionalFeaturesTitle, Text::KeyAssignmentTitle, Text::ScanInformationTitle, Text::DtmfTitle,
    Text::CorvaneTitle,          Text::TestFrequencyTitle, Text::EmbeddedMessageTitle, Text::ChannelEditTitle,
};

void SetToNormal(QWidget& frame) {
    if (frame.isMinimized() || frame.isMaximized()) {
        frame.showNormal();
    }
}

} // namespace

ChildWindows::ChildWindows(Session& session, QMdiArea& area, WindowList& list)
    : session_(session), area_(area), list_(list) {
    connect(&area, &QMdiArea::subWindowActivated, this, &ChildWindows::OnActivated);
    connect(&list, &WindowList::Chosen, this, [this](int entry) { GoTo(WindowOfListEntry(entry)); });
}

void ChildWindows::Register(ChildWindow window, Factory factory) {
    SlotOf(window).factory = std::move(factory);
}

bool ChildWindows::IsRegistered(ChildWindow window) const {
    return SlotOf(window).factory != nullptr;
}

ChildForm& ChildWindows::Load(ChildWindow window) {
    Slot& slot = SlotOf(window);
    if (!slot.frame) {
        slot.frame = new ChildFrame(slot.factory());
        area_.addSubWindow(slot.frame);
        if (slot.frame->Form()->OpensAtOrigin()) {
            slot.frame->move(0, 0);
        }
        Connect(*slot.frame->Form());
    }
    return *slot.frame->Form();
}

void ChildWindows::Connect(ChildForm& form) {
    const ChildWindow window = form.Window();
    connect(&form, &ChildForm::UnloadRequested, this, [this, window] { CloseByUnloading(window); });
    connect(&form, &ChildForm::HideRequested, this, [this, window] { CloseByHiding(window); });
    if (const auto entry = WindowListEntry(window)) {
        connect(&form, &ChildForm::CaptionChanged, &list_,
                [this, entry](const QString& caption) { list_.SetCaption(*entry, caption); });
    }
}

bool ChildWindows::IsVisible(ChildWindow window) const {
    const Slot& slot = SlotOf(window);
    return slot.frame && !slot.frame->isHidden();
}

ChildForm* ChildWindows::ActiveForm() const {
    for (const Slot& slot : slots_) {
        if (slot.frame && slot.frame == area_.activeSubWindow() && !slot.frame->isHidden()) {
            return slot.frame->Form();
        }
    }
    return nullptr;
}

void ChildWindows::OpenChildWindow(ChildWindow window) {
    const auto entry = WindowListEntry(window);
    if (!IsRegistered(window) || !entry) {
        return;
    }
    list_.SetMenuShown(true);
    session_.SetOpen(window, true);
    if (list_.IsShown(*entry)) {
        keepMarks_ = true;
        BringToFront(window);
        keepMarks_ = false;
        return;
    }
    if (window == ChildWindow::Channels) {
        session_.Cursor.SetCurrentChannel(1);
    }
    list_.Show(*entry, ListCaption(window));
    list_.Mark(*entry);
    BringToFront(window);
}

void ChildWindows::OpenNavigator() {
    list_.SetMenuShown(true);
    session_.SetOpen(ChildWindow::Navigator, true);
    BringToFront(ChildWindow::Navigator);
}

void ChildWindows::GoTo(ChildWindow window) {
    if (const auto entry = WindowListEntry(window); entry && IsRegistered(window)) {
        list_.Mark(*entry);
        BringToFront(window);
    }
}

void ChildWindows::Show(ChildWindow window) {
    session_.SetOpen(window, true);
    if (!IsVisible(window)) {
        BringToFront(window);
    }
}

void ChildWindows::PlaceAtOrigin(ChildWindow window) {
    if (const Slot& slot = SlotOf(window); slot.frame) {
        SetToNormal(*slot.frame);
        slot.frame->move(0, 0);
    }
}

void ChildWindows::BringToFront(ChildWindow window) {
    Load(window);
    ChildFrame& frame = *SlotOf(window).frame;
    if (frame.isMinimized()) {
        frame.showNormal();
    }
    frame.show();
    area_.setActiveSubWindow(&frame);
    frame.raise();
}

void ChildWindows::HideFrame(ChildWindow window) {
    const Slot& slot = SlotOf(window);
    if (!slot.frame) {
        return;
    }
    // A maximised frame would leave its buttons in the menu bar.
    SetToNormal(*slot.frame);
    slot.frame->hide();
    if (QWidget* focus = QApplication::focusWidget(); focus != nullptr && slot.frame->isAncestorOf(focus)) {
        focus->clearFocus(); // the frame keeps it
    }
    if (area_.activeSubWindow() == slot.frame || area_.activeSubWindow() == nullptr) {
        area_.setActiveSubWindow(TopmostVisible(area_));
    }
}

void ChildWindows::Unload(ChildWindow window) {
    HideFrame(window);
    // Later, because a button of the window may be what asks for it.
    if (ChildFrame* frame = SlotOf(window).frame) {
        SlotOf(window).frame = nullptr;
        area_.removeSubWindow(frame);
        frame->deleteLater();
    }
}

void ChildWindows::LeaveList(ChildWindow window) {
    session_.SetOpen(window, false);
    if (const auto entry = WindowListEntry(window)) {
        list_.Hide(*entry);
    }
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
    for (const ChildWindow window : UnloadOrder) {
        if (session_.IsOpen(window)) {
            CloseByUnloading(window);
        }
    }
}

void ChildWindows::DropEditors() {
    for (const ChildWindow window : UnloadOrder) {
        if (const ChildFrame* frame = SlotOf(window).frame) {
            DropPendingEdit(*frame->Form());
        }
    }
    UnloadEditors();
    for (const ChildWindow window : UnloadOrder) {
        Unload(window);
    }
}

void ChildWindows::CloseAll() {
    for (int entry = 0; entry < WindowListSize; ++entry) {
        if (const ChildWindow window = WindowOfListEntry(entry); session_.IsOpen(window)) {
            HideFrame(window);
            list_.Hide(entry);
        }
    }
    if (session_.IsOpen(ChildWindow::Navigator)) {
        HideFrame(ChildWindow::Navigator);
    }
    list_.SetMenuShown(false);
}

void ChildWindows::UpdateWindowMenu() {
    if (!session_.IsAnyChildOpen()) {
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
        IsVisible(ChildWindow::Navigator) ? SlotOf(ChildWindow::Navigator).frame : nullptr;
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

std::string ChildWindows::ListCaption(ChildWindow window) const {
    const int entry = WindowListEntry(window).value_or(0);
    return entry == 0 ? ChannelCaption(session_.LanguageFlag, session_.Cursor.CurrentChannel())
                      : std::string(session_.LoadText(Captions[static_cast<std::size_t>(entry - 1)]));
}

void ChildWindows::OnActivated(QMdiSubWindow* frame) {
    auto* child = qobject_cast<ChildFrame*>(frame);
    if (child == nullptr || keepMarks_) {
        return;
    }
    if (const auto entry = WindowListEntry(child->Form()->Window())) {
        list_.Mark(*entry);
    }
}

} // namespace zelvor
