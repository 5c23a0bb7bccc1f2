#include "shell/Menus.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "platform/Toolkit.h"
#include "shell/MenuTree.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

QAction* AddAction(QMenu& menu, std::string_view name) {
    auto* action = new QAction(&menu);
    action->setObjectName(ToQString(name));
    // Otherwise some platforms move entries elsewhere for what their texts look like.
    action->setMenuRole(QAction::NoRole);
    menu.addAction(action);
    return action;
}

} // namespace

Menus::Menus(QMenuBar& bar, std::span<const MenuDescription> menus, const RunCommand& run) : bar_(bar), menus_(menus) {
    for (const MenuDescription& description : menus) {
        QMenu* menu = bar.addMenu(QString());
        menu->setObjectName(ToQString(description.name));
        menu->menuAction()->setObjectName(ToQString(description.name));
        for (const MenuItem& item : description.items) {
            if (const auto* command = std::get_if<Command>(&item)) {
                AddEntry(*menu, *command, run);
            } else {
                AddAction(*menu, std::get<MenuSeparator>(item).name)->setSeparator(true);
            }
        }
    }
}

void Menus::AddEntry(QMenu& menu, const Command& command, const RunCommand& run) {
    QAction* action = AddAction(menu, command.name);
    action->setCheckable(command.checkable);
    action->setChecked(command.checkable);
    action->setVisible(!command.hidden);
    action->setShortcut(command.shortcut);
    QObject::connect(action, &QAction::triggered, &bar_, [run, &command] { run(command); });
}

void Menus::ApplyCaptions(Language language) {
    for (const MenuDescription& description : menus_) {
        Menu(description.name).setTitle(ToQString(TableText(language, description.text)));
    }
    for (const Command* command : CommandsOf(menus_)) {
        bar_.findChild<QAction*>(ToQString(command->name))->setText(ToQString(TableText(language, *command->text)));
    }
}

QMenu& Menus::Menu(std::string_view name) const {
    return *bar_.findChild<QMenu*>(ToQString(name), Qt::FindDirectChildrenOnly);
}

} // namespace zelvor
