#include "simulator/RadioLine.h"

#include <algorithm>
#include <utility>

namespace zelvor {
namespace {

/// Keeps endless noise from piling up; no command of any protocol is longer.
constexpr std::size_t LongestCommand = 512;

} // namespace

void RadioLine::HostSent(std::span<const std::uint8_t> bytes, LineTime now) {
    for (const std::uint8_t byte : bytes) {
        arriving_.push_back({fromHost_.Carry(now), byte});
    }
}

std::optional<LineTime> RadioLine::NextDeadline() const {
    std::optional<LineTime> next = nextSend_;
    const auto consider = [&next](std::optional<LineTime> time) {
        if (time && (!next || *time < *next)) {
            next = time;
        }
    };
    if (!arriving_.empty()) {
        consider(arriving_.front().time);
    }
    consider(SilenceDeadline());
    return next;
}

void RadioLine::Advance(LineTime now) {
    for (auto next = NextDeadline(); next && *next <= now; next = NextDeadline()) {
        if (next == nextSend_) {
            SendByte();
        } else if (!arriving_.empty() && *next == arriving_.front().time) {
            ReceiveByte();
        } else {
            FallSilent(*next);
        }
    }
}

void RadioLine::ReceiveByte() {
    const TimedByte arrived = arriving_.front();
    arriving_.pop_front();
    lastArrival_ = arrived.time;
    taken_.push_back(arrived.byte);
    if (std::optional<Reaction> reaction = responder_.Take(arrived.byte)) {
        Complete(arrived.time, std::move(*reaction));
    } else if (taken_.size() > 2 * LongestCommand) {
        SkipFirst(arrived.time, taken_.size() - LongestCommand);
    }
}

void RadioLine::React(LineTime time, Reaction reaction) {
    if (reaction.session == SessionEvent::Started) {
        listener_.SessionStarted();
    }
    if (!reaction.reply.empty()) {
        FaultOutcome outcome = faults_.Pass(std::move(reaction.reply));
        for (const Fault& fault : outcome.fired) {
            listener_.FaultFired(time, fault);
        }
        if (outcome.hang) {
            responder_.Restart();
        }
        if (outcome.unplug) {
            Unplug(time);
        } else if (!outcome.bytes.empty()) {
            replies_.push_back({time + outcome.delay, std::move(outcome.bytes)});
            ScheduleByte();
        }
    }
    if (reaction.session == SessionEvent::Ended) {
        listener_.SessionEnded();
    }
}

void RadioLine::Unplug(LineTime time) {
    arriving_.clear();
    replies_.clear();
    nextSend_.reset();
    fromHost_.Clear();
    toHost_.Clear();
    listener_.Unplugged(time);
}

void RadioLine::ScheduleByte() {
    if (!nextSend_ && !replies_.empty()) {
        nextSend_ = toHost_.Carry(replies_.front().start);
    }
}

void RadioLine::SendByte() {
    const LineTime time = *nextSend_;
    nextSend_.reset();
    Reply& reply = replies_.front();
    listener_.Deliver(reply.bytes[reply.sent]);
    if (++reply.sent == reply.bytes.size()) {
        listener_.ReplySent(time, reply.bytes);
        replies_.pop_front();
    }
    ScheduleByte();
}

/// Tells the listener of the command that the bytes taken end with, and of what was skipped before it; then reacts.
void RadioLine::Complete(LineTime time, Reaction reaction) {
    SkipFirst(time, taken_.size() - std::min(reaction.commandLength, taken_.size()));
    listener_.CommandTaken(time, taken_, reaction.description);
    taken_.clear();
    React(time, std::move(reaction));
}

void RadioLine::SkipFirst(LineTime time, std::size_t count) {
    if (count > 0) {
        listener_.BytesSkipped(time, std::span(taken_).first(count));
        taken_.erase(taken_.begin(), taken_.begin() + static_cast<std::ptrdiff_t>(count));
    }
}

std::optional<LineTime> RadioLine::SilenceDeadline() const {
    if (taken_.empty() || !arriving_.empty()) {
        return std::nullopt;
    }
    return lastArrival_ + responder_.Patience().value_or(SilenceLimit);
}

void RadioLine::FallSilent(LineTime time) {
    if (std::optional<Reaction> reaction = responder_.LineSilent()) {
        Complete(time, std::move(*reaction));
    } else {
        SkipFirst(lastArrival_, taken_.size());
    }
}

} // namespace zelvor
