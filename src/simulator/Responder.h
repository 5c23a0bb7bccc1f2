#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace zelvor {

/// What a command did to the session between programming device and radio.
enum class SessionEvent {
    None,
    Started, // the radio is in programming mode, from the first step on
    Ended,   // the radio has left programming mode at the other side's request
};

/// A complete command, and the radio's answer to it.
struct Reaction {
    std::size_t commandLength = 0;   // the command is the last so many bytes taken; any before them were skipped
    std::vector<std::uint8_t> reply; // empty where the radio stays silent
    SessionEvent session = SessionEvent::None;
};

/// The radio's side of a protocol, one byte at a time. It knows neither line nor clock: RadioLine feeds it.
class Responder {
public:
    virtual ~Responder() = default;

    /// Takes the next byte from the line; a reaction where it completes a command.
    [[nodiscard]] virtual std::optional<Reaction> Take(std::uint8_t byte) = 0;

    /// The line has been silent in the middle of a command: its bytes so far are forgotten, the session goes on.
    virtual void LineSilent() = 0;

    /// The radio is switched off and on: out of programming mode, the memory stays.
    virtual void Restart() = 0;
};

} // namespace zelvor
