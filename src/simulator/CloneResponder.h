#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "data/DataImage.h"
#include "simulator/ModeResponder.h"

namespace zelvor {

/// Where the radio stands in programming mode. docs/wire-protocol.md draws the moves.
enum class CloneState {
    Idle,       // normal operation: everything is skipped
    Entered,    // Entry acknowledged, waits for the identity request
    Identified, // identity sent, waits for its acknowledgement
    Ready,      // answers reads, writes and acknowledgements until End
    Informing,  // as Ready, in a session that has asked for the manufacturing record
};

/// The radio in programming mode: cloning, and radio information. The memory is the caller's and must outlive it.
///
/// End is answered in a session that has asked for the manufacturing record, and in no other. A read or write that
/// leaves the memory is not answered, and such a write stores nothing.
class CloneResponder : public ModeResponder {
public:
    explicit CloneResponder(DataImage& memory) : memory_(memory) {}

    [[nodiscard]] Reaction Enter() override;
    [[nodiscard]] std::optional<Reaction> Take(std::uint8_t byte) override;
    [[nodiscard]] bool ExpectsData() const override;
    [[nodiscard]] std::optional<LineTime> Patience() const override;
    [[nodiscard]] std::optional<Reaction> LineSilent() override;
    void Restart() override;

    [[nodiscard]] CloneState State() const { return state_; }

private:
    [[nodiscard]] bool Continues(std::uint8_t byte) const;
    [[nodiscard]] std::size_t CommandLength() const;
    [[nodiscard]] std::size_t ReadyCommandLength() const;
    [[nodiscard]] Reaction Answer();
    [[nodiscard]] Reaction AnswerEnd();
    [[nodiscard]] Reaction AnswerAcknowledge();
    [[nodiscard]] bool HasBareRequest() const;
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
