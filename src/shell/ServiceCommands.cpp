#include "shell/ServiceCommands.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <utility>

#include "controls/PendingEdit.h"
#include "platform/Services.h"
#include "service/DJJInfoForm.h"
#include "service/TestForm.h"

namespace zelvor {

namespace {

constexpr int DialogPollMilliseconds = 50;

} // namespace

ServiceCommands::ServiceCommands(Session& session, Services& services, MainWindow mainWindow)
    : session_(session), services_(services), mainWindow_(std::move(mainWindow)), block_(mainWindow_.window) {}

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
    // Disabling the main window would disable a dialog or question over it too.
    if (QApplication::activeModalWidget() == nullptr) {
        block_.Begin();
    }
}

void ServiceCommands::OnInformationReady() {
    WhenNoDialogIsUp([this] { ShowOver(new DJJInfoForm(session_, services_, &mainWindow_.window)); });
}

void ServiceCommands::OnTestModeReady() {
    WhenNoDialogIsUp([this] {
        auto* window = new TestForm(session_, services_, &mainWindow_.window);
        connect(window, &TestForm::Activated, this, mainWindow_.OnTestModeActive);
        ShowOver(window);
    });
}

/// The user may have opened a dialog while the radio was asked.
void ServiceCommands::WhenNoDialogIsUp(const std::function<void()>& show) {
    if (QApplication::activeModalWidget() == nullptr) {
        block_.Begin();
        show();
    } else {
        QTimer::singleShot(DialogPollMilliseconds, this, [this, show] { WhenNoDialogIsUp(show); });
    }
}

template<typename Window>
void ServiceCommands::ShowOver(Window* window) {
    window->setEnabled(true); // a window of a disabled one begins disabled
    connect(window, &Window::Unloaded, this, [this] { block_.End(); });
    window->show();
}

} // namespace zelvor
