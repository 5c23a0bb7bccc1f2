#include "simulator/CloneResponder.h"

#include <cstddef>
#include <string_view>

#include "data/ModelCatalogue.h"

namespace zelvor {
namespace {

constexpr std::string_view Entry = "PROGRAM";
constexpr std::uint8_t EntryStart = 'P';
constexpr std::uint8_t IdentityRequest = 0x02;
constexpr std::uint8_t Acknowledge = 0x06;
constexpr std::uint8_t Read = 'R';
constexpr std::uint8_t Write = 'W'; // also heads the reply to a read
constexpr std::uint8_t End = 'E';

constexpr std::size_t HeadLength = 4; // command, address high, address low, count

} // namespace

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

void CloneResponder::Restart() {
    command_.clear();
    state_ = CloneState::Idle;
}

/// Only Entry is known byte by byte; a byte that is not its next one starts a command of its own.
bool CloneResponder::Continues(std::uint8_t byte) const {
    return command_.empty() || command_.front() != EntryStart ||
           byte == static_cast<std::uint8_t>(Entry[command_.size()]);
}

/// The full length of the command begun, as far as its bytes tell; 0 where the state knows no such command.
std::size_t CloneResponder::CommandLength() const {
    const std::uint8_t code = command_.front();
    if (code == EntryStart) {
        return Entry.size();
    }
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
        break;
    }
    switch (code) {
    case Acknowledge:
        return 1;
    case Read:
        return HeadLength;
    case Write:
        return command_.size() < HeadLength ? HeadLength : HeadLength + static_cast<std::size_t>(Count());
    default:
        return 0;
    }
}

Reaction CloneResponder::Answer() {
    switch (command_.front()) {
    case EntryStart:
        state_ = CloneState::Entered;
        return {0, {Acknowledge}, SessionEvent::Started};
    case End:
        state_ = CloneState::Idle;
        return {0, {}, SessionEvent::Ended};
    case IdentityRequest:
        state_ = CloneState::Identified;
        return {0, Identity()};
    case Read:
        return {0, ReadBlock()};
    case Write:
        return {0, StorePacket()};
    default: // an acknowledgement: the only other command that has a length
        state_ = CloneState::Ready;
        return {0, {Acknowledge}};
    }
}

std::vector<std::uint8_t> CloneResponder::Identity() const {
    const ModelIdentity identity = IdentityOf(memory_);
    return {identity.begin(), identity.end()};
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
