#include "data/BlankImage.h"

#include <initializer_list>

#include "data/MemoryMap.h"
#include "data/ModelCatalogue.h"
#include "data/TestFrequencies.h"

namespace zelvor {
namespace {

void Store(DataImage& image, int address, std::initializer_list<std::uint8_t> bytes) {
    for (const std::uint8_t byte : bytes) {
        image.Set(address++, byte);
    }
}

void StoreConstants(DataImage& image) {
    Store(image, 0x110, {0x00, 0x00, 0x0A, 0x00, 0x00, 0x01, 0x00, 0x0A, 0x00, 0x00, 0x00}); // DTMF
    Store(image, 0x11E, {0x0A});                                                             // programmable key
    Store(image, 0x120, {0x30, 0x30, 0x30});                                                 // DTMF ID code
    Store(image, 0x12C, {0x00, 0x00, 0x01, 0x00, 0x04});                                     // optional features
    Store(image, 0x131, {0x00, 0x00, 0x00, 0x05, 0x00, 0x01, 0x00, 0x00, 0x00, 0x05, 0x01, 0x00, 0x00, 0x00, 0x00});
    Store(image, 0x140, {0x31, 0x32, 0x33, 0x34, 0x35}); // PTT ID, Begin of TX
    Store(image, 0x160, {0x00});                         // scan
    Store(image, 0x162, {0x1F, 0x33, 0x01, 0x03, 0x00, 0x03, 0x00});
    Store(image, 0x171, {0x00, 0x00, 0x90, 0x01, 0x00, 0x0A, 0x00, 0x01, 0x00}); // Corvane
    Store(image, 0x17C, {0x00, 0x00, 0x00, 0x00});                               // with Scan Add
    Store(image, 0x1FA, {0x00});                                                 // DTMF stun type
}

void StoreIdentity(DataImage& image, std::uint8_t market, std::uint8_t family) {
    int address = address::Identity;
    for (const std::uint8_t byte : MakeIdentity(family, market)) {
        image.Set(address++, byte);
    }
}

} // namespace

void InitAllFrameData(DataImage& image) {
    const std::uint8_t market = image.At(address::Market);
    const std::uint8_t family = image.At(address::Family);
    image.Fill(0xFF);
    StoreConstants(image);
    StoreIdentity(image, market, family);
    StoreDefaultTestFrequencies(image, TestFrequencyBand(market));
}

} // namespace zelvor
