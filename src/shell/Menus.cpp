#include "shell/Menus.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include "data/Session.h"
#include "platform/Toolkit.h"
#include "shell/MenuTree.h"

namespace zelvor {

namespace {

void AddEntry(QMenu& menu, const MenuEntry& entry) {
    auto* action = new QAction(&menu);
    action->setObjectName(ToQString(entry.name));
    action->setSeparator(!entry.text);
    action->setCheckable(entry.checkable);
    action->setChecked(entry.checkable);
    action->setVisible(!entry.hidden);
    // Otherwise some platforms move entries elsewhere for what their texts look like.
    action->setMenuRole(QAction::NoRole);
    menu.addAction(action);
}

} // namespace

Menus::Menus(QMenuBar& bar) : bar_(bar) {
    for (const MenuDescription& description : MenuTree()) {
        QMenu* menu = bar.addMenu(QString());
        menu->setObjectName(ToQString(description.name));
        menu->menuAction()->setObjectName(ToQString(description.name));
        for (const MenuEntry& entry : description.entries) {
            AddEntry(*menu, entry);
        }
    }
}

void Menus::ApplyCaptions(const Session& session) {
    for (const MenuDescription& description : MenuTree()) {
        Menu(description.name).setTitle(ToQString(session.LoadText(description.text)));
        for (const MenuEntry& entry : description.entries) {
            if (entry.text) {
                Entry(entry.name).setText(ToQString(session.LoadText(*entry.text)));
            }
        }
    }
}

QMenu& Menus::Menu(std::string_view name) const {
    return *bar_.findChild<QMenu*>(ToQString(name), Qt::FindDirectChildrenOnly);
}

QAction& Menus::Entry(std::string_view name) const {
    return *bar_.findChild<QAction*>(ToQString(name));
}

void Menus::On(std::string_view name, std::function<void()> command) {
    QObject::connect(&Entry(name), &QAction::triggered, &bar_, [command = std::move(command)] { command(); });
}

void Menus::On(std::string_view name, const QKeySequence& shortcut, std::function<void()> command) {
    Entry(name).setShortcut(shortcut);
    On(name, std::move(command));
}

} // namespace zelvor
