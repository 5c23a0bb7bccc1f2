#include "service/CommandExchange.h"

#include <algorithm>
#include <utility>

#include "service/ServiceFrames.h"

namespace zelvor {

void CommandExchange::PressPtt() {
    PttOn = !PttOn;
    Ask({.kind = Ptt}, NextTick);
}

void CommandExchange::Ask(RadioCommand command, int interval) {
    if (refusing_) {
        return;
    }
    command.due = clock_.TickCount() + interval;
    const bool isIdle = commands_.empty();
    const bool frontStays = !isIdle && (IsAwaitingReply() || IsPrompting() || !Replaces(command, commands_.front()));
    std::vector<RadioCommand> kept;
    for (std::size_t i = 0; i < commands_.size(); ++i) {
        if ((i == 0 && frontStays) || !Replaces(command, commands_[i])) {
            kept.push_back(commands_[i]);
        }
    }
    kept.push_back(command);
    commands_ = std::move(kept);
    if (!frontStays) {
        Begin();
    }
}

void CommandExchange::AskLast(RadioCommand command, int interval) {
    mayBeKeyed_ = mayBeKeyed_ || PttOn;
    Ask(command, interval);
    refusing_ = true;
}

void CommandExchange::StopCommands() {
    Stop();
    ForgetCommands();
    port_.Close();
}

bool CommandExchange::EndCommands() {
    refusing_ = true;
    StopCommands();
    return !std::exchange(CloseDone, true);
}

bool CommandExchange::IsWaiting(int kind, int argument) const {
    return std::any_of(commands_.begin(), commands_.end(), [&](const RadioCommand& command) {
        return command.kind == kind && command.argument == argument;
    });
}

bool CommandExchange::IsReplaced() const {
    return std::any_of(commands_.begin() + 1, commands_.end(),
                       [this](const RadioCommand& later) { return Replaces(later, commands_.front()); });
}

void CommandExchange::Begin() {
    link_.SentState = NothingSent;
    PttDropPending = mayBeKeyed_ && DropsPtt(Current());
    const std::int64_t interval = Current().due - clock_.TickCount();
    Enter(FirstState, std::max(NextTick, static_cast<int>(interval)));
}

void CommandExchange::Finish() {
    commands_.erase(commands_.begin());
    if (!commands_.empty()) {
        Begin();
    }
}

void CommandExchange::SendCommand() {
    port_.ExpectBytes(1);
    pttSent_.reset();
    if (IsDropDue()) {
        SendPtt(false);
    } else if (Current().kind == Ptt) {
        SendPtt(PttOn);
    } else {
        SendStep();
    }
}

void CommandExchange::SendPtt(bool on) {
    pttSent_ = on;
    mayBeKeyed_ = mayBeKeyed_ || on;
    port_.Send(on ? service::PttOn : service::PttOff);
}

void CommandExchange::Receive() {
    if (IsReplaced()) {
        ReceiveReplaced();
    } else if (IsDropDue()) {
        ReceiveDrop();
    } else if (Current().kind == Ptt) {
        ReceivePtt();
    } else {
        ReceiveStep();
    }
}

/// The reply is thrown away, but for one thing: the radio is keyed or unkeyed, and the lamps are to say so.
void CommandExchange::ReceiveReplaced() {
    if (pttSent_ && port_.ReadsAcknowledge()) {
        NoteKeyed(*pttSent_);
    }
    port_.ClearInput();
    Finish();
}

void CommandExchange::ReceiveDrop() {
    if (!port_.ReadsAcknowledge()) {
        OnDropRefused();
        FailFast(FailureInterval);
        return;
    }
    NoteKeyed(false);
    Enter(FirstState, IntervalBehindDrop());
}

void CommandExchange::ReceivePtt() {
    if (!port_.ReadsAcknowledge()) {
        FailFast(FailureInterval);
        return;
    }
    NoteKeyed(*pttSent_);
    Finish();
}

/// A drop takes back what the user has asked for, unless PTT was pressed since.
void CommandExchange::NoteKeyed(bool keyed) {
    if (!keyed) {
        mayBeKeyed_ = false;
        PttOn = PttOn && !(IsDropDue() && !IsWaiting(Ptt, 0));
        PttDropPending = false;
    }
    OnKeyed(keyed);
}

/// The command in progress begins again, or the one that has replaced it.
void CommandExchange::Retry() {
    if (commands_.empty()) {
        return;
    }
    if (IsReplaced()) {
        commands_.erase(commands_.begin());
    }
    Begin();
}

} // namespace zelvor
