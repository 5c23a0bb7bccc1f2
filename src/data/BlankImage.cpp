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

std::uint8_t FamilyDigit(std::uint8_t family) {
    switch (family) {
    case Family4618:
        return '8';
    case Family4613:
        return '3';
    case Family4617:
        return '7';
    default:
        return 0xFF;
    }
}

void StoreIdentity(DataImage& image, std::uint8_t market, std::uint8_t family) {
    const std::uint8_t bandDigit = market < 2 ? '4' : '5';
    Store(image, address::Identity, {'P', bandDigit, '6', '1', FamilyDigit(family), market, family, 0xFF});
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
