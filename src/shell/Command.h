#pragma once

#include <QKeySequence>
#include <functional>
#include <optional>
#include <string_view>

#include "shell/Icons.h"
#include "text/Text.h"

class QWidget;

namespace zelvor {

class ChildWindows;
class DialogCommands;
class LanguageCommand;
class ServiceCommands;
class SessionCommands;
class TransferCommands;

/// What the commands of the program work on.
struct Program {
    QWidget& mainWindow;
    QWidget& toolbar;
    QWidget& statusBar;
    SessionCommands& document;
    TransferCommands& transfers;
    ServiceCommands& service;
    LanguageCommand& language;
    DialogCommands& dialogs;
    ChildWindows& children;
};

/// The button of a command: Toolbar1(index).
struct CommandButton {
    int index;
    Text toolTip;
    IconShape icon;
};

/// A command of the program. Menu, tool bar and keys are made from it.
struct Command {
    std::string_view name = {}; // of its entry in a menu
    std::optional<Text> text = {};
    QKeySequence shortcut = {};
    std::optional<CommandButton> button = {};
    bool checkable = false; // the entry bears a check mark, set from the start
    bool hidden = false;    // the entry, from the start; nothing shows it again

    /// Replaces the document or wants the port: ends what the radio is being asked in the background.
    bool endsExchange = false;
    /// Commits what is being edited, since it reads or replaces the image or shows a dialog.
    bool commitsFirst = true;
    std::function<void(Program& program)> run = {}; // none: the entry does nothing
};

using RunCommand = std::function<void(const Command& command)>;

} // namespace zelvor
