#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "simulator/FaultPlan.h"
#include "simulator/LinePacer.h"
#include "simulator/LineTime.h"
#include "simulator/Responder.h"

namespace zelvor {

/// What the radio at the end of a line does. Times are those at which the last byte concerned has come through.
class RadioLineListener {
public:
    virtual ~RadioLineListener() = default;

    /// The byte has come through to the other side.
    virtual void Deliver(std::uint8_t byte) = 0;
    /// The plug is pulled: nothing under way arrives any more.
    virtual void Unplugged(LineTime time) = 0;

    /// `description` names commands of the service protocol and is empty for others.
    virtual void CommandTaken(LineTime time, std::span<const std::uint8_t> command, std::string_view description) = 0;
    virtual void BytesSkipped(LineTime time, std::span<const std::uint8_t> bytes) = 0;
    virtual void ReplySent(LineTime time, std::span<const std::uint8_t> reply) = 0;
    virtual void FaultFired(LineTime time, const Fault& fault) = 0;
    virtual void SessionStarted() = 0;
    virtual void SessionEnded() = 0;
};

/// A radio on a serial line of 9600 baud, 8 data bits, 2 stop bits: bytes in both directions take their time, replies
/// pass the fault plan. It owns no clock: the caller tells the time and asks when it is next needed.
///
/// A command that stops half way is forgotten after SilenceLimit, so that a broken one does not swallow the next. A
/// responder that takes a shorter silence for the end of a command tells so by its patience.
class RadioLine {
public:
    static constexpr LineTime SilenceLimit = std::chrono::milliseconds(500);

    /// All three must outlive the line.
    RadioLine(Responder& responder, FaultPlan& faults, RadioLineListener& listener)
        : responder_(responder), faults_(faults), listener_(listener) {}

    /// The other side has handed over bytes; they reach the radio one by one.
    void HostSent(std::span<const std::uint8_t> bytes, LineTime now);

    /// Does all that is due up to now, in its order of time.
    void Advance(LineTime now);

    /// When Advance has something to do next; nothing while both sides wait.
    [[nodiscard]] std::optional<LineTime> NextDeadline() const;

private:
    struct TimedByte {
        LineTime time;
        std::uint8_t byte;
    };
    struct Reply {
        LineTime start;
        std::vector<std::uint8_t> bytes;
        std::size_t sent = 0;
    };

    void ReceiveByte();
    void React(LineTime time, Reaction reaction);
    void Unplug(LineTime time);
    void SendByte();
    void Complete(LineTime time, Reaction reaction);
    void SkipFirst(LineTime time, std::size_t count);
    void FallSilent(LineTime time);
    void ScheduleByte();
    [[nodiscard]] std::optional<LineTime> SilenceDeadline() const;

    Responder& responder_;
    FaultPlan& faults_;
    RadioLineListener& listener_;
    LinePacer fromHost_;
    LinePacer toHost_;
    std::deque<TimedByte> arriving_;
    std::deque<Reply> replies_;        // the first is being sent
    std::optional<LineTime> nextSend_; // when the next byte of the first reply has come through
    std::vector<std::uint8_t> taken_;  // since the last complete command
    LineTime lastArrival_ = LineTime(0);
};

} // namespace zelvor
