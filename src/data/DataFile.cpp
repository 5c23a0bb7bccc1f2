#include "data/DataFile.h"

#include <algorithm>

namespace zelvor {
namespace {

constexpr std::uint8_t ReservedByte = 0xFF;

} // namespace

DataFileBytes EncodeDataFile(const DataImage& image) {
    DataFileBytes bytes;
    bytes.fill(ReservedByte);
    std::copy(DataFileMagic.begin(), DataFileMagic.end(), bytes.begin());
    const DataImage::Bytes memory = image.ToAddressOrder();
    std::copy(memory.begin(), memory.end(), bytes.begin() + DataFileHeadSize);
    return bytes;
}

std::optional<DataImage> DecodeDataFile(std::span<const std::uint8_t> bytes) {
    if (bytes.size() != DataFileSize || !std::equal(DataFileMagic.begin(), DataFileMagic.end(), bytes.begin())) {
        return std::nullopt;
    }
    return DataImage::FromAddressOrder(bytes.subspan<DataFileHeadSize, DataImage::Size>());
}

} // namespace zelvor
