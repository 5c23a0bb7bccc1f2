#include "FuzzImages.h"

#include <algorithm>

#include "data/BlankImage.h"
#include "data/MemoryMap.h"
#include "data/TestImages.h"

namespace zelvor::fuzz {

DataImage BlankImage() {
    DataImage image;
    image.Set(address::Market, 0x01);
    image.Set(address::Family, 0xF8);
    InitAllFrameData(image);
    return image;
}

DataImage ProgrammedImage() {
    DataImage image = BlankImage();
    testing::StoreHex(image, 0x020, "00255114002551147203132800BFB0F8");
    testing::StoreHex(image, 0x100, "00000015FFFFFFFFFFFFFFFF00BFB0F8");
    image.Set(address::ScanAdd, 0x02);
    return image;
}

DataImage TakeImage(FuzzInput& input) {
    const std::uint8_t kind = input.TakeByte();
    DataImage image = (kind & 1) != 0 ? ProgrammedImage() : BlankImage();
    image.Set(address::PttIdType, (kind & 2) != 0 ? 1 : 0);
    for (int changes = kind >> 2; changes > 0; --changes) {
        const int place = input.TakeBelow(static_cast<int>(DataImage::Size));
        image.Set(place, input.TakeByte());
    }
    return image;
}

DataImage TakeWholeImage(FuzzInput& input) {
    DataImage::Bytes bytes{};
    const std::vector<std::uint8_t> taken = input.TakeBytes(bytes.size());
    std::copy(taken.begin(), taken.end(), bytes.begin());
    return DataImage::FromAddressOrder(bytes);
}

} // namespace zelvor::fuzz
