#include "shell/DialogCommands.h"

#include <QWidget>

#include "controls/ChildForm.h"
#include "controls/WindowState.h"
#include "help/HelpTopic.h"
#include "help/HelpViewer.h"
#include "link/ComForm.h"
#include "platform/Services.h"
#include "print/frmPrintList.h"
#include "shell/AboutForm.h"
#include "shell/ChildWindows.h"

namespace zelvor {

namespace {

constexpr std::string_view FirstPage = "general.htm";

} // namespace

DialogCommands::DialogCommands(const ProgramState& state, Services& services, const ChildWindows& children,
                               QWidget& mainWindow)
    : state_(state), services_(services), children_(children), mainWindow_(mainWindow) {}

void DialogCommands::ShowCommunicationPort() {
    ComForm dialog(state_.link, state_.windows.LanguageFlag, services_, &mainWindow_);
    connect(&dialog, &ComForm::PortChosen, this, &DialogCommands::PortChosen);
    dialog.exec();
}

void DialogCommands::ShowPrintList() {
    frmPrintList(state_.document, state_.windows.LanguageFlag, services_, &mainWindow_).exec();
}

void DialogCommands::ShowAbout() {
    AboutForm(state_.windows.LanguageFlag, &mainWindow_).exec();
}

void DialogCommands::ShowHelpTopics() {
    ShowHelpPage(FirstPage);
}

void DialogCommands::ShowHelpOfActiveWindow() {
    const ChildForm* active = children_.ActiveForm();
    ShowHelpPage(active != nullptr ? active->HelpPage() : FirstPage);
}

void DialogCommands::ShowHelpPage(std::string_view page) {
    services_.help.Show({state_.windows.LanguageFlag, page});
}

} // namespace zelvor
