#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "FuzzInput.h"
#include "data/DataImage.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeSerialPort.h"
#include "platform/MessageBoxes.h"
#include "simulator/RadioResponder.h"

namespace zelvor::fuzz {

/// What may become of a reply: see SpoiltRadio::Spoil for the bytes of the input behind each.
enum Way { Whole, Late, Cut, Changed, Foreign, Silent, Vanished, InPieces, WayCount };

/// A simulated radio at the far end of the fake ports, whose replies the input spoils: it says how many of them come as
/// they are, and what becomes of the next. Behind the input's end all come as they are.
class SpoiltRadio {
public:
    static constexpr int ReplyDelay = 2; // milliseconds
    static constexpr int LateUnit = 4;   // of the byte that says how much later than that

    SpoiltRadio(FuzzInput& input, FakeClock& clock, FakeSerialPorts& ports);
    SpoiltRadio(const SpoiltRadio&) = delete;
    SpoiltRadio& operator=(const SpoiltRadio&) = delete;

    DataImage Memory;

    /// Hands the radio bytes before the exchange, whose replies nobody gets.
    void Prepare(std::span<const std::uint8_t> bytes);
    /// Whether every reply so far has come whole, unchanged and soon.
    [[nodiscard]] bool IsUnspoilt() const { return isUnspoilt_; }
    /// All that was sent, a command each.
    [[nodiscard]] const std::vector<std::vector<std::uint8_t>>& Commands() const { return commands_; }
    /// All replies as they would have come, and the command that each answers.
    struct Reply {
        std::vector<std::uint8_t> command;
        std::vector<std::uint8_t> bytes;
    };
    [[nodiscard]] const std::vector<Reply>& Replies() const { return replies_; }
    /// The cable is plugged in again.
    void PlugIn() { ports_.Present(1); }

private:
    void Serve(std::span<const std::uint8_t> command);
    [[nodiscard]] std::vector<std::uint8_t> ReplyTo(std::span<const std::uint8_t> command);
    void Spoil(std::vector<std::uint8_t> reply);
    void Deliver(int milliseconds, std::vector<std::uint8_t> bytes);

    FuzzInput& input_;
    FakeClock& clock_;
    FakeSerialPorts& ports_;
    RadioResponder responder_{Memory};
    std::vector<std::vector<std::uint8_t>> commands_;
    std::vector<Reply> replies_;
    int wholeReplies_ = 0; // still to come before one is spoilt
    int next_ = -1;        // what becomes of that; -1 where the input has not told
    bool isUnspoilt_ = true;
};

/// The user in front of the boxes: his answers are the input's, and Cancel behind its end.
class FuzzedUser : public MessageBoxes {
public:
    FuzzedUser(FuzzInput& input, FakeClock& clock, SpoiltRadio& radio) : input_(input), clock_(clock), radio_(radio) {}

    MessageAnswer Show(const Message& message) override;

    /// Called while a box is up, where the input wants something else to happen then.
    std::function<void()> WhileUp;

    [[nodiscard]] int Retries() const { return retries_; }
    /// Milliseconds in which a box was up.
    [[nodiscard]] std::int64_t TimeInBoxes() const { return timeInBoxes_; }
    /// Whether he has answered Cancel to anything.
    [[nodiscard]] bool HasGivenUp() const { return hasGivenUp_; }
    /// Whether he has wanted a radio of another model to be written.
    [[nodiscard]] bool HasAgreed() const { return hasAgreed_; }

private:
    FuzzInput& input_;
    FakeClock& clock_;
    SpoiltRadio& radio_;
    int retries_ = 0;
    std::int64_t timeInBoxes_ = 0;
    bool hasGivenUp_ = false;
    bool hasAgreed_ = false;
    bool isUp_ = false;
};

/// Lets time go by until the exchange is over; it has to be before so many milliseconds.
template<typename IsOver>
[[nodiscard]] bool RunsToItsEnd(FakeClock& clock, int milliseconds, IsOver isOver) {
    constexpr int Step = 50;
    for (; milliseconds > 0 && !isOver(); milliseconds -= Step) {
        clock.Advance(Step);
    }
    return isOver();
}

} // namespace zelvor::fuzz
