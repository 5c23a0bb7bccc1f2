#include "simulator/CloneResponder.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace zelvor {
namespace {

using command::Acknowledge;
using command::End;
using command::IdentityRequest;

constexpr std::uint8_t Read = 'R';
constexpr std::uint8_t Write = 'W'; // also heads the reply to a read
constexpr std::string_view InformationRequest = "NRK";
constexpr std::uint8_t BareRequest = 'P'; // and silence behind it: Entry begins with the same letter

constexpr std::size_t HeadLength = 4; // command, address high, address low, count
constexpr std::size_t EndedBySilence = 2;
constexpr LineTime BareRequestPatience = std::chrono::milliseconds(5); // some four bytes of Entry

constexpr std::size_t InformationLength = 34;
constexpr std::size_t SerialMarkPlace = 13;
constexpr std::uint8_t SerialMark = 'A';
constexpr std::size_t SerialNumberPlace = 17;
constexpr std::string_view SerialNumber = "10024618";

constexpr std::size_t BareReplyLength = 10;

/// Bytes that count from 0, for what nobody looks at.
std::vector<std::uint8_t> CountingBytes(std::size_t length) {
    std::vector<std::uint8_t> bytes(length);
    for (std::size_t i = 0; i < length; ++i) {
        bytes[i] = static_cast<std::uint8_t>(i);
    }
    return bytes;
}

std::vector<std::uint8_t> InformationRecord() {
    std::vector<std::uint8_t> record = CountingBytes(InformationLength);
    record[SerialMarkPlace] = SerialMark;
    std::copy(SerialNumber.begin(), SerialNumber.end(), record.begin() + SerialNumberPlace);
    return record;
}

} // namespace

Reaction CloneResponder::Enter() {
    command_.clear();
    state_ = CloneState::Entered;
    return {0, {Acknowledge}, SessionEvent::Started};
}

std::optional<Reaction> CloneResponder::Take(std::uint8_t byte) {
    if (!Continues(byte)) {
        command_.clear();
    }
    command_.push_back(byte);
    const std::size_t length = CommandLength();
    if (length == 0) {
        command_.clear();
        return std::nullopt;
    }
    if (command_.size() < length) {
        return std::nullopt;
    }
    Reaction reaction = Answer();
    reaction.commandLength = length;
    command_.clear();
    return reaction;
}

bool CloneResponder::ExpectsData() const {
    return command_.size() >= HeadLength && command_.front() == Write;
}

std::optional<LineTime> CloneResponder::Patience() const {
    return HasBareRequest() ? std::optional(BareRequestPatience) : std::nullopt;
}

std::optional<Reaction> CloneResponder::LineSilent() {
    const bool isAsked = HasBareRequest();
    command_.clear();
    if (!isAsked) {
        return std::nullopt;
    }
    return Reaction{1, CountingBytes(BareReplyLength), SessionEvent::None, "Read unused record"};
}

void CloneResponder::Restart() {
    command_.clear();
    state_ = CloneState::Idle;
}

bool CloneResponder::HasBareRequest() const {
    return !command_.empty() && command_.front() == BareRequest;
}

/// A byte that is not the next one of a command with known letters starts a command of its own.
bool CloneResponder::Continues(std::uint8_t byte) const {
    if (HasBareRequest()) {
        return false;
    }
    return command_.empty() || command_.front() != InformationRequest.front() ||
           byte == static_cast<std::uint8_t>(InformationRequest[command_.size()]);
}

/// The full length of the command begun, as far as its bytes tell; 0 where the state knows no such command.
std::size_t CloneResponder::CommandLength() const {
    const std::uint8_t code = command_.front();
    if (code == End) {
        return state_ == CloneState::Idle ? 0 : 1;
    }
    switch (state_) {
    case CloneState::Idle:
        return 0;
    case CloneState::Entered:
        return code == IdentityRequest ? 1 : 0;
    case CloneState::Identified:
        return code == Acknowledge ? 1 : 0;
    case CloneState::Ready:
    case CloneState::Informing:
        break;
    }
    return ReadyCommandLength();
}

std::size_t CloneResponder::ReadyCommandLength() const {
    switch (command_.front()) {
    case Acknowledge:
        return 1;
    case Read:
        return HeadLength;
    case Write:
        return command_.size() < HeadLength ? HeadLength : HeadLength + static_cast<std::size_t>(Count());
    case InformationRequest.front():
        return InformationRequest.size();
    case BareRequest:
        return state_ == CloneState::Informing ? EndedBySilence : 0;
    default:
        return 0;
    }
}

Reaction CloneResponder::Answer() {
    switch (command_.front()) {
    case End:
        return AnswerEnd();
    case IdentityRequest:
        state_ = CloneState::Identified;
        return {0, IdentityReply(memory_)};
    case Read:
        return {0, ReadBlock()};
    case Write:
        return {0, StorePacket()};
    case InformationRequest.front():
        state_ = CloneState::Informing;
        return {0, InformationRecord(), SessionEvent::None, "Read manufacturing record"};
    default: // an acknowledgement: the only other command that is complete
        return AnswerAcknowledge();
    }
}

Reaction CloneResponder::AnswerEnd() {
    const bool isAnswered = state_ == CloneState::Informing;
    state_ = CloneState::Idle;
    return isAnswered ? Reaction{0, {Acknowledge}, SessionEvent::Ended, "End"} : Reaction{0, {}, SessionEvent::Ended};
}

Reaction CloneResponder::AnswerAcknowledge() {
    if (state_ == CloneState::Informing) {
        return {0, {Acknowledge}, SessionEvent::None, "Acknowledge"};
    }
    state_ = CloneState::Ready;
    return {0, {Acknowledge}};
}

std::vector<std::uint8_t> CloneResponder::ReadBlock() const {
    if (!IsInsideMemory()) {
        return {};
    }
    std::vector<std::uint8_t> reply = command_;
    reply.front() = Write;
    for (int i = 0; i < Count(); ++i) {
        reply.push_back(memory_.At(Address() + i));
    }
    return reply;
}

std::vector<std::uint8_t> CloneResponder::StorePacket() {
    if (!IsInsideMemory()) {
        return {};
    }
    for (int i = 0; i < Count(); ++i) {
        memory_.Set(Address() + i, command_[HeadLength + static_cast<std::size_t>(i)]);
    }
    return {Acknowledge};
}

int CloneResponder::Address() const {
    return command_[1] << 8 | command_[2];
}

bool CloneResponder::IsInsideMemory() const {
    return Address() + Count() <= static_cast<int>(DataImage::Size);
}

} // namespace zelvor
