#include "shell/ServiceCommands.h"

#include <QWidget>
#include <utility>

#include "controls/PendingEdit.h"
#include "platform/Services.h"
#include "service/DJJInfoForm.h"
#include "service/TestForm.h"

namespace zelvor {

ServiceCommands::ServiceCommands(Session& session, Services& services, MainWindow mainWindow)
    : session_(session), services_(services), mainWindow_(std::move(mainWindow)) {}

ServiceCommands::~ServiceCommands() = default;

void ServiceCommands::ShowInformation() {
    CommitPendingEdit();
    Engine().StartInformation();
}

void ServiceCommands::EnterTestMode() {
    CommitPendingEdit();
    Engine().StartTestMode();
}

void ServiceCommands::Abort() {
    if (engine_) {
        engine_->Abort();
    }
}

EntryEngine& ServiceCommands::Engine() {
    if (!engine_) {
        port_ = services_.ports.Make("MSComm1");
        engine_ =
            std::unique_ptr<EntryEngine>(new EntryEngine(session_, *port_, services_.clock, services_.messages, *this));
    }
    return *engine_;
}

void ServiceCommands::OnInformation(const std::string& record) {
    mainWindow_.GetDJJInfo(record);
}

void ServiceCommands::OnExchangeDone() {
    mainWindow_.window.setEnabled(false);
}

void ServiceCommands::OnInformationReady() {
    ShowOver(new DJJInfoForm(session_, services_, &mainWindow_.window));
}

void ServiceCommands::OnTestModeReady() {
    auto* window = new TestForm(session_, services_, &mainWindow_.window);
    connect(window, &TestForm::Activated, this, mainWindow_.OnTestModeActive);
    ShowOver(window);
}

template<typename Window>
void ServiceCommands::ShowOver(Window* window) {
    window->setEnabled(true); // a window of a disabled one begins disabled
    connect(window, &Window::Unloaded, this, [this] {
        mainWindow_.window.setEnabled(true);
        mainWindow_.window.activateWindow();
    });
    window->show();
}

} // namespace zelvor
