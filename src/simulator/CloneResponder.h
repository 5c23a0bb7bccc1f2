#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "data/DataImage.h"
#include "simulator/Responder.h"

namespace zelvor {

/// Where the radio stands in the clone protocol. docs/wire-protocol.md draws the moves.
enum class CloneState {
    Idle,       // normal operation: everything but Entry is skipped
    Entered,    // Entry acknowledged, waits for the identity request
    Identified, // identity sent, waits for its acknowledgement
    Ready,      // answers reads, writes and acknowledgements until End
};

/// The radio's side of the clone protocol, over a memory that the caller owns and that must outlive it.
///
/// Entry starts a session in every state, so that a session broken off anywhere can be tried again; inside the data of
/// a write packet the same bytes are data. End is not answered. A read or write that leaves the memory is not answered
/// either, and such a write stores nothing.
class CloneResponder : public Responder {
public:
    explicit CloneResponder(DataImage& memory) : memory_(memory) {}

    [[nodiscard]] std::optional<Reaction> Take(std::uint8_t byte) override;
    void LineSilent() override { command_.clear(); }
    void Restart() override;

    [[nodiscard]] CloneState State() const { return state_; }

private:
    [[nodiscard]] bool Continues(std::uint8_t byte) const;
    [[nodiscard]] std::size_t CommandLength() const;
    [[nodiscard]] Reaction Answer();
    [[nodiscard]] std::vector<std::uint8_t> Identity() const;
    [[nodiscard]] std::vector<std::uint8_t> ReadBlock() const;
    [[nodiscard]] std::vector<std::uint8_t> StorePacket();
    [[nodiscard]] int Address() const;
    [[nodiscard]] int Count() const { return command_[3]; }
    [[nodiscard]] bool IsInsideMemory() const;

    DataImage& memory_;
    CloneState state_ = CloneState::Idle;
    std::vector<std::uint8_t> command_; // the bytes of the command so far
};

} // namespace zelvor
