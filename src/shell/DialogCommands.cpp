#include "shell/DialogCommands.h"

#include <QWidget>

#include "controls/ChildForm.h"
#include "data/Session.h"
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

DialogCommands::DialogCommands(Session& session, Services& services, const ChildWindows& children, QWidget& mainWindow)
    : session_(session), services_(services), children_(children), mainWindow_(mainWindow) {}

void DialogCommands::ShowCommunicationPort() {
    ComForm dialog(session_, services_, &mainWindow_);
    connect(&dialog, &ComForm::PortChosen, this, &DialogCommands::PortChosen);
    dialog.exec();
}

void DialogCommands::ShowPrintList() {
    frmPrintList(session_, services_, &mainWindow_).exec();
}

void DialogCommands::ShowAbout() {
    AboutForm(session_, &mainWindow_).exec();
}

void DialogCommands::ShowHelpTopics() {
    ShowHelpPage(FirstPage);
}

void DialogCommands::ShowHelpOfActiveWindow() {
    const ChildForm* active = children_.ActiveForm();
    ShowHelpPage(active != nullptr ? active->HelpPage() : FirstPage);
}

void DialogCommands::ShowHelpPage(std::string_view page) {
    services_.help.Show({session_.LanguageFlag, page});
}

} // namespace zelvor
