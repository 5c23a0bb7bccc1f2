#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvor {

enum class FaultKind {
    Drop,    // the reply is not sent
    Corrupt, // all bits of its first byte are inverted
    Cut,     // only its first `value` bytes are sent
    Delay,   // it begins `value` milliseconds late
    Hang,    // it is not sent, and the radio has left its mode: nothing but an entry wakes it
    Unplug,  // the port vanishes in its place
};

/// A fault at one reply of the radio, counted from 1 from the start of the program.
struct Fault {
    FaultKind kind = FaultKind::Drop;
    int value = 0; // Cut: bytes, Delay: milliseconds, otherwise 0
    int reply = 0;
    bool operator==(const Fault&) const = default;
};

/// A fault as the command line writes it: "drop@17", "corrupt@17", "cut:5@17", "delay:300@17", "hang@17", "unplug@17".
/// Reply, bytes and milliseconds are 1 to 999999. Nothing where the text is anything else.
[[nodiscard]] std::optional<Fault> ParseFault(std::string_view text);
[[nodiscard]] std::string FaultText(const Fault& fault);

/// How many bytes the radio's reply of that number has at most, for a program that keeps to the protocol: every session
/// begins with entry, identity and acknowledgement (and with another entry after a retry), and a block is the longest.
[[nodiscard]] int LongestReply(int reply);

/// What becomes of one reply.
struct FaultOutcome {
    std::vector<std::uint8_t> bytes; // what is left of it
    std::chrono::milliseconds delay{0};
    bool hang = false;
    bool unplug = false;
    std::vector<Fault> fired;
};

/// The faults still to come. Counts the replies and spoils those that it has a fault for, each fault once, in the order
/// in which they were added. A fault that finds nothing to spoil (a cut behind the reply's end) does not fire.
class FaultPlan {
public:
    void Add(const Fault& fault) { waiting_.push_back(fault); }

    /// Passes the radio's next reply.
    [[nodiscard]] FaultOutcome Pass(std::vector<std::uint8_t> reply);

    [[nodiscard]] int ReplyCount() const { return replyCount_; }
    [[nodiscard]] const std::vector<Fault>& Fired() const { return fired_; }
    [[nodiscard]] const std::vector<Fault>& Waiting() const { return waiting_; }

private:
    std::vector<Fault> waiting_;
    std::vector<Fault> fired_;
    int replyCount_ = 0;
};

} // namespace zelvor
