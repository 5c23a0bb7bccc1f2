#include "service/TestEngine.h"

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
constexpr int FailureInterval = 2;
constexpr int TunePause = 30;
constexpr int EndWait = 80;
constexpr int TuningPause = 30;
constexpr int LoopStep = 1;

} // namespace

TestEngine::TestEngine(Session& session, SerialPort& port, Clock& clock, MessageBoxes& messages, TestObserver& observer)
    : RadioExchange(session, port, clock, messages, "tmrOverTime", Timeout), observer_(observer) {}

void TestEngine::Load() {
    link_.SentState = NothingSent;
    port_.SetUp();
    port_.Close();
    session_.Service.TestAborted = false;
    session_.Service.NarrowMode = false;
    TestCommand = TestCommandKind::SetChannel;
    Enter(SendIt, LoadInterval);
}

void TestEngine::Ask(TestCommandKind command, int interval) {
    if (closing_) {
        return;
    }
    if (command != TestCommandKind::Ptt) {
        DropPttFirst();
    }
    TestCommand = command;
    if (!IsAwaitingReply()) {
        link_.SentState = NothingSent;
    }
    Request(SendIt, interval);
}

void TestEngine::ChooseChannel(int number) {
    ChannelOnly = true;
    session_.Service.TestChannelNo = number;
    Ask(TestCommandKind::SetChannel, ChannelInterval);
}

void TestEngine::ChooseSignalling(int number) {
    signalling_ = number;
    if (!IsAwaitingReply()) {
        port_.Clear();
    }
    Ask(TestCommandKind::SetSignalling, CommandInterval);
}

void TestEngine::PressPtt() {
    PttOn = !PttOn;
    Ask(TestCommandKind::Ptt, CommandInterval);
}

void TestEngine::ChooseWide(bool wide) {
    Ask(wide ? TestCommandKind::Wide : TestCommandKind::Narrow, CommandInterval);
}

void TestEngine::Tune() {
    ChannelOnly = false;
    if (!IsAwaitingReply()) {
        port_.Clear();
    }
    tunedItem_ = session_.Service.TuneItem;
    Ask(TestCommandKind::Tune, CommandInterval);
}

void TestEngine::Close() {
    if (closing_) {
        return;
    }
    if (!session_.Service.TestAborted) {
        CloseDone = false;
        Ask(TestCommandKind::Close, CommandInterval);
        closing_ = true;
        while (!CloseDone) {
            clock_.WaitProcessingEvents(LoopStep);
        }
    }
    closing_ = true;
    Stop();
    port_.Close();
}

void TestEngine::SendCommand() {
    switch (State()) {
    case SendIt:
        SendFirst();
        break;
    case Confirm:
        if (TestCommand == TestCommandKind::Close) {
            SendEnd();
        } else {
            port_.ExpectBytes(1);
            port_.Send(wire::Acknowledge);
        }
        break;
    default:
        port_.ExpectBytes(1);
        port_.Send({TuneItemOf(tunedItem_).code, service::Select});
    }
}

void TestEngine::SendFirst() {
    port_.ExpectBytes(1);
    if (PttDropPending) {
        SendPtt(false);
        return;
    }
    switch (TestCommand) {
    case TestCommandKind::SetChannel:
        port_.ExpectBytes(service::ChannelRecordLength);
        port_.Send({service::SetChannel, static_cast<std::uint8_t>(session_.Service.TestChannelNo)});
        break;
    case TestCommandKind::SetSignalling:
    case TestCommandKind::Close:
        port_.Send({service::SetSignalling, static_cast<std::uint8_t>(signalling_)});
        break;
    case TestCommandKind::Ptt:
        SendPtt(PttOn);
        break;
    case TestCommandKind::Tune:
        clock_.Sleep(TunePause);
        port_.ExpectBytes(TuningRecordSize);
        port_.Send({service::ReadTuningData});
        break;
    case TestCommandKind::Wide:
        session_.Service.NarrowMode = false;
        port_.Send({service::Wide});
        break;
    case TestCommandKind::Narrow:
        session_.Service.NarrowMode = true;
        port_.Send({service::Narrow});
        break;
    }
}

/// The dialog goes on closing while this waits; the radio's answer is not waited for.
void TestEngine::SendEnd() {
    clock_.WaitProcessingEvents(EndWait);
    CloseDone = true;
    port_.Send(wire::End);
}

void TestEngine::OnKeyed(bool keyed) {
    observer_.OnLamps(keyed);
}

void TestEngine::Receive() {
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
    if (PttDropPending) {
        ReceivePttDrop();
        return;
    }
    switch (TestCommand) {
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
    case TestCommandKind::Ptt:
        ReceivePtt();
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
        if (!port_.ReadsAcknowledge()) {
            FailFast(FailureInterval);
        }
        break;
    }
}

void TestEngine::ReceivePttDrop() {
    const bool acknowledged = port_.ReadsAcknowledge();
    observer_.OnLamps(false);
    if (!acknowledged) {
        FailFast(FailureInterval);
        return;
    }
    PttOn = false;
    OnUnkeyed();
    Enter(SendIt, CommandInterval);
}

void TestEngine::ReceivePtt() {
    if (!port_.ReadsAcknowledge()) {
        FailFast(FailureInterval);
        return;
    }
    if (!PttOn) {
        OnUnkeyed();
    }
    observer_.OnLamps(PttOn);
}

void TestEngine::ReceiveTuningData() {
    const std::vector<std::uint8_t> record = port_.Read(TuningRecordSize);
    StoreTuningData(record, session_.Image, session_.Service.Values);
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
    if (ChannelOnly) {
        ChannelOnly = false;
        return;
    }
    switch (TestCommand) {
    case TestCommandKind::Close:
        break;
    case TestCommandKind::Tune:
        Enter(SelectItem, SelectInterval);
        break;
    default:
        TestCommand = TestCommandKind::SetSignalling;
        Enter(SendIt, CommandInterval);
    }
}

void TestEngine::ReceiveSelection() {
    if (!port_.ReadsAcknowledge()) {
        FailFast(FailureInterval);
        return;
    }
    Stop();
    port_.Close();
    clock_.Sleep(TuningPause);
    session_.Service.TuneItem = tunedItem_;
    observer_.OnTuningReady();
}

void TestEngine::Retry() {
    Enter(SendIt, CommandInterval);
}

void TestEngine::GiveUp() {
    Stop();
    port_.Close();
    session_.Service.TestAborted = true;
    CloseDone = true;
    observer_.OnUnloadRequested();
}

bool TestEngine::EndsAtTimeout() {
    // A radio that answers Set channel with one byte never reaches the threshold of its eight.
    if (State() == SendIt && TestCommand == TestCommandKind::SetChannel && !PttDropPending && IsAwaitingReply() &&
        port_.WaitingBytes() == 1) {
        OnReceive(ReceiveReason::DataReceived);
        return true;
    }
    return session_.Service.TestAborted || CloseDone;
}

} // namespace zelvor
