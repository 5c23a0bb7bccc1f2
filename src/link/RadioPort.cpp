#include "link/RadioPort.h"

#include <string>
#include <utility>

#include "link/CloneFrames.h"
#include "link/CloneTexts.h"
#include "platform/MessageBoxes.h"
#include "text/CommonTexts.h"

namespace zelvor {

RadioPort::RadioPort(LinkState& link, SerialPort& port) : link_(link), port_(port) {}

RadioPort::~RadioPort() {
    port_.OnReceive = nullptr;
}

void RadioPort::Listen(std::function<void(ReceiveReason)> onReceive) {
    port_.OnReceive = std::move(onReceive);
}

bool RadioPort::SetUp() {
    port_.SetBufferSizes(RadioInputBufferSize, RadioOutputBufferSize);
    if (!Open()) {
        return false;
    }
    port_.SetBinaryInput();
    Clear();
    return true;
}

bool RadioPort::Open() {
    if (port_.IsOpen()) {
        return true;
    }
    port_.SetNumber(link_.CommPortNumber);
    port_.SetSettings(RadioPortSettings);
    return port_.Open();
}

void RadioPort::Close() {
    if (port_.IsOpen()) {
        port_.Close();
    }
}

void RadioPort::Clear() {
    port_.ClearInput();
    port_.ClearOutput();
}

void RadioPort::Send(std::span<const std::uint8_t> command) {
    link_.TxBuffer.assign(command.begin(), command.end());
    SendBuffer();
}

void RadioPort::SendBuffer() {
    port_.Send(link_.TxBuffer);
}

std::vector<std::uint8_t> RadioPort::Read(int count) {
    port_.SetReadLength(count);
    return port_.Read();
}

bool RadioPort::ReadsAcknowledge() {
    const std::vector<std::uint8_t> reply = Read(1);
    return !reply.empty() && reply.front() == wire::AcknowledgeByte;
}

bool RadioPort::AsksToRetry(MessageBoxes& messages, Language language, const std::function<void()>& onLooked) {
    const bool wasGone = !IsOpen();
    Open(); // a port that stays closed leads back here after a retry
    if (onLooked) {
        onLooked();
    }
    const MessageAnswer answer = messages.Show({.title = std::string(commontexts::Error.In(language)),
                                                .text = std::string(clonetexts::CheckConnections.In(language)),
                                                .icon = MessageIcon::Critical,
                                                .buttons = MessageButtons::RetryCancel,
                                                .defaultButton = MessageAnswer::Retry});
    if (answer != MessageAnswer::Retry) {
        return false;
    }
    // While the cable was out, its number may have stood for another device of the machine.
    if (wasGone || port_.IsStale()) {
        Close();
    }
    return true;
}

} // namespace zelvor
