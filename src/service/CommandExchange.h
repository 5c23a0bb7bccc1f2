#pragma once

#include <optional>
#include <vector>

#include "service/RadioExchange.h"

namespace zelvor {

/// One command of the user's to a radio in service mode.
struct RadioCommand {
    int kind = 0;     // CommandExchange::Ptt, or a number of the engine's own
    int argument = 0; // such as the channel or the page
    int value = 0;
    std::int64_t due = 0; // tick count at which its first bytes go out, where the radio is free
};

/// The user's commands to a radio in service mode, one after another in the order that they were asked for. A command
/// runs through its states, which count from 1, before the next one begins; one that another replaces ends at the
/// reply that is due, or is never sent. The radio gets no command in the middle of an answer.
///
/// A radio counts as keyed from the moment that PTT on goes out until a PTT off is acknowledged. Most commands have a
/// keyed transmitter dropped first.
class CommandExchange : public RadioExchange {
public:
    /// Keys the radio, or unkeys it where the user has keyed it.
    void PressPtt();
    [[nodiscard]] bool IsPttOn() const { return PttOn; }

protected:
    using RadioExchange::RadioExchange;

    static constexpr int Ptt = 3; // the kind of PTT in every engine
    static constexpr int FirstState = 1;
    static constexpr int NextTick = 1;        // milliseconds
    static constexpr int FailureInterval = 2; // milliseconds

    /// Appends a command, due after so many milliseconds, and takes away those that it replaces; nothing behind AskLast
    /// or EndCommands.
    void Ask(RadioCommand command, int interval);
    /// The command that ends everything: nothing is taken behind it, and what the user has asked of the transmitter
    /// counts as sent.
    void AskLast(RadioCommand command, int interval);
    /// No command waits or is under way any more, and the port is closed.
    void StopCommands();
    /// The same for good: none is taken any more. False where that was so already.
    bool EndCommands();
    [[nodiscard]] const RadioCommand& Current() const { return commands_.front(); }
    /// A PTT off goes out, or its reply is due, before the current command.
    [[nodiscard]] bool IsDropDue() const { return PttDropPending && State() == FirstState; }
    [[nodiscard]] bool IsWaiting(int kind, int argument) const;
    /// The current command is done.
    void Finish();
    /// No command waits or is under way any more.
    void ForgetCommands() { commands_.clear(); }
    /// Behind AskLast or EndCommands.
    [[nodiscard]] bool RefusesCommands() const { return refusing_; }

    /// Sends the bytes of the current command's state; the receive threshold is 1.
    virtual void SendStep() = 0;
    /// Takes the reply to SendStep.
    virtual void ReceiveStep() = 0;
    /// Whether the later command takes the place of the earlier one.
    [[nodiscard]] virtual bool Replaces(const RadioCommand& later, const RadioCommand& earlier) const = 0;
    [[nodiscard]] virtual bool DropsPtt(const RadioCommand& command) const = 0;
    /// Milliseconds between the acknowledgement of a PTT off and the command that it went before.
    [[nodiscard]] virtual int IntervalBehindDrop() const { return NextTick; }
    /// The radio has acknowledged that it is keyed or unkeyed.
    virtual void OnKeyed(bool keyed) = 0;
    /// The radio has answered something else to the PTT off before a command.
    virtual void OnDropRefused() {}

    void Retry() override;

private:
    void SendCommand() final;
    void Receive() final;

    void Begin();
    void SendPtt(bool on);
    void NoteKeyed(bool keyed);
    void ReceiveReplaced();
    void ReceiveDrop();
    void ReceivePtt();
    [[nodiscard]] bool IsReplaced() const;

    std::vector<RadioCommand> commands_; // the current one in front
    bool PttOn = false;                  // what the user has asked for
    bool PttDropPending = false;         // the transmitter is to be unkeyed before the current command goes out
    std::optional<bool> pttSent_;        // the reply that is due answers a PTT on or a PTT off
    bool mayBeKeyed_ = false;
    bool refusing_ = false;
    bool CloseDone = false; // by EndCommands
};

} // namespace zelvor
