#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "data/Session.h"
#include "link/RadioPort.h"
#include "platform/Clock.h"

namespace zelvor {

class MessageBoxes;

/// What the exchanges of the service mode have in common: a command is sent by the tick of `ctrTimer`, its reply comes
/// by the port's receive event, and a second timer ends the waiting with the connection prompt. Which command a state
/// sends and what a reply leads to is the derived class's.
///
/// CommState is the state whose command is due, SentState the one whose command was sent; a tick with both equal does
/// nothing. A request that is made while a reply is still due waits for it: the radio never gets a command in the
/// middle of an answer, and never misses the latest request.
class RadioExchange {
public:
    virtual ~RadioExchange();
    RadioExchange(const RadioExchange&) = delete;
    RadioExchange& operator=(const RadioExchange&) = delete;

    /// Ticks of the two timers, and the port's event.
    void OnSendTimer();
    void OnTimeout();
    void OnReceive(ReceiveReason reason);

protected:
    /// timeoutName and timeoutMilliseconds are those of the second timer.
    RadioExchange(Session& session, SerialPort& port, Clock& clock, MessageBoxes& messages,
                  std::string_view timeoutName, int timeoutMilliseconds);

    /// Sends the command of CommState.
    virtual void SendCommand() = 0;
    /// Takes the reply to the last command.
    virtual void Receive() = 0;
    /// Takes the reply to a command whose place another request has taken; what is not read of it is thrown away.
    /// The reply to SendPtt is looked at all the same: the radio is keyed or unkeyed, and the lamps are to say so.
    virtual void ReceiveSuperseded();
    /// The radio has acknowledged that it is keyed or unkeyed.
    virtual void OnKeyed(bool /*keyed*/) {}
    /// The user's answers to the connection prompt; SentState is reset already.
    virtual void Retry() = 0;
    virtual void GiveUp() = 0;
    /// The time-out has come; true where no prompt is wanted any more.
    [[nodiscard]] virtual bool EndsAtTimeout() { return false; }

    /// Keys or unkeys the radio.
    void SendPtt(bool on);
    /// Where the radio may be keyed, it is to be unkeyed before the next command goes out.
    void DropPttFirst() { PttDropPending = PttDropPending || PttOn || mayBeKeyed_; }
    /// The radio has acknowledged a PTT off.
    void OnUnkeyed();

    [[nodiscard]] int State() const { return link_.CommState; }
    /// Makes a state's command due after so many milliseconds.
    void Enter(int state, int interval);
    /// As Enter, from outside the exchange: waits for a reply that is still due.
    void Request(int state, int interval);
    /// Whether a command was sent whose reply is still due.
    [[nodiscard]] bool IsAwaitingReply() const { return awaiting_; }
    void StopSending() { ctrTimer_->SetEnabled(false); }
    /// Nothing is due any more, and nothing that comes in is looked at until the next Enter or Request.
    void Stop();
    /// The connection prompt comes after so many milliseconds.
    void FailFast(int interval);

    Session& session_;
    LinkState& link_;
    RadioPort port_;
    Clock& clock_;
    MessageBoxes& messages_;

    bool PttOn = false;          // what the user has asked for
    bool PttDropPending = false; // the transmitter is to be unkeyed before the command in progress goes out

private:
    void Run(Timer& timer, int milliseconds);
    void Prompt();

    std::unique_ptr<Timer> ctrTimer_;
    std::unique_ptr<Timer> timeoutTimer_;
    const int timeout_;
    bool active_ = false;         // between Enter or Request and Stop
    bool awaiting_ = false;       // a reply is due
    bool superseded_ = false;     // and another command has been asked for meanwhile
    bool deaf_ = false;           // a prompt is up
    std::optional<bool> pttSent_; // the command whose reply is due keys or unkeys the radio
    bool mayBeKeyed_ = false;     // PTT on was sent, and no PTT off was acknowledged since
};

} // namespace zelvor
