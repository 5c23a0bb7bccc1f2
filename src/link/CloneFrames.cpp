#include "link/CloneFrames.h"

#include <algorithm>

#include "data/MemoryMap.h"

namespace zelvor {

namespace {

constexpr int AddressPage = 256; // AddrLow carries into AddrHigh here

/// Consecutive packets over consecutive addresses, with the image's bytes.
struct PacketRange {
    int firstStep;
    int lastStep;
    int firstAddress;
    int length; // data bytes of each packet
};

/// The gap between the first and the second range is the tuning region, which is never sent; nor is anything from
/// address::NotWritten on.
constexpr std::array PacketRanges = std::to_array<PacketRange>({
    {2, 24, 0x0010, 16},
    {25, 28, 0x01B8, 16},
    {29, 29, 0x01F8, 8},
    {30, 49, 0x0200, 16},
});

constexpr int DefaultPacketLength = 16;

// Where the address jumps over the tuning region, and where it is aligned again behind the short packet.
constexpr int StepBehindTuning = 25;
constexpr int StepBehindShortPacket = 30;

/// Data of the first packet, whatever the image holds at its addresses.
constexpr std::array FirstPacketData = std::to_array<std::uint8_t>(
    {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0xFF, 0xFF, 0x03, 0xFF});
static_assert(FirstPacketData.size() == DefaultPacketLength);

constexpr int ClearedByteOfGroup = 12;
constexpr int ClearedGroups = 16;
constexpr int ClearedAddress = 0x10C;

constexpr std::uint8_t UncheckedFamily = 0x33;

std::uint8_t LowByte(int value) {
    return static_cast<std::uint8_t>(value & 0xFF);
}

const PacketRange* RangeOfStep(int step) {
    const auto found = std::find_if(PacketRanges.begin(), PacketRanges.end(), [step](const PacketRange& range) {
        return step >= range.firstStep && step <= range.lastStep;
    });
    return found == PacketRanges.end() ? nullptr : &*found;
}

void PrepareImage(DataImage& image) {
    for (int group = 0; group < ClearedGroups; ++group) {
        image.Set(group * address::ChannelSize + ClearedByteOfGroup, 0x00);
    }
    image.Set(address::EncoderMuteByte, 0xFF);
    image.Set(ClearedAddress, 0x00);
}

} // namespace

std::array<std::uint8_t, wire::HeadLength> ReadBlockCommand(const LinkState& link) {
    return {wire::ReadBlockByte, LowByte(link.AddrHigh), LowByte(link.AddrLow), wire::BlockLength};
}

void BuildWritePacket(LinkState& link, DataImage& image) {
    PrepareImage(image);

    const PacketRange* range = RangeOfStep(link.StepCount);
    const int length = range != nullptr ? range->length : DefaultPacketLength;
    const int packetLength = wire::HeadLength + length;
    link.TxBuffer.assign(static_cast<std::size_t>(packetLength), 0x00);
    link.TxBuffer[0] = wire::WritePacketByte;
    link.TxBuffer[1] = LowByte(link.AddrHigh);
    link.TxBuffer[2] = LowByte(link.AddrLow);
    link.TxBuffer[3] = LowByte(length);

    const auto data = link.TxBuffer.begin() + wire::HeadLength;
    if (link.StepCount == 1) {
        std::copy(FirstPacketData.begin(), FirstPacketData.end(), data);
    }
    if (range == nullptr) {
        return;
    }
    const int first = range->firstAddress + (link.StepCount - range->firstStep) * range->length;
    for (int i = 0; i < length; ++i) {
        data[i] = image.At(first + i);
    }
}

void StoreReadBlock(DataImage& image, int stepCount, std::span<const std::uint8_t> reply) {
    if (stepCount < 1 || stepCount > ReadBlockCount) {
        return;
    }
    if (reply.size() <= wire::HeadLength) {
        return;
    }
    int address = (stepCount - 1) * wire::BlockLength;
    const auto data = reply.subspan(wire::HeadLength);
    for (const std::uint8_t byte : data.first(std::min<std::size_t>(data.size(), wire::BlockLength))) {
        image.Set(address++, byte);
    }
}

void AdvanceAddress(LinkState& link) {
    if (link.TransferMode == transfer::Reading) {
        if (link.StepCount < RepeatedReadStep) {
            link.AddrLow += wire::BlockLength;
        }
    } else if (link.StepCount == StepBehindTuning) {
        link.AddrHigh = address::Identity / AddressPage;
        link.AddrLow = address::Identity % AddressPage;
        return;
    } else if (link.StepCount == StepBehindShortPacket) {
        link.AddrHigh = 2;
        link.AddrLow = 0;
        return;
    } else {
        link.AddrLow += DefaultPacketLength;
    }
    if (link.AddrLow >= AddressPage) {
        link.AddrLow -= AddressPage;
        ++link.AddrHigh;
    }
}

bool IsModelWrong(std::span<const std::uint8_t> identity, const DataImage& image) {
    constexpr std::size_t marketByte = address::Market - address::Identity;
    constexpr std::size_t familyByte = address::Family - address::Identity;
    const bool marketDiffers = identity[marketByte] != image.At(address::Market);
    const bool familyDiffers = identity[familyByte] != image.At(address::Family);
    return marketDiffers || (familyDiffers && identity[familyByte] != UncheckedFamily);
}

} // namespace zelvor
