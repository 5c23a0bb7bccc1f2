#include "simulator/FaultPlan.h"

#include <array>
#include <charconv>
#include <sstream>
#include <utility>

namespace zelvor {
namespace {

struct FaultName {
    FaultKind kind;
    std::string_view name;
    bool hasValue;
};

constexpr std::array<FaultName, 6> FaultNames{{
    {FaultKind::Drop, "drop", false},
    {FaultKind::Corrupt, "corrupt", false},
    {FaultKind::Cut, "cut", true},
    {FaultKind::Delay, "delay", true},
    {FaultKind::Hang, "hang", false},
    {FaultKind::Unplug, "unplug", false},
}};

constexpr std::size_t LongestNumber = 6; // digits

/// A number of at least 1 without sign or blanks.
std::optional<int> ParseCount(std::string_view text) {
    int value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end || value < 1 || text.size() > LongestNumber) {
        return std::nullopt;
    }
    return value;
}

/// Does the fault's work on the reply; whether there was anything to do.
bool Spoil(const Fault& fault, FaultOutcome& outcome) {
    switch (fault.kind) {
    case FaultKind::Drop:
        outcome.bytes.clear();
        return true;
    case FaultKind::Corrupt:
        if (outcome.bytes.empty()) {
            return false;
        }
        outcome.bytes.front() ^= 0xFF;
        return true;
    case FaultKind::Cut:
        if (outcome.bytes.size() <= static_cast<std::size_t>(fault.value)) {
            return false;
        }
        outcome.bytes.resize(static_cast<std::size_t>(fault.value));
        return true;
    case FaultKind::Delay:
        outcome.delay += std::chrono::milliseconds(fault.value);
        return true;
    case FaultKind::Hang:
        outcome.bytes.clear();
        outcome.hang = true;
        return true;
    case FaultKind::Unplug:
        outcome.bytes.clear();
        outcome.unplug = true;
        return true;
    }
    return false;
}

} // namespace

std::optional<Fault> ParseFault(std::string_view text) {
    const std::size_t at = text.find('@');
    if (at == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view head = text.substr(0, at);
    const std::size_t colon = head.find(':');
    const bool hasValue = colon != std::string_view::npos;
    const std::optional<int> reply = ParseCount(text.substr(at + 1));
    const std::optional<int> value = hasValue ? ParseCount(head.substr(colon + 1)) : 0;
    if (!reply || !value) {
        return std::nullopt;
    }
    for (const FaultName& known : FaultNames) {
        if (known.name == head.substr(0, colon) && known.hasValue == hasValue) {
            return Fault{known.kind, *value, *reply};
        }
    }
    return std::nullopt;
}

int LongestReply(int reply) {
    constexpr int acknowledgement = 1; // of the entry: nothing else is answered before
    constexpr int identity = 8;
    constexpr int block = 68;
    return reply <= 1 ? acknowledgement : reply <= 3 ? identity : block;
}

std::string FaultText(const Fault& fault) {
    std::ostringstream text;
    for (const FaultName& known : FaultNames) {
        if (known.kind == fault.kind) {
            text << known.name;
            if (known.hasValue) {
                text << ':' << fault.value;
            }
        }
    }
    text << '@' << fault.reply;
    return text.str();
}

FaultOutcome FaultPlan::Pass(std::vector<std::uint8_t> reply) {
    ++replyCount_;
    FaultOutcome outcome;
    outcome.bytes = std::move(reply);
    std::erase_if(waiting_, [&](const Fault& fault) {
        const bool fires = fault.reply == replyCount_ && Spoil(fault, outcome);
        if (fires) {
            outcome.fired.push_back(fault);
        }
        return fires;
    });
    fired_.insert(fired_.end(), outcome.fired.begin(), outcome.fired.end());
    return outcome;
}

} // namespace zelvor
