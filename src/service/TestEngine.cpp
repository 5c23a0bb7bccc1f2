#include "service/TestEngine.h"

#include "data/Document.h"
#include "data/TuneItems.h"
#include "link/CloneFrames.h"
#include "service/ServiceFrames.h"

namespace zelvor {

namespace {

// Milliseconds.
constexpr int Timeout = 200;
constexpr int LoadInterval = 5;
constexpr int ChannelInterval = 50;
constexpr int CommandInterval = 1;
constexpr int SelectInterval = 30;
constexpr int TunePause = 30;
constexpr int EndWait = 80;
constexpr int TuningPause = 30;

} // namespace

TestEngine::TestEngine(Document& document, ServiceState& service, const RadioLink& link, TestObserver& observer)
    : CommandExchange(link, "tmrOverTime", Timeout), document_(document), service_(service), observer_(observer),
      endTimer_(clock_.MakeTimer("endTimer")) {
    endTimer_->SetInterval(EndWait);
    endTimer_->OnTick = [this] { SendEnd(); };
}

void TestEngine::Load() {
    link_.SentState = NothingSent;
    port_.SetUp();
    port_.Close();
    service_.TestAborted = false;
    service_.NarrowMode = false;
    Ask(TestCommandKind::SetChannel, LoadInterval, service_.TestChannelNo);
    Ask(TestCommandKind::SetSignalling, CommandInterval, signalling_);
}

void TestEngine::Ask(TestCommandKind kind, int interval, int argument) {
    CommandExchange::Ask({.kind = static_cast<int>(kind), .argument = argument}, interval);
}

bool TestEngine::Replaces(const RadioCommand& later, const RadioCommand& earlier) const {
    const auto isWidth = [](const RadioCommand& command) {
        return command.kind == static_cast<int>(TestCommandKind::Wide) ||
               command.kind == static_cast<int>(TestCommandKind::Narrow);
    };
    return later.kind == earlier.kind || (isWidth(later) && isWidth(earlier)) ||
           later.kind == static_cast<int>(TestCommandKind::Close) ||
           earlier.kind == static_cast<int>(TestCommandKind::Tune);
}

void TestEngine::ChooseChannel(int number) {
    service_.TestChannelNo = number;
    Ask(TestCommandKind::SetChannel, ChannelInterval, number);
}

void TestEngine::ChooseSignalling(int number) {
    signalling_ = number;
    if (!IsAwaitingReply()) {
        port_.Clear();
    }
    Ask(TestCommandKind::SetSignalling, CommandInterval, number);
}

void TestEngine::ChooseWide(bool wide) {
    Ask(wide ? TestCommandKind::Wide : TestCommandKind::Narrow, CommandInterval);
}

void TestEngine::Tune() {
    if (!IsAwaitingReply()) {
        port_.Clear();
    }
    Ask(TestCommandKind::Tune, CommandInterval, service_.TuneItem);
}

void TestEngine::Close() {
    if (service_.TestAborted) {
        Leave();
    } else if (!RefusesCommands()) {
        AskLast({.kind = static_cast<int>(TestCommandKind::Close), .argument = signalling_}, CommandInterval);
    }
}

void TestEngine::SendStep() {
    switch (State()) {
    case SendIt:
        SendFirst();
        break;
    case Confirm:
        if (Kind() == TestCommandKind::Close) {
            endTimer_->SetEnabled(true);
        } else {
            port_.Send(wire::Acknowledge);
        }
        break;
    default:
        port_.Send({TuneItemOf(Current().argument).code, service::Select});
    }
}

void TestEngine::SendFirst() {
    switch (Kind()) {
    case TestCommandKind::SetChannel:
        port_.ExpectBytes(service::ChannelRecordLength);
        port_.Send({service::SetChannel, static_cast<std::uint8_t>(Current().argument)});
        break;
    case TestCommandKind::SetSignalling:
    case TestCommandKind::Close:
        port_.Send({service::SetSignalling, static_cast<std::uint8_t>(Current().argument)});
        break;
    case TestCommandKind::Tune:
        clock_.Sleep(TunePause);
        port_.ExpectBytes(TuningRecordSize);
        port_.Send({service::ReadTuningData});
        break;
    case TestCommandKind::Wide:
        service_.NarrowMode = false;
        port_.Send({service::Wide});
        break;
    case TestCommandKind::Narrow:
        service_.NarrowMode = true;
        port_.Send({service::Narrow});
        break;
    case TestCommandKind::Ptt: // CommandExchange's
        break;
    }
}

/// The radio's answer is not waited for.
void TestEngine::SendEnd() {
    port_.Send(wire::End);
    Leave();
}

void TestEngine::Leave() {
    endTimer_->SetEnabled(false);
    if (EndCommands()) {
        observer_.OnClosed();
    }
}

void TestEngine::ReceiveStep() {
    switch (State()) {
    case SendIt:
        ReceiveFirst();
        break;
    case Confirm:
        ReceiveConfirmation();
        break;
    default:
        ReceiveSelection();
    }
}

void TestEngine::ReceiveFirst() {
    switch (Kind()) {
    case TestCommandKind::SetChannel: {
        const std::size_t length = port_.Read(service::ChannelRecordLength).size();
        if (length == service::ChannelRecordLength || length == 1) {
            Enter(Confirm, CommandInterval);
        } else {
            FailFast(FailureInterval);
        }
        break;
    }
    case TestCommandKind::Tune:
        ReceiveTuningData();
        break;
    case TestCommandKind::Close:
        if (port_.ReadsAcknowledge()) {
            Enter(Confirm, CommandInterval);
        } else {
            FailFast(FailureInterval);
        }
        break;
    case TestCommandKind::SetSignalling:
    case TestCommandKind::Wide:
    case TestCommandKind::Narrow:
        if (port_.ReadsAcknowledge()) {
            Finish();
        } else {
            FailFast(FailureInterval);
        }
        break;
    case TestCommandKind::Ptt: // CommandExchange's
        break;
    }
}

void TestEngine::ReceiveTuningData() {
    const std::vector<std::uint8_t> record = port_.Read(TuningRecordSize);
    StoreTuningData(record, document_.Image, service_.Values);
    if (record.size() == TuningRecordSize) {
        Enter(Confirm, CommandInterval);
    } else {
        FailFast(FailureInterval);
    }
}

void TestEngine::ReceiveConfirmation() {
    if (port_.Read(1).empty()) { // any byte counts as an acknowledgement
        FailFast(FailureInterval);
        return;
    }
    switch (Kind()) {
    case TestCommandKind::Close: // End follows in its own time
        break;
    case TestCommandKind::Tune:
        Enter(SelectItem, SelectInterval);
        break;
    default:
        Finish();
    }
}

void TestEngine::ReceiveSelection() {
    if (!port_.ReadsAcknowledge()) {
        FailFast(FailureInterval);
        return;
    }
    service_.TuneItem = Current().argument;
    StopCommands();
    clock_.Sleep(TuningPause);
    observer_.OnTuningReady();
}

void TestEngine::GiveUp() {
    StopCommands();
    service_.TestAborted = true;
    observer_.OnUnloadRequested();
}

bool TestEngine::EndsAtTimeout() {
    if (IsShortChannelReply()) {
        OnReceive(ReceiveReason::DataReceived);
        return true;
    }
    return service_.TestAborted;
}

/// A radio that answers Set channel with one byte never reaches the threshold of its eight.
bool TestEngine::IsShortChannelReply() const {
    return IsAwaitingReply() && State() == SendIt && Kind() == TestCommandKind::SetChannel && !IsDropDue() &&
           port_.WaitingBytes() == 1;
}

} // namespace zelvor
