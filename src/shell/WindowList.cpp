#include "shell/WindowList.h"

#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr std::array WindowsInListOrder{
    ChildWindow::Channels,    ChildWindow::OptionalFeatures, ChildWindow::KeyAssignment, ChildWindow::Scan,
    ChildWindow::Dtmf,        ChildWindow::Corvane,          ChildWindow::TestFrequency, ChildWindow::EmbeddedMessage,
    ChildWindow::ChannelEdit,
};
static_assert(WindowsInListOrder.size() == WindowListSize);

} // namespace

std::optional<int> WindowListEntry(ChildWindow window) {
    for (int entry = 0; entry < WindowListSize; ++entry) {
        if (WindowOfListEntry(entry) == window) {
            return entry;
        }
    }
    return std::nullopt;
}

ChildWindow WindowOfListEntry(int entry) {
    return WindowsInListOrder[static_cast<std::size_t>(entry)];
}

WindowList::WindowList(QMenu& mnuWindow) : mnuWindow_(mnuWindow) {
    for (int entry = 0; entry < WindowListSize; ++entry) {
        auto* action = new QAction(&mnuWindow);
        action->setObjectName(QStringLiteral("MnuWindowSub(%1)").arg(entry));
        action->setCheckable(true);
        action->setVisible(false);
        action->setMenuRole(QAction::NoRole);
        connect(action, &QAction::triggered, this, [this, entry] { emit Chosen(entry); });
        mnuWindow.addAction(action);
        entries_[static_cast<std::size_t>(entry)] = action;
    }
}

bool WindowList::IsShown(int entry) const {
    return Entry(entry).isVisible();
}

void WindowList::Show(int entry, std::string_view caption) {
    SetCaption(entry, ToQString(caption));
    Entry(entry).setVisible(true);
}

void WindowList::Hide(int entry) {
    Entry(entry).setVisible(false);
}

void WindowList::SetCaption(int entry, const QString& caption) {
    Entry(entry).setText(caption);
}

void WindowList::ClearMark(int entry) {
    Entry(entry).setChecked(false);
}

void WindowList::Mark(int entry) {
    for (int other = 0; other < WindowListSize; ++other) {
        if (other == entry || IsShown(other)) {
            Entry(other).setChecked(other == entry);
        }
    }
}

void WindowList::SetMenuShown(bool shown) {
    mnuWindow_.menuAction()->setVisible(shown);
}

} // namespace zelvor
