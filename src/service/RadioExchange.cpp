#include "service/RadioExchange.h"

#include "link/CloneTexts.h"
#include "platform/MessageBoxes.h"
#include "service/ServiceFrames.h"
#include "text/CommonTexts.h"

namespace zelvor {

namespace {

constexpr int NextTick = 1; // milliseconds

} // namespace

RadioExchange::RadioExchange(Session& session, SerialPort& port, Clock& clock, MessageBoxes& messages,
                             std::string_view timeoutName, int timeoutMilliseconds)
    : session_(session), link_(session.Link), port_(port), clock_(clock), messages_(messages),
      ctrTimer_(clock.MakeTimer("ctrTimer")), timeoutTimer_(clock.MakeTimer(timeoutName)),
      timeout_(timeoutMilliseconds) {
    ctrTimer_->OnTick = [this] { OnSendTimer(); };
    timeoutTimer_->OnTick = [this] { OnTimeout(); };
    port_.OnReceive = [this](ReceiveReason reason) { OnReceive(reason); };
}

RadioExchange::~RadioExchange() {
    port_.OnReceive = nullptr;
}

void RadioExchange::OnSendTimer() {
    if (!active_ || superseded_ || link_.CommState == link_.SentState) {
        return;
    }
    const bool wasOpen = port_.IsOpen();
    const bool open = OpenPort();
    ctrTimer_->SetEnabled(false);
    if (!open) {
        FailFast(NextTick);
        return;
    }
    if (!wasOpen) {
        ClearPort(); // of the rest of an answer that was not waited for
    }
    const std::uint8_t sent = link_.CommState;
    awaiting_ = true;
    SendCommand();
    if (!active_) { // ended from inside a wait of the sending
        return;
    }
    link_.SentState = sent;
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
    if (superseded_) {
        superseded_ = false;
        ReceiveSuperseded();
        port_.ClearInput();
        Run(*ctrTimer_, NextTick);
        return;
    }
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
    const bool vanished = !port_.IsOpen();
    static_cast<void>(OpenPort()); // a port that stays closed leads back here after a retry
    deaf_ = true;
    const MessageAnswer answer =
        messages_.Show({.title = std::string(commontexts::Error.In(session_.LanguageFlag)),
                        .text = std::string(clonetexts::CheckConnections.In(session_.LanguageFlag)),
                        .icon = MessageIcon::Critical,
                        .buttons = MessageButtons::RetryCancel,
                        .defaultButton = MessageAnswer::Retry});
    deaf_ = false;
    awaiting_ = false;
    superseded_ = false;
    link_.SentState = NothingSent;
    if (!active_) {
        return;
    }
    if (answer == MessageAnswer::Retry) {
        if (vanished) {
            ClosePort(); // while the cable was out, its number may have stood for another device of the machine
        }
        ClearPort();
        Retry();
    } else {
        GiveUp();
    }
}

void RadioExchange::SetUpPort() {
    port_.SetBufferSizes(RadioInputBufferSize, RadioOutputBufferSize);
    if (OpenPort()) {
        port_.SetBinaryInput();
        ClearPort();
        ClosePort();
    }
}

bool RadioExchange::OpenPort() {
    if (port_.IsOpen()) {
        return true;
    }
    port_.SetNumber(session_.CommPortNumber);
    port_.SetSettings(RadioPortSettings);
    return port_.Open();
}

void RadioExchange::ClosePort() {
    if (port_.IsOpen()) {
        port_.Close();
    }
}

void RadioExchange::ClearPort() {
    port_.ClearInput();
    port_.ClearOutput();
}

void RadioExchange::Transmit(std::span<const std::uint8_t> command) {
    link_.TxBuffer.assign(command.begin(), command.end());
    port_.Send(link_.TxBuffer);
}

std::vector<std::uint8_t> RadioExchange::Read(int count) {
    port_.SetReadLength(count);
    return port_.Read();
}

bool RadioExchange::ReadsAcknowledge() {
    const std::vector<std::uint8_t> reply = Read(1);
    return !reply.empty() && reply.front() == service::AcknowledgeByte;
}

void RadioExchange::Enter(int state, int interval) {
    active_ = true;
    link_.CommState = static_cast<std::uint8_t>(state);
    Run(*ctrTimer_, interval);
}

void RadioExchange::Request(int state, int interval) {
    superseded_ = active_ && awaiting_;
    Enter(state, interval);
}

void RadioExchange::Stop() {
    active_ = false;
    awaiting_ = false;
    superseded_ = false;
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
