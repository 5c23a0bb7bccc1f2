// Reading a radio that answers with any bytes at any time.

#include <algorithm>

#include "CloneFuzz.h"
#include "Require.h"
#include "data/MemoryMap.h"

namespace zelvor::fuzz {
namespace {

using Command = std::vector<std::uint8_t>;

/// The block (0 to 15) that a command asks for; -1 where it is another command of a read.
int BlockOf(const Command& command) {
    const bool isOther = command == Command{'P', 'R', 'O', 'G', 'R', 'A', 'M'} || command == Command{0x02} ||
                         command == Command{0x06} || command == Command{'E'};
    if (isOther) {
        return -1;
    }
    Require(command.size() == 4 && command[0] == 'R' && command[3] == 0x40, "a read sends commands of a read");
    const int address = command[1] * 256 + command[2];
    Require(address % 64 == 0 && address < 0x400, "a block is one of the memory's");
    return address / 64;
}

void CheckRead(const CloneFuzz& transfer, const DataImage& before, const DataImage& memory) {
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

} // namespace
} // namespace zelvor::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    using namespace zelvor;
    using namespace zelvor::fuzz;
    FuzzInput input(bytes, count);
    CloneFuzz transfer(input, transfer::Reading);
    const DataImage before = transfer.Image();
    const DataImage memory = transfer.Radio().Memory;
    transfer.Run();
    CheckRead(transfer, before, memory);
    return 0;
}
