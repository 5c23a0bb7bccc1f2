#include "service/TuningEngine.h"

#include <utility>

#include "link/CloneFrames.h"
#include "service/ServiceFrames.h"

namespace zelvor {

namespace {

// Milliseconds.
constexpr int Timeout = 100;
constexpr int StepInterval = 1;
constexpr int PageInterval = 3;
constexpr int PageConfirmInterval = 5;
constexpr int EndingInterval = 5;
constexpr int DropBeforeEndingInterval = 5;
constexpr int DropBeforePageInterval = 7;
constexpr int MeasurePause = 550; // the window stays alive meanwhile
constexpr int MeasureInterval = 10;
constexpr int FailureInterval = 2;
constexpr int LoopStep = 1;

constexpr int First = 1; // the first state of every operation
constexpr int Second = 2;
constexpr int Third = 3;

} // namespace

TuningEngine::TuningEngine(Session& session, SerialPort& port, Clock& clock, MessageBoxes& messages, TuningPlan plan,
                           TuningSource& source, TuningObserver& observer)
    : RadioExchange(session, port, clock, messages, "tmrOverTime", Timeout), plan_(std::move(plan)), source_(source),
      observer_(observer) {}

void TuningEngine::Load() {
    link_.SentState = NothingSent;
    session_.Service.TestAborted = false;
    port_.SetUp();
    port_.Close();
}

void TuningEngine::ChangePage(int page) {
    CurrentPage = page;
    DropPttFirst();
    Start(TunePage, PageInterval);
}

void TuningEngine::SendValue(std::uint8_t operation) {
    if (running_ && TuneOp != TuneSlider && TuneOp != TuneText) {
        valuePending_ = true;
        return;
    }
    Start(operation, StepInterval);
}

void TuningEngine::PressPtt() {
    PttOn = !PttOn;
    Start(TunePtt, StepInterval);
}

void TuningEngine::ToggleMeasuring() {
    measuring_ = !measuring_;
    if (measuring_) {
        Start(TuneMeasure, StepInterval);
    } else if (!IsAwaitingReply()) {
        StopSending();
        running_ = false;
    }
}

void TuningEngine::Start(std::uint8_t operation, int interval) {
    if (closing_) {
        return;
    }
    TuneOp = operation;
    running_ = true;
    if (!IsAwaitingReply()) {
        link_.SentState = NothingSent;
    }
    Request(First, interval);
}

void TuningEngine::End() {
    running_ = false;
    if (std::exchange(valuePending_, false)) {
        Start(TuneSlider, StepInterval);
    }
}

void TuningEngine::Close(Ending ending) {
    if (closing_) {
        return;
    }
    if (!session_.Service.TestAborted) {
        Done = false;
        valuePending_ = false;
        measuring_ = false;
        DropPttFirst();
        Start(ending == Ending::Ok ? TuneOk : TuneCancel, EndingInterval);
        closing_ = true;
        while (!Done) {
            clock_.WaitProcessingEvents(LoopStep);
        }
    }
    closing_ = true;
    Stop();
    port_.Close();
}

/// Values are set, and the transmitter is keyed, with the transmitter as it is.
bool TuningEngine::IsDropDue() const {
    return PttDropPending && State() == First && (TuneOp == TunePage || TuneOp == TuneOk || TuneOp == TuneCancel);
}

int TuningEngine::LastCancelState() const {
    return plan_.kind == TuningKind::Points ? 2 * Pages() + 1 : Second;
}

void TuningEngine::SendCommand() {
    port_.ExpectBytes(1);
    if (IsDropDue()) {
        SendPtt(false);
        return;
    }
    switch (TuneOp) {
    case TunePage:
        SendPageCommand();
        break;
    case TunePtt:
        SendPtt(PttOn);
        break;
    case TuneOk:
    case TuneCancel:
        SendEnding();
        break;
    case TuneMeasure:
        if (State() == First) {
            port_.Send({plan_.itemCode, service::ReadMeasurement});
        } else {
            port_.Send(wire::Acknowledge);
        }
        break;
    default:
        SendSet(CurrentPage, source_.Value(CurrentPage));
    }
}

void TuningEngine::SendPageCommand() {
    switch (State()) {
    case First:
        port_.Send({Code(CurrentPage), service::Select});
        break;
    case Second:
        port_.ExpectBytes(service::PointLength);
        port_.Send({service::ReadPoint});
        break;
    default:
        port_.Send(wire::Acknowledge);
    }
}

void TuningEngine::SendEnding() {
    if (plan_.kind == TuningKind::Measured) {
        SendMeasuredEnding();
    } else if (TuneOp == TuneOk) {
        port_.Send({Code(CurrentPage), service::Store});
    } else {
        SendRestoring();
    }
}

void TuningEngine::SendMeasuredEnding() {
    if (State() == First) {
        SendSet(0, TuneOp == TuneOk ? source_.Value(0) : source_.OldValue(0));
    } else {
        port_.Send({plan_.itemCode, service::Store});
    }
}

/// Every page is selected and set in turn; the last state stores. A single value is selected and set alone.
void TuningEngine::SendRestoring() {
    const int page = (State() - First) / 2;
    if (page >= Pages()) {
        port_.Send({Code(Pages() - 1), service::Store});
    } else if (State() % 2 == First) {
        port_.Send({Code(page), service::Select});
    } else {
        SendSet(page, source_.OldValue(page));
    }
}

void TuningEngine::SendSet(int page, int value) {
    port_.Send({Code(page), service::SetValue, static_cast<std::uint8_t>(value)});
}

void TuningEngine::OnKeyed(bool keyed) {
    observer_.OnLamp(keyed);
}

void TuningEngine::Receive() {
    if (IsDropDue()) {
        ReceiveDrop();
        return;
    }
    switch (TuneOp) {
    case TunePage:
        ReceivePageReply();
        break;
    case TunePtt:
        ReceivePtt();
        break;
    case TuneOk:
    case TuneCancel:
        ReceiveEnding();
        break;
    case TuneMeasure:
        ReceiveMeasurement();
        break;
    default:
        if (port_.ReadsAcknowledge()) {
            End();
        } else {
            FailFast(FailureInterval);
        }
    }
}

void TuningEngine::ReceiveDrop() {
    if (!port_.ReadsAcknowledge()) {
        FailFast(FailureInterval);
        return;
    }
    PttOn = false;
    OnUnkeyed();
    observer_.OnLamp(false);
    Enter(First, TuneOp == TunePage ? DropBeforePageInterval : DropBeforeEndingInterval);
}

void TuningEngine::ReceivePageReply() {
    const bool good =
        State() == Second ? port_.Read(service::PointLength).size() == service::PointLength : port_.ReadsAcknowledge();
    if (!good) {
        FailFast(FailureInterval);
        return;
    }
    switch (State()) {
    case First:
        Enter(Second, PageInterval);
        break;
    case Second:
        observer_.OnPointRead(CurrentPage);
        Enter(Third, PageConfirmInterval);
        break;
    default:
        End();
    }
}

void TuningEngine::ReceivePtt() {
    if (!port_.ReadsAcknowledge()) {
        FailFast(FailureInterval);
        return;
    }
    if (!PttOn) {
        OnUnkeyed();
    }
    observer_.OnLamp(PttOn);
    End();
}

void TuningEngine::ReceiveMeasurement() {
    if (State() == First) {
        const std::vector<std::uint8_t> reply = port_.Read(1);
        if (reply.empty()) {
            FailFast(FailureInterval);
            return;
        }
        observer_.OnMeasured(reply.front());
        Enter(Second, StepInterval);
    } else if (!port_.ReadsAcknowledge()) {
        FailFast(FailureInterval);
    } else if (measuring_) {
        Enter(First, MeasurePause + MeasureInterval);
    } else {
        running_ = false;
    }
}

void TuningEngine::ReceiveEnding() {
    if (!port_.ReadsAcknowledge()) {
        FailFast(FailureInterval);
        return;
    }
    const bool oneStep = TuneOp == TuneOk && plan_.kind != TuningKind::Measured;
    if (oneStep || State() >= LastCancelState()) {
        Finish();
    } else {
        Enter(State() + 1, StepInterval);
    }
}

void TuningEngine::Finish() {
    Stop();
    port_.Close();
    Done = true;
}

/// The operation in progress begins again.
void TuningEngine::Retry() {
    Enter(First, StepInterval);
}

void TuningEngine::GiveUp() {
    Stop();
    port_.Close();
    session_.Service.TestAborted = true;
    Done = true;
    running_ = false;
    observer_.OnUnloadRequested();
}

} // namespace zelvor
