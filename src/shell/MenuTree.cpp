#include "shell/MenuTree.h"

#include <QWidget>
#include <algorithm>

#include "shell/ChildWindowRows.h"
#include "shell/ChildWindows.h"
#include "shell/DialogCommands.h"
#include "shell/LanguageCommand.h"
#include "shell/ServiceCommands.h"
#include "shell/SessionCommands.h"
#include "shell/TransferCommands.h"

namespace zelvor {

namespace {

MenuDescription FileMenu() {
    return {"MnuFile",
            Text::MenuFile,
            {Command{.name = "MnuFileNew",
                     .text = Text::MenuNew,
                     .shortcut = QKeySequence::New,
                     .button = {{1, Text::NewTip, IconShape::New}},
                     .endsExchange = true,
                     .run = [](Program& program) { program.document.New(); }},
             Command{.name = "MnuFileOpen",
                     .text = Text::MenuOpen,
                     .shortcut = QKeySequence::Open,
                     .button = {{2, Text::OpenTip, IconShape::Open}},
                     .endsExchange = true,
                     .run = [](Program& program) { program.document.Open(); }},
             Command{.name = "MnuFileSave",
                     .text = Text::MenuSave,
                     .shortcut = QKeySequence::Save,
                     .button = {{3, Text::SaveTip, IconShape::Save}},
                     .run = [](Program& program) { program.document.Save(); }},
             Command{.name = "MnuFileSaveAs",
                     .text = Text::MenuSaveAs,
                     .shortcut = QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
                     .run = [](Program& program) { program.document.SaveAs(); }},
             MenuSeparator{"MnuFileBlank1"},
             Command{.name = "MnuFilePrint",
                     .text = Text::MenuPrint,
                     .shortcut = QKeySequence::Print,
                     .button = {{5, Text::PrintTip, IconShape::Print}},
                     .run = [](Program& program) { program.dialogs.ShowPrintList(); }},
             Command{.name = "MnuFilePreview", .text = Text::MenuPrintPreview, .hidden = true},
             MenuSeparator{"MnuFileBlank2"},
             Command{.name = "MnuFileExit",
                     .text = Text::MenuExit,
                     .shortcut = QKeySequence(Qt::CTRL | Qt::Key_Q),
                     .commitsFirst = false, // the close does, whatever asks for it
                     .run = [](Program& program) { program.mainWindow.close(); }}}};
}

MenuDescription ModelMenu() {
    return {"MnuModel",
            Text::MenuModel,
            {Command{.name = "MnuModelInformation",
                     .text = Text::MenuModelInformation,
                     .endsExchange = true,
                     .run = [](Program& program) { program.document.ChangeModel(); }}}};
}

MenuDescription EditMenu() {
    MenuDescription menu{"MnuEdit", Text::MenuEdit, {}};
    for (const ChildWindowRow& row : ChildWindowRows()) {
        if (!row.menu) {
            continue;
        }
        if (!row.menu->separator.empty()) {
            menu.items.emplace_back(MenuSeparator{row.menu->separator});
        }
        menu.items.emplace_back(
            Command{.name = row.menu->name,
                    .text = row.menu->text,
                    .commitsFirst = false,
                    .run = [window = row.window](Program& program) { program.children.OpenChildWindow(window); }});
    }
    return menu;
}

MenuDescription ProgramMenu() {
    return {"MnuProgram",
            Text::MenuProgram,
            {Command{.name = "MnuProgramRead",
                     .text = Text::MenuReadFromRadio,
                     .button = {{7, Text::ReadTip, IconShape::Read}},
                     .endsExchange = true,
                     .run = [](Program& program) { program.transfers.Read(); }},
             Command{.name = "MnuProgramWrite",
                     .text = Text::MenuWriteToRadio,
                     .button = {{9, Text::WriteTip, IconShape::Write}},
                     .endsExchange = true,
                     .run = [](Program& program) { program.transfers.Write(); }},
             Command{.name = "MnuProgramTestMode",
                     .text = Text::MenuTestMode,
                     .run = [](Program& program) { program.service.EnterTestMode(); }},
             Command{.name = "MnuProgramMemoryMap", // by its gesture only
                     .text = Text::MenuMemoryMap,
                     .hidden = true,
                     .endsExchange = true,
                     .run = [](Program& program) { program.document.EditMemoryMap(); }}}};
}

MenuDescription ToolMenu() {
    return {"MnuTool",
            Text::MenuTools,
            {Command{.name = "MnuToolRadioInformation",
                     .text = Text::MenuRadioInformation,
                     .run = [](Program& program) { program.service.ShowInformation(); }}}};
}

MenuDescription SetupMenu() {
    return {"MnuSetup",
            Text::MenuSetup,
            {Command{.name = "MnuSetupCommunicationPort",
                     .text = Text::MenuCommunicationPort,
                     .endsExchange = true,
                     .run = [](Program& program) { program.dialogs.ShowCommunicationPort(); }},
             Command{.name = "MnuSetupLanguageFileSetup",
                     .text = Text::MenuLanguageFileSetup,
                     .run = [](Program& program) { program.language.Choose(); }}}};
}

void Flip(QWidget& bar) {
    bar.setVisible(bar.isHidden());
}

MenuDescription ViewMenu() {
    return {"MnuView",
            Text::MenuView,
            {Command{.name = "MnuViewTreeView",
                     .text = Text::MenuTreeView,
                     .commitsFirst = false,
                     .run = [](Program& program) { program.children.OpenChildWindow(ChildWindow::Navigator); }},
             MenuSeparator{"MnuViewBlank"},
             Command{.name = "MnuViewToolbar",
                     .text = Text::MenuToolbar,
                     .checkable = true,
                     .commitsFirst = false,
                     .run = [](Program& program) { Flip(program.toolbar); }},
             Command{.name = "MnuViewStatusBar",
                     .text = Text::MenuStatusBar,
                     .checkable = true,
                     .commitsFirst = false,
                     .run = [](Program& program) { Flip(program.statusBar); }}}};
}

Command Arrange(std::string_view name, Text text, Arrangement arrangement) {
    return {.name = name, .text = text, .commitsFirst = false, .run = [arrangement](Program& program) {
                program.children.Arrange(arrangement);
            }};
}

MenuDescription WindowMenu() {
    return {"MnuWindow",
            Text::MenuWindow,
            {Arrange("MnuWindowCascade", Text::MenuCascade, Arrangement::Cascade),
             Arrange("MnuWindowHorizontally", Text::MenuTileHorizontally, Arrangement::TileHorizontally),
             Arrange("MnuWindowVertically", Text::MenuTileVertically, Arrangement::TileVertically),
             Arrange("MnuWindowArrangeIcon", Text::MenuArrangeIcons, Arrangement::Icons),
             MenuSeparator{"MnuWindowBlank1"},
             Command{.name = "MnuWindowCloseAll",
                     .text = Text::MenuCloseAllWindows,
                     .commitsFirst = false,
                     .run = [](Program& program) { program.children.CloseAll(); }},
             MenuSeparator{"MnuWindowBlank2"}}};
}

MenuDescription HelpMenu() {
    return {"MnuHelp",
            Text::MenuHelp,
            {Command{.name = "MnuHelpTopics",
                     .text = Text::MenuHelpTopics,
                     .commitsFirst = false,
                     .run = [](Program& program) { program.dialogs.ShowHelpTopics(); }},
             MenuSeparator{"MnuHelpBlank"},
             Command{.name = "MnuHelpAbout",
                     .text = Text::MenuAboutZelvor,
                     .button = {{11, Text::AboutTip, IconShape::About}},
                     .run = [](Program& program) { program.dialogs.ShowAbout(); }}}};
}

} // namespace

std::vector<MenuDescription> MenuTree() {
    return {FileMenu(),  ModelMenu(), EditMenu(),   ProgramMenu(), ToolMenu(),
            SetupMenu(), ViewMenu(),  WindowMenu(), HelpMenu()};
}

std::vector<Command> KeyCommands() {
    return {Command{.shortcut = QKeySequence::HelpContents, .commitsFirst = false, .run = [](Program& program) {
                        program.dialogs.ShowHelpOfActiveWindow();
                    }}};
}

std::vector<const Command*> CommandsOf(std::span<const MenuDescription> menus) {
    std::vector<const Command*> commands;
    for (const MenuDescription& menu : menus) {
        for (const MenuItem& item : menu.items) {
            if (const auto* command = std::get_if<Command>(&item)) {
                commands.push_back(command);
            }
        }
    }
    return commands;
}

const Command& CommandOf(std::span<const MenuDescription> menus, std::string_view name) {
    const auto commands = CommandsOf(menus);
    return **std::ranges::find(commands, name, [](const Command* command) { return command->name; });
}

} // namespace zelvor
