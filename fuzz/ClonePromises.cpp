#include "ClonePromises.h"

#include <algorithm>

#include "CloneFuzz.h"
#include "Require.h"
#include "data/MemoryMap.h"

namespace zelvor::fuzz {

namespace {

using Command = std::vector<std::uint8_t>;

bool IsEnd(const Command& command) {
    return command == Command{'E'};
}

/// What a session has beside its reads or its packets.
bool IsEntryOrEnd(const Command& command) {
    return command == Command{'P', 'R', 'O', 'G', 'R', 'A', 'M'} || command == Command{0x02} ||
           command == Command{0x06} || IsEnd(command);
}

/// The block (0 to 15) that a command asks for; -1 where it is another command of a read.
int BlockOf(const Command& command) {
    if (IsEntryOrEnd(command)) {
        return -1;
    }
    Require(command.size() == 4 && command[0] == 'R' && command[3] == 0x40, "a read sends commands of a read");
    const int address = command[1] * 256 + command[2];
    Require(address % 64 == 0 && address < 0x400, "a block is one of the memory's");
    return address / 64;
}

bool IsPacket(const Command& command) {
    const bool isOther = IsEntryOrEnd(command);
    Require(isOther || (command.size() > 4 && command[0] == 'W' && command.size() == 4U + command[3]),
            "a write sends commands of a write");
    return !isOther;
}

/// Neither the tuning values, nor the last 192 bytes.
bool IsWritten(int address) {
    return address < 0x180 || (address >= 0x1B8 && address < 0x340);
}

/// Byte 12 of the first 17 records is set by every write.
bool IsPrepared(int address) {
    return address % 16 == 12 && address <= 0x10C;
}

/// A radio of family 33 is taken on its market alone.
bool IsOtherModel(const DataImage& memory, const DataImage& image) {
    const int family = memory.At(address::Family);
    return memory.At(address::Market) != image.At(address::Market) ||
           (family != 0x33 && family != image.At(address::Family));
}

void CheckPacket(const Command& packet, const DataImage& image) {
    const int first = packet[1] * 256 + packet[2];
    for (int i = 0; i < packet[3]; ++i) {
        Require(IsWritten(first + i), "a packet keeps to what a write sends");
        Require(first == 0 || packet[4 + static_cast<std::size_t>(i)] == image.At(first + i),
                "a packet has the image's bytes");
    }
}

} // namespace

void CheckRead(const CloneFuzz& transfer) {
    const DataImage& before = transfer.ImageBefore();
    const DataImage& memory = transfer.MemoryBefore();
    int lastBlock = -1;
    for (const Command& command : transfer.Radio().Commands()) {
        lastBlock = std::max(lastBlock, BlockOf(command));
    }
    const DataImage& image = transfer.Image();
    for (int address = 64 * (lastBlock + 1); address < 0x400; ++address) {
        const bool isIdentity = address == address::Market || address == address::Family;
        Require(isIdentity || image.At(address) == before.At(address), "a block that was not asked for stays");
    }
    if (transfer.IsCompleted()) {
        Require(lastBlock == 15, "a completed read has asked for all blocks");
        Require(!transfer.Radio().IsUnspoilt() || image == memory, "a read without a fault brings the radio's memory");
    }
    Require(transfer.Radio().Memory == memory, "a read leaves the radio as it is");
}

void CheckWrite(const CloneFuzz& transfer) {
    const DataImage& before = transfer.ImageBefore();
    const DataImage& memory = transfer.MemoryBefore();
    const DataImage& image = transfer.Image();
    int packets = 0;
    int behindEnd = -1; // no End so far
    for (const Command& command : transfer.Radio().Commands()) {
        behindEnd += behindEnd >= 0 ? 1 : 0;
        behindEnd = IsEnd(command) && behindEnd < 0 ? 0 : behindEnd;
        if (IsPacket(command)) {
            ++packets;
        }
        if (IsPacket(command) && behindEnd < 0) {
            CheckPacket(command, image);
        }
    }
    Require(behindEnd <= 0 || (behindEnd == 1 && transfer.User().HasGivenUp()),
            "behind an End there is at most the repeated command of one who has given up");
    for (int address = 0; address < 0x400; ++address) {
        Require((packets > 0 && IsPrepared(address)) || image.At(address) == before.At(address),
                "a write prepares its own bytes of the image only");
        Require(IsWritten(address) || transfer.Radio().Memory.At(address) == memory.At(address),
                "a write leaves the radio's other bytes");
        const bool isImages = address >= 0x10 && IsWritten(address);
        Require(!transfer.IsCompleted() || !transfer.Radio().IsUnspoilt() || !isImages ||
                    transfer.Radio().Memory.At(address) == image.At(address),
                "a write without a fault brings the image to the radio");
    }
    Require(!transfer.IsCompleted() || packets >= 49, "a completed write has sent all packets");
    Require(packets == 0 || !IsOtherModel(memory, before) || transfer.User().HasAgreed() ||
                !transfer.Radio().IsUnspoilt(),
            "another model is written with the user's word only");
}

} // namespace zelvor::fuzz
