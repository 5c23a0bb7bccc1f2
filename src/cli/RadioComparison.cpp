#include "cli/RadioComparison.h"

#include "cli/HexText.h"
#include "data/MemoryMap.h"
#include "link/CloneFrames.h"
#include "link/LinkState.h"

namespace zelvor::cli {

namespace {

constexpr std::size_t PageSize = 256;

} // namespace

SentBytes SentByWrite(DataImage image) {
    SentBytes sent;
    LinkState link;
    link.TransferMode = transfer::Writing;
    for (link.StepCount = 1; link.StepCount <= WritePacketCount;) {
        BuildWritePacket(link, image);
        std::size_t address = link.TxBuffer[1] * PageSize + link.TxBuffer[2];
        for (std::size_t i = wire::HeadLength; i < link.TxBuffer.size(); ++i) {
            sent.at(address++) = link.TxBuffer[i];
        }
        ++link.StepCount;
        AdvanceAddress(link);
    }
    return sent;
}

std::string WrongByteText(const WrongByte& byte) {
    return AddressText(byte.address) + ": " + ByteText(byte.expected) + " -> " + ByteText(byte.found);
}

std::vector<WrongByte> CompareWithFile(const DataImage& radio, const DataImage& file) {
    const SentBytes sent = SentByWrite(file);
    std::vector<WrongByte> wrong;
    for (int address = address::FirstChannel; address < static_cast<int>(DataImage::Size); ++address) {
        const auto& byte = sent[static_cast<std::size_t>(address)];
        const std::uint8_t found = radio.At(address);
        if (byte && found != *byte && found != file.At(address)) {
            wrong.push_back({address, file.At(address), found});
        }
    }
    return wrong;
}

std::vector<WrongByte> CompareAfterWrite(const DataImage& radio, const DataImage& written,
                                         const std::optional<DataImage>& before) {
    const SentBytes sent = SentByWrite(written);
    std::vector<WrongByte> wrong;
    for (int address = 0; address < static_cast<int>(DataImage::Size); ++address) {
        const std::uint8_t found = radio.At(address);
        const std::uint8_t kept = before ? before->At(address) : found;
        const std::uint8_t expected = sent[static_cast<std::size_t>(address)].value_or(kept);
        if (found != expected) {
            wrong.push_back({address, expected, found});
        }
    }
    return wrong;
}

} // namespace zelvor::cli
