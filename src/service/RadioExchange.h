#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "link/LinkState.h"
#include "link/RadioLink.h"
#include "link/RadioPort.h"
#include "platform/Clock.h"

namespace zelvor {

class MessageBoxes;

/// What the exchanges of the service mode have in common: a command is sent by the tick of `ctrTimer`, its reply comes
/// by the port's receive event, and a second timer ends the waiting with the connection prompt. Which command a state
/// sends and what a reply leads to is the derived class's.
///
/// CommState is the state whose command is due, SentState the one whose command was sent; a tick with both equal does
/// nothing.
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
    RadioExchange(const RadioLink& link, std::string_view timeoutName, int timeoutMilliseconds);

    /// Sends the command of CommState.
    virtual void SendCommand() = 0;
    /// Takes the reply to the last command.
    virtual void Receive() = 0;
    /// The user's answers to the connection prompt; SentState is reset already.
    virtual void Retry() = 0;
    virtual void GiveUp() = 0;
    /// The time-out has come; true where no prompt is wanted any more.
    [[nodiscard]] virtual bool EndsAtTimeout() { return false; }

    [[nodiscard]] int State() const { return link_.CommState; }
    /// Makes a state's command due after so many milliseconds.
    void Enter(int state, int interval);
    /// Whether a command was sent whose reply is still due.
    [[nodiscard]] bool IsAwaitingReply() const { return awaiting_; }
    /// Whether the connection prompt is up. Nothing may begin then: its failure would bring a second one over it, whose
    /// Cancel ends what the first one still has to lead to.
    [[nodiscard]] bool IsPrompting() const { return deaf_; }
    void StopSending() { ctrTimer_->SetEnabled(false); }
    /// Nothing is due any more, and nothing that comes in is looked at until the next Enter.
    void Stop();
    /// The connection prompt comes after so many milliseconds.
    void FailFast(int interval);

    LinkState& link_;
    RadioPort port_;
    Clock& clock_;
    MessageBoxes& messages_;
    Language language_; // of what the user is asked and told

private:
    static void Run(Timer& timer, int milliseconds);
    void Prompt();

    const std::shared_ptr<void> life_ = std::make_shared<int>(); // tells of this object's end
    std::unique_ptr<Timer> ctrTimer_;
    std::unique_ptr<Timer> timeoutTimer_;
    const int timeout_;
    bool active_ = false;   // between Enter and Stop
    bool awaiting_ = false; // a reply is due
    bool deaf_ = false;     // a prompt is up
};

} // namespace zelvor
