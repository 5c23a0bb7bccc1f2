#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "data/DataImage.h"
#include "simulator/ModeResponder.h"
#include "simulator/TuningState.h"

namespace zelvor {

/// The radio in tuning mode: test channels and signalling, transmitter, wide and narrow, tuning. The memory is the
/// caller's and must outlive it.
///
/// A command's first byte, of some also the second, tells its length. A command whose first byte is none, or that asks
/// for a channel, signalling or code that there is not, is skipped without an answer.
class ServiceResponder : public ModeResponder {
public:
    explicit ServiceResponder(DataImage& memory) : memory_(memory), tuning_(memory) {}

    [[nodiscard]] Reaction Enter() override;
    [[nodiscard]] std::optional<Reaction> Take(std::uint8_t byte) override;
    [[nodiscard]] std::optional<Reaction> LineSilent() override;
    void Restart() override;

    /// Whether the radio is in tuning mode.
    [[nodiscard]] bool IsActive() const { return active_; }

private:
    [[nodiscard]] std::size_t CommandLength() const;
    [[nodiscard]] std::optional<Reaction> Answer();
    [[nodiscard]] std::optional<Reaction> AnswerTuning();
    [[nodiscard]] std::optional<Reaction> SetChannel() const;
    [[nodiscard]] std::optional<Reaction> SetSignalling() const;
    [[nodiscard]] std::optional<Reaction> SetTransmitter() const;
    [[nodiscard]] Reaction SetWidth(bool narrow);
    [[nodiscard]] Reaction ReadPoint() const;
    [[nodiscard]] Reaction ReadTuningData() const;
    [[nodiscard]] Reaction SetValue(const TunePlace& place);
    [[nodiscard]] Reaction Measure(const TunePlace& place);
    [[nodiscard]] Reaction EndSession();

    DataImage& memory_;
    TuningState tuning_;
    bool active_ = false;
    std::uint8_t selectedCode_ = 0; // 0 before the first Select
    int measurements_ = 0;
    std::vector<std::uint8_t> command_; // the bytes of the command so far
};

} // namespace zelvor
