#include "link/CloneEngine.h"

#include <utility>

#include "data/Document.h"
#include "link/CloneFrames.h"
#include "link/CloneTexts.h"
#include "text/CommonTexts.h"

namespace zelvor {

namespace {

// Intervals of the timers and lengths of the waits, in milliseconds.
constexpr int FirstSendInterval = 10;
constexpr int ReadTimeout = 500;
constexpr int WriteTimeout = 200;
constexpr int CloseInterval = 2;
constexpr int RefusedCloseInterval = 100;
constexpr int CompletedWait = 50;
constexpr int CompletedPause = 20;
constexpr int RefusedWait = 30;
constexpr int PromptPause = 100;
constexpr int RetryPause = 1700;
constexpr int AbandonWait = 30;

} // namespace

CloneEngine::CloneEngine(Document& document, const RadioLink& link, CloneObserver& observer)
    : document_(document), link_(link.state), port_(link.state, link.port), clock_(link.clock),
      messages_(link.messages), language_(link.language), observer_(observer), ctrTimer_(clock_.MakeTimer("ctrTimer")),
      messageTimer_(clock_.MakeTimer("messageTimer")) {
    ctrTimer_->OnTick = [this] { OnSendTimer(); };
    messageTimer_->OnTick = [this] { OnTimeout(); };
    port_.Listen([this](ReceiveReason reason) { OnReceive(reason); });
}

void CloneEngine::Load() {
    port_.SetUp();
    port_.Close();
    ctrTimer_->SetEnabled(false);
    messageTimer_->SetEnabled(false);
    state_ = TransferState{};
    link_.SentState = NothingSent;
    progressMaximum_ = IsReading() ? ReadBlockCount : WritePacketCount;
    loaded_ = true;
    deaf_ = false;
    abandoned_ = false;
    SetProgress(0);
}

void CloneEngine::Start() {
    if (!loaded_ || !MayUnload()) {
        return;
    }
    BeginSession();
    const bool open = port_.SetUp();
    observer_.OnButtonsEnabled(false);
    state_.Running = true;
    state_.Finished = false;
    if (open) {
        Run(*ctrTimer_, FirstSendInterval);
    } else {
        FailFast();
    }
}

void CloneEngine::Cancel() {
    if (!MayUnload()) {
        return;
    }
    state_.CancelPressed = true;
    observer_.OnUnloadRequested();
}

bool CloneEngine::Unload() {
    loaded_ = false;
    ctrTimer_->SetEnabled(false);
    messageTimer_->SetEnabled(false);
    port_.Close();
    return std::exchange(state_.CancelPressed, false);
}

void CloneEngine::OnSendTimer() {
    if (!loaded_ || link_.CommState == link_.SentState) {
        return;
    }
    const bool open = port_.Open();
    ctrTimer_->SetEnabled(false);
    messageTimer_->SetEnabled(false);
    if (!open) {
        if (!abandoned_) {
            FailFast();
        }
        return;
    }
    SendCommand();
    link_.SentState = link_.CommState;
    if (Current() != ConnectState::EndSession) {
        Run(*messageTimer_, IsReading() ? ReadTimeout : WriteTimeout);
    }
    if (!abandoned_) {
        RunEndTest();
    }
}

void CloneEngine::OnTimeout() {
    if (!loaded_) {
        return;
    }
    messageTimer_->SetEnabled(false);
    if (state_.Finished) {
        observer_.OnUnloadRequested();
    } else {
        PromptForConnection();
    }
}

bool CloneEngine::IsReading() const {
    return link_.TransferMode == transfer::Reading;
}

void CloneEngine::BeginSession() {
    link_.StepCount = 1;
    link_.AddrHigh = 0;
    link_.AddrLow = 0;
    state_.ReadDone = false;
    Enter(ConnectState::EnterProgramming);
}

void CloneEngine::Run(Timer& timer, int milliseconds) {
    if (!loaded_) { // closed from inside a wait or a message
        return;
    }
    timer.SetInterval(milliseconds);
    timer.SetEnabled(true);
}

void CloneEngine::SendCommand() {
    switch (Current()) {
    case ConnectState::EnterProgramming:
        port_.ExpectBytes(1);
        port_.Send(wire::Entry);
        break;
    case ConnectState::RequestIdentity:
        state_.RadioIdentity.clear();
        port_.Send(wire::IdentityRequest);
        port_.ExpectBytes(1);
        break;
    case ConnectState::ConfirmIdentity:
        port_.Send(wire::Acknowledge);
        port_.ExpectBytes(1);
        break;
    case ConnectState::TransferData:
        SendData();
        break;
    case ConnectState::CloseData:
        port_.ExpectBytes(1);
        port_.Send(IsReading() ? wire::Acknowledge : wire::End);
        break;
    case ConnectState::EndSession:
        port_.Send(wire::End);
        port_.ExpectBytes(1);
        break;
    }
}

void CloneEngine::SendData() {
    if (IsReading()) {
        port_.ExpectBytes(wire::ReadReplyLength);
        port_.Send(ReadBlockCommand(link_));
    } else {
        BuildWritePacket(link_, document_.Image);
        port_.ExpectBytes(1);
        port_.SendBuffer();
    }
}

void CloneEngine::RunEndTest() {
    const bool ending = Current() == ConnectState::EndSession;
    if (link_.TransferMode == transfer::Reading) {
        if (ending && link_.StepCount >= RepeatedReadStep) {
            Complete(clonetexts::ReadingCompleted);
        }
    } else if (link_.TransferMode == transfer::Writing) {
        if ((ending || Current() == ConnectState::CloseData) && link_.StepCount >= WriteDoneStep) {
            Complete(clonetexts::WritingCompleted);
        } else if (ending) {
            EndRefused();
        }
    }
}

void CloneEngine::Complete(const TextPair& text) {
    const bool reading = IsReading();
    link_.TransferMode = transfer::Done;
    messageTimer_->SetEnabled(false);
    observer_.OnTransferDone();
    clock_.WaitProcessingEvents(CompletedWait);
    port_.Close();
    clock_.Sleep(CompletedPause);
    messages_.Show({.title = "",
                    .text = std::string(text.In(language_)),
                    .icon = MessageIcon::Information,
                    .buttons = MessageButtons::Ok,
                    .defaultButton = MessageAnswer::Ok});
    if (reading) {
        document_.Priority.SetError(false);
        document_.RenameToDefault();
        observer_.OnReadCompleted();
    } else {
        document_.ClearWriteFlags();
        observer_.OnWriteCompleted();
    }
    state_.Finished = true;
    Run(*messageTimer_, CloseInterval);
}

void CloneEngine::EndRefused() {
    state_.Finished = true;
    clock_.WaitProcessingEvents(RefusedWait);
    Run(*messageTimer_, RefusedCloseInterval);
}

void CloneEngine::PromptForConnection() {
    clock_.Sleep(PromptPause);
    deaf_ = true;
    state_.Prompting = true;
    const bool again = port_.AsksToRetry(messages_, language_, [this] { observer_.OnStandstill(); });
    state_.Prompting = false;
    if (again) {
        Retry();
    } else {
        Abandon();
    }
}

void CloneEngine::Retry() {
    state_.Pausing = true;
    observer_.OnStandstill();
    clock_.Sleep(RetryPause);
    state_.Pausing = false;
    link_.SentState = NothingSent;
    BeginSession();
    SetProgress(0);
    port_.Clear();
    deaf_ = false;
    state_.Running = true;
    Run(*ctrTimer_, FirstSendInterval);
}

void CloneEngine::Abandon() {
    abandoned_ = true;
    link_.SentState = NothingSent;
    port_.Send(wire::End);
    // Inside this wait the tick sends the current state's command once more, behind the End. Intended.
    Run(*ctrTimer_, StepInterval);
    clock_.WaitProcessingEvents(AbandonWait);
    observer_.OnButtonsEnabled(true);
    state_.Finished = true;
    observer_.OnUnloadRequested();
}

} // namespace zelvor
