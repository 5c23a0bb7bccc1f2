#include "service/RadioExchange.h"

namespace zelvor {

namespace {

constexpr int NextTick = 1; // milliseconds

} // namespace

RadioExchange::RadioExchange(const RadioLink& link, std::string_view timeoutName, int timeoutMilliseconds)
    : link_(link.state), port_(link.state, link.port), clock_(link.clock), messages_(link.messages),
      language_(link.language), ctrTimer_(clock_.MakeTimer("ctrTimer")), timeoutTimer_(clock_.MakeTimer(timeoutName)),
      timeout_(timeoutMilliseconds) {
    ctrTimer_->OnTick = [this] { OnSendTimer(); };
    timeoutTimer_->OnTick = [this] { OnTimeout(); };
    port_.Listen([this](ReceiveReason reason) { OnReceive(reason); });
}

RadioExchange::~RadioExchange() = default;

void RadioExchange::OnSendTimer() {
    if (!active_ || link_.CommState == link_.SentState) {
        return;
    }
    const bool wasOpen = port_.IsOpen();
    const bool open = port_.Open();
    ctrTimer_->SetEnabled(false);
    if (!open) {
        FailFast(NextTick);
        return;
    }
    if (!wasOpen) {
        port_.Clear(); // of the rest of an answer that was not waited for
    }
    awaiting_ = true;
    SendCommand();
    link_.SentState = link_.CommState;
    Run(*timeoutTimer_, timeout_);
}

void RadioExchange::OnReceive(ReceiveReason reason) {
    if (reason != ReceiveReason::DataReceived || !active_) {
        return;
    }
    if (deaf_ || !awaiting_) { // a late answer to a command that was given up
        port_.ClearInput();
        return;
    }
    timeoutTimer_->SetEnabled(false);
    ctrTimer_->SetEnabled(false);
    link_.SentState = NothingSent;
    awaiting_ = false;
    Receive();
}

void RadioExchange::OnTimeout() {
    timeoutTimer_->SetEnabled(false);
    if (active_ && !EndsAtTimeout()) {
        Prompt();
    }
}

void RadioExchange::Prompt() {
    ctrTimer_->SetEnabled(false);
    deaf_ = true;
    const std::weak_ptr<void> life = life_;
    const bool again = port_.AsksToRetry(messages_, language_);
    if (life.expired()) { // its window went while the box was up
        return;
    }
    deaf_ = false;
    awaiting_ = false;
    link_.SentState = NothingSent;
    if (!active_) {
        return;
    }
    if (again) {
        port_.Clear();
        Retry();
    } else {
        GiveUp();
    }
}

void RadioExchange::Enter(int state, int interval) {
    active_ = true;
    link_.CommState = static_cast<std::uint8_t>(state);
    Run(*ctrTimer_, interval);
}

void RadioExchange::Stop() {
    active_ = false;
    awaiting_ = false;
    ctrTimer_->SetEnabled(false);
    timeoutTimer_->SetEnabled(false);
}

void RadioExchange::FailFast(int interval) {
    ctrTimer_->SetEnabled(false);
    Run(*timeoutTimer_, interval);
}

void RadioExchange::Run(Timer& timer, int milliseconds) {
    timer.SetInterval(milliseconds);
    timer.SetEnabled(true);
}

} // namespace zelvor
