#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "simulator/LineTime.h"

namespace zelvor {

/// What a command did to the session between programming device and radio.
enum class SessionEvent {
    None,
    Started, // the radio is in one of its modes for programming devices, from the first step on
    Ended,   // the radio has left the mode at the other side's request
};

/// A complete command, and the radio's answer to it.
struct Reaction {
    std::size_t commandLength = 0;   // the command is the last so many bytes taken; any before them were skipped
    std::vector<std::uint8_t> reply; // empty where the radio stays silent
    SessionEvent session = SessionEvent::None;
    std::string description{}; // "Set channel 3", for commands of the service protocol
};

/// The radio's side of a protocol, one byte at a time. It knows neither line nor clock: RadioLine feeds it.
class Responder {
public:
    virtual ~Responder() = default;

    /// Takes the next byte from the line; a reaction where it completes a command.
    [[nodiscard]] virtual std::optional<Reaction> Take(std::uint8_t byte) = 0;

    /// How long the line has to be silent before LineSilent is called; nothing for the line's own limit.
    [[nodiscard]] virtual std::optional<LineTime> Patience() const { return std::nullopt; }

    /// The line has been silent in the middle of a command: a reaction where the silence completes it. Otherwise its
    /// bytes so far are forgotten, and the session goes on.
    [[nodiscard]] virtual std::optional<Reaction> LineSilent() = 0;

    /// The radio is switched off and on: out of its mode, the memory stays.
    virtual void Restart() = 0;
};

} // namespace zelvor
