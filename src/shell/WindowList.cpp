#include "shell/WindowList.h"

#include "platform/Toolkit.h"
#include "shell/ChildWindowRows.h"

namespace zelvor {

WindowList::WindowList(QMenu& mnuWindow) : mnuWindow_(mnuWindow) {
    int number = 0;
    for (const ChildWindowRow& row : ChildWindowRows()) {
        if (row.listCaption == nullptr) {
            continue;
        }
        auto* action = new QAction(&mnuWindow);
        action->setObjectName(QStringLiteral("MnuWindowSub(%1)").arg(number++));
        action->setCheckable(true);
        action->setVisible(false);
        action->setMenuRole(QAction::NoRole);
        connect(action, &QAction::triggered, this, [this, window = row.window] { emit Chosen(window); });
        mnuWindow.addAction(action);
        entries_[static_cast<std::size_t>(row.window)] = action;
    }
}

bool WindowList::IsShown(ChildWindow window) const {
    return Entry(window) != nullptr && Entry(window)->isVisible();
}

void WindowList::Show(ChildWindow window, std::string_view caption) {
    SetCaption(window, ToQString(caption));
    if (QAction* entry = Entry(window)) {
        entry->setVisible(true);
    }
}

void WindowList::Hide(ChildWindow window) {
    if (QAction* entry = Entry(window)) {
        entry->setVisible(false);
    }
}

void WindowList::SetCaption(ChildWindow window, const QString& caption) {
    if (QAction* entry = Entry(window)) {
        entry->setText(caption);
    }
}

void WindowList::ClearMark(ChildWindow window) {
    if (QAction* entry = Entry(window)) {
        entry->setChecked(false);
    }
}

void WindowList::Mark(ChildWindow window) {
    const QAction* marked = Entry(window);
    if (marked == nullptr) {
        return;
    }
    for (QAction* entry : entries_) {
        if (entry != nullptr && (entry == marked || entry->isVisible())) {
            entry->setChecked(entry == marked);
        }
    }
}

void WindowList::SetMenuShown(bool shown) {
    mnuWindow_.menuAction()->setVisible(shown);
}

} // namespace zelvor
