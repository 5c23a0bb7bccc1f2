#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "fakes/FakeClock.h"
#include "fakes/FakeSerialPort.h"
#include "support/SpoiledReplies.h"

namespace zelvor {

using Bytes = std::vector<std::uint8_t>;

/// The radio's side of the clone protocol in its plainest form, at the far end of a fake port, on virtual time.
class ScriptedRadio {
public:
    static constexpr int ReplyDelay = 2; // milliseconds
    static constexpr int LateDelay = 800;

    ScriptedRadio(FakeClock& clock, FakeSerialPorts& ports) : clock_(clock), ports_(ports) {}
    /// Puts the radio behind a port.
    void Attach(FakeSerialPort& port);

    std::array<std::uint8_t, 1024> Memory{};
    std::array<std::uint8_t, 8> Identity{0x50, 0x34, 0x36, 0x31, 0x38, 0x01, 0xF8, 0xFF};
    bool ByteByByte = false; // a reply comes in single bytes, a millisecond apart
    bool AnswersEnd = false;

    /// Spoils reply n, counted from 1 over the radio's life.
    void Spoil(int reply, Fault fault) { replies_.Spoil(reply, fault); }

    [[nodiscard]] int Replies() const { return replies_.Replies(); }
    [[nodiscard]] int BytesReplied() const { return bytesReplied_; }
    [[nodiscard]] int FaultsFired() const { return replies_.FaultsFired(); }
    [[nodiscard]] bool IsProgramming() const { return programming_; }
    /// Every command as it was sent.
    [[nodiscard]] const std::vector<std::string>& Commands() const { return commands_; }
    void ClearCommands() { commands_.clear(); }

private:
    void Serve(std::span<const std::uint8_t> command);
    void Reply(Bytes reply);
    void DeliverAfter(int milliseconds, const Bytes& reply);

    FakeClock& clock_;
    FakeSerialPorts& ports_;
    bool programming_ = false;
    SpoiledReplies replies_{{.delay = ReplyDelay, .lateDelay = LateDelay, .corruption = 0x55}};
    int bytesReplied_ = 0;
    std::vector<std::string> commands_;
};

} // namespace zelvor
