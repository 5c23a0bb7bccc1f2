#include "shell/ServiceCommands.h"

#include <QApplication>
#include <QWidget>
#include <utility>

#include "controls/WindowState.h"
#include "platform/MessageBoxes.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "service/DJJInfoForm.h"
#include "service/TestForm.h"
#include "text/CommonTexts.h"

namespace zelvor {

namespace {

// Milliseconds.
constexpr int DialogPoll = 50;
constexpr int NoticeTime = 15000;

constexpr int Percent = 100;

/// What a command says of itself.
struct TaskTexts {
    TextPair running; // and the percentage
    TextPair ended;
    TextPair open;
};
constexpr TaskTexts InformationTexts{
    {"Reading radio information: ", "正在读取对讲机信息："},
    {"Radio information was not read: another command was chosen.", "未读取对讲机信息：已选择其他命令。"},
    {"Radio Information is still open. Close it before you leave Zelvor.",
     "对讲机信息窗口仍未关闭。请先将其关闭，再退出 Zelvor。"}};
constexpr TaskTexts TestModeTexts{
    {"Entering test mode: ", "正在进入测试模式："},
    {"Test mode was not entered: another command was chosen.", "未进入测试模式：已选择其他命令。"},
    {"Test Mode is still open. Close it before you leave Zelvor.", "测试模式仍未关闭。请先将其关闭，再退出 Zelvor。"}};

const TaskTexts& TextsOf(RadioTask task) {
    return task == RadioTask::Information ? InformationTexts : TestModeTexts;
}

} // namespace

ServiceCommands::ServiceCommands(const ProgramState& state, Services& services, QWidget& mainWindow)
    : state_(state), services_(services), mainWindow_(mainWindow), block_(mainWindow),
      notice_(services.clock.MakeTimer("tmrNotice")) {
    dialogPoll_.setSingleShot(true);
    dialogPoll_.setInterval(DialogPoll);
    connect(&dialogPoll_, &QTimer::timeout, this, &ServiceCommands::ShowWindowWhenNoDialogIsUp);
    notice_->SetInterval(NoticeTime);
    notice_->OnTick = [this] { Say({}); };
}

ServiceCommands::~ServiceCommands() = default;

void ServiceCommands::Start(RadioTask task) {
    if (task_ == task) {
        return;
    }
    EndForAnother();
    task_ = task;
    if (task == RadioTask::Information) {
        Engine().StartInformation();
    } else {
        Engine().StartTestMode();
    }
}

void ServiceCommands::EndForAnother() {
    if (task_ == RadioTask::None) {
        return;
    }
    engine_->Abort();
    dialogPoll_.stop();
    Say(ToQString(TextsOf(std::exchange(task_, RadioTask::None)).ended.In(CurrentLanguage())));
    notice_->SetEnabled(true);
}

/// Ends the time of an earlier text.
void ServiceCommands::Say(const QString& text) {
    notice_->SetEnabled(false);
    emit ExchangeTold(text);
}

EntryEngine& ServiceCommands::Engine() {
    if (!engine_) {
        port_ = services_.ports.Make("MSComm1");
        const RadioLink link{state_.link, *port_, services_.clock, services_.messages, CurrentLanguage()};
        engine_ = std::unique_ptr<EntryEngine>(new EntryEngine(state_.document, state_.service, link, *this));
    }
    return *engine_;
}

void ServiceCommands::UseLanguage() {
    if (engine_) {
        engine_->SetLanguage(CurrentLanguage());
    }
}

Language ServiceCommands::CurrentLanguage() const {
    return state_.windows.LanguageFlag;
}

void ServiceCommands::OnInformation(const std::string& record) {
    emit InformationRead(record);
}

void ServiceCommands::OnExchangeDone() {
    // Disabling the main window would disable a dialog or question over it too.
    if (QApplication::activeModalWidget() == nullptr) {
        block_.Begin();
    }
}

void ServiceCommands::OnInformationReady() {
    ShowWindowWhenNoDialogIsUp();
}

void ServiceCommands::OnTestModeReady() {
    ShowWindowWhenNoDialogIsUp();
}

void ServiceCommands::OnProgress(int replies, int all) {
    const std::string_view text = TextsOf(task_).running.In(CurrentLanguage());
    Say(ToQString(text) + QStringLiteral("%1 %").arg(replies * Percent / all));
}

void ServiceCommands::OnExchangeEnded() {
    task_ = RadioTask::None;
    Say({});
}

/// The user may have opened a dialog while the radio was asked.
void ServiceCommands::ShowWindowWhenNoDialogIsUp() {
    if (QApplication::activeModalWidget() != nullptr) {
        dialogPoll_.start();
        return;
    }
    block_.Begin();
    Say({});
    ShowWindow(std::exchange(task_, RadioTask::None));
}

void ServiceCommands::ShowWindow(RadioTask task) {
    openTask_ = task;
    if (task == RadioTask::Information) {
        ShowOver(new DJJInfoForm(state_.document, state_.service, CurrentLanguage(), services_, &mainWindow_));
        return;
    }
    auto* window =
        new TestForm(state_.document, state_.link, state_.service, CurrentLanguage(), services_, &mainWindow_);
    connect(window, &TestForm::Activated, this, &ServiceCommands::TestModeActivated);
    ShowOver(window);
}

template<typename Window>
void ServiceCommands::ShowOver(Window* window) {
    window->setEnabled(true); // a window of a disabled one begins disabled
    open_ = window;
    connect(window, &Window::Unloaded, this, [this] {
        open_.clear();
        block_.End();
    });
    window->show();
}

bool ServiceCommands::KeepsProgramOpen() {
    if (!open_) {
        return false;
    }
    const Language language = CurrentLanguage();
    services_.messages.Show({.title = std::string(commontexts::Warning.In(language)),
                             .text = std::string(TextsOf(openTask_).open.In(language)),
                             .icon = MessageIcon::Exclamation,
                             .buttons = MessageButtons::Ok});
    if (open_ && open_->isEnabled()) { // a tuning dialog over it is in front already
        open_->raise();
        open_->activateWindow();
    }
    return true;
}

} // namespace zelvor
