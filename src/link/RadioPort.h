#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <span>
#include <vector>

#include "link/LinkState.h"
#include "platform/SerialPort.h"
#include "text/Language.h"

namespace zelvor {

class MessageBoxes;

/// The radio at the end of the cable, as every exchange with it uses the port: LinkState's port number, one command
/// at a time through LinkState::TxBuffer, replies of known lengths.
class RadioPort {
public:
    RadioPort(LinkState& link, SerialPort& port);
    ~RadioPort();
    RadioPort(const RadioPort&) = delete;
    RadioPort& operator=(const RadioPort&) = delete;

    void Listen(std::function<void(ReceiveReason)> onReceive);

    /// Buffer sizes, an open port and nothing waiting in it; sends nothing. False where the port cannot be opened.
    bool SetUp();
    /// Opens the port under LinkState's number where it is not open yet.
    bool Open();
    void Close();
    [[nodiscard]] bool IsOpen() const { return port_.IsOpen(); }
    [[nodiscard]] PortFailure Failure() const { return port_.Failure(); }
    /// Drops what waits in either direction.
    void Clear();
    void ClearInput() { port_.ClearInput(); }

    void Send(std::span<const std::uint8_t> command);
    void Send(std::initializer_list<std::uint8_t> command) { Send(std::span(command.begin(), command.size())); }
    /// Sends what LinkState::TxBuffer holds.
    void SendBuffer();

    /// How many bytes make the next receive event.
    void ExpectBytes(int count) { port_.SetReceiveThreshold(count); }
    [[nodiscard]] int WaitingBytes() const { return port_.WaitingBytes(); }
    /// At most so many of the waiting bytes.
    [[nodiscard]] std::vector<std::uint8_t> Read(int count);
    /// Reads one byte; false also where none is waiting.
    [[nodiscard]] bool ReadsAcknowledge();

    /// The connection prompt, for a radio that does not answer: true for Retry. A port that is gone is looked for
    /// before, and onLooked called; where it was gone, or is not the radio's any more, Retry opens it anew.
    [[nodiscard]] bool AsksToRetry(MessageBoxes& messages, Language language,
                                   const std::function<void()>& onLooked = nullptr);

private:
    LinkState& link_;
    SerialPort& port_;
};

} // namespace zelvor
