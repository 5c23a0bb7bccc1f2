#include "data/DataImage.h"

namespace zelvor {

DataImage DataImage::FromAddressOrder(std::span<const std::uint8_t, Size> bytes) {
    DataImage image;
    for (std::size_t address = 0; address < Size; ++address) {
        image.Set(static_cast<int>(address), bytes[address]);
    }
    return image;
}

DataImage::Bytes DataImage::ToAddressOrder() const {
    Bytes bytes{};
    for (std::size_t address = 0; address < Size; ++address) {
        bytes[address] = At(static_cast<int>(address));
    }
    return bytes;
}

void DataImage::SetBits(int address, std::uint8_t mask, std::uint8_t value) {
    Set(address, static_cast<std::uint8_t>((At(address) & ~mask) | (value & mask)));
}

} // namespace zelvor
