#include "data/BlankImage.h"

#include <initializer_list>

#include "data/FieldRegistry.h"
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

/// What a new document holds in bytes that are no field.
void StoreConstants(DataImage& image) {
    Store(image, 0x12E, {0x01});       // among the optional features
    Store(image, 0x13F, {0x00});       // behind them
    Store(image, 0x179, {0x00});       // behind the Corvane settings
    Store(image, 0x17C, {0x00, 0x00}); // before Scan Add
    Store(image, address::ScanAdd, {0x00, 0x00});
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
    for (const Field& field : AllFields()) {
        field.StoreBlank(image);
    }
    StoreConstants(image);
    StoreIdentity(image, market, family);
    StoreDefaultTestFrequencies(image, TestFrequencyBand(market));
}

} // namespace zelvor
