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

constexpr int First = 1; // the first state of every operation
constexpr int Second = 2;
constexpr int Third = 3;

} // namespace

TuningEngine::TuningEngine(ServiceState& service, const RadioLink& link, TuningPlan plan, TuningSource& source,
                           TuningObserver& observer)
    : CommandExchange(link, "tmrOverTime", Timeout), service_(service), plan_(std::move(plan)), source_(source),
      observer_(observer) {}

void TuningEngine::Load() {
    link_.SentState = NothingSent;
    service_.TestAborted = false;
    port_.SetUp();
    port_.Close();
}

void TuningEngine::ChangePage(int page) {
    CurrentPage = page;
    Ask({.kind = TunePage, .argument = page}, PageInterval);
}

void TuningEngine::SendValue() {
    Ask({.kind = TuneValue, .argument = CurrentPage, .value = source_.Value(CurrentPage)}, StepInterval);
}

void TuningEngine::ToggleMeasuring() {
    measuring_ = !measuring_;
    if (measuring_) {
        Ask({.kind = TuneMeasure}, StepInterval);
    } else if (!IsAwaitingReply()) {
        StopSending();
        ForgetCommands();
    }
}

void TuningEngine::Close(Ending ending) {
    if (service_.TestAborted) {
        Leave();
    } else if (!RefusesCommands()) {
        measuring_ = false;
        AskLast({.kind = ending == Ending::Ok ? TuneOk : TuneCancel, .argument = CurrentPage}, EndingInterval);
    }
}

/// A page stays where a value of its own waits behind it: the radio is at the point whose value it gets.
bool TuningEngine::Replaces(const RadioCommand& later, const RadioCommand& earlier) const {
    switch (later.kind) {
    case TuneCancel:
        return true;
    case TuneOk:
        return earlier.kind == Ptt || earlier.kind == TuneMeasure;
    case TunePage:
        return earlier.kind == TunePage && !IsWaiting(TuneValue, earlier.argument);
    default:
        return later.kind == earlier.kind && later.argument == earlier.argument;
    }
}

/// Values are set, and the transmitter is keyed, with the transmitter as it is.
bool TuningEngine::DropsPtt(const RadioCommand& command) const {
    return command.kind == TunePage || command.kind == TuneOk || command.kind == TuneCancel;
}

int TuningEngine::IntervalBehindDrop() const {
    return TuneOp() == TunePage ? DropBeforePageInterval : DropBeforeEndingInterval;
}

int TuningEngine::LastCancelState() const {
    return plan_.kind == TuningKind::Points ? 2 * Pages() + 1 : Second;
}

void TuningEngine::SendStep() {
    switch (TuneOp()) {
    case TunePage:
        SendPageCommand();
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
        SendSet(Current().argument, Current().value);
    }
}

void TuningEngine::SendPageCommand() {
    switch (State()) {
    case First:
        port_.Send({Code(Current().argument), service::Select});
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
    } else if (TuneOp() == TuneOk) {
        port_.Send({Code(Current().argument), service::Store});
    } else {
        SendRestoring();
    }
}

void TuningEngine::SendMeasuredEnding() {
    if (State() == First) {
        SendSet(0, TuneOp() == TuneOk ? source_.Value(0) : source_.OldValue(0));
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

void TuningEngine::ReceiveStep() {
    switch (TuneOp()) {
    case TunePage:
        ReceivePageReply();
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
            Finish();
        } else {
            FailFast(FailureInterval);
        }
    }
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
        observer_.OnPointRead(Current().argument);
        Enter(Third, PageConfirmInterval);
        break;
    default:
        Finish();
    }
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
        Finish();
    }
}

void TuningEngine::ReceiveEnding() {
    if (!port_.ReadsAcknowledge()) {
        FailFast(FailureInterval);
        return;
    }
    const bool oneStep = TuneOp() == TuneOk && plan_.kind != TuningKind::Measured;
    if (oneStep || State() >= LastCancelState()) {
        Leave();
    } else {
        Enter(State() + 1, StepInterval);
    }
}

void TuningEngine::Leave() {
    if (EndCommands()) {
        observer_.OnClosed();
    }
}

void TuningEngine::GiveUp() {
    StopCommands();
    service_.TestAborted = true;
    observer_.OnUnloadRequested();
}

} // namespace zelvor
