#include "cli/ToldBits.h"

#include "data/ChannelFields.h"
#include "data/IdentityFields.h"
#include "data/MemoryMap.h"
#include "data/ModelCatalogue.h"

namespace zelvor::cli {

namespace {

constexpr std::uint8_t AllBits = 0xFF;

/// Whether the image shows another value once it has that byte.
bool ChangesValue(const Field& field, const DataImage& image, int address, int byte) {
    DataImage other = image;
    other.Set(address, static_cast<std::uint8_t>(byte));
    return field.Show(other, Language::English) != field.Show(image, Language::English);
}

/// The changed bits that change the value of either image each by itself.
std::uint8_t BitsThatMatter(const Field& field, const DataImage& a, const DataImage& b, int address) {
    const int changed = a.At(address) ^ b.At(address);
    int matter = 0;
    for (int bit = 1; bit < AllBits; bit <<= 1) {
        const bool isChanged = (changed & bit) != 0;
        if (isChanged && (ChangesValue(field, b, address, b.At(address) ^ bit) ||
                          ChangesValue(field, a, address, a.At(address) ^ bit))) {
            matter |= bit;
        }
    }
    return static_cast<std::uint8_t>(matter);
}

std::uint8_t BitsOfByte(const Field& field, const DataImage& a, const DataImage& b, int address) {
    const bool isErasedWithValue = b.At(address) == ErasedByte && ChangesValue(field, a, address, ErasedByte);
    return isErasedWithValue || ChangesValue(field, b, address, a.At(address)) ? AllBits : 0;
}

/// Whether the byte has bits of several values, or some without a meaning.
bool IsBitByBit(const ChannelField& field, const DataImage& b, int address) {
    switch (field.column) {
    case ChannelColumn::Receive:
    case ChannelColumn::Transmit:
        return false;
    case ChannelColumn::Decode:
    case ChannelColumn::Encode:
        return address > AddressOf(field) && !IsChannelBlank(b, field.channel); // the byte that has the kind of tone
    case ChannelColumn::ScanAdd:
        return true;
    case ChannelColumn::Power:
    case ChannelColumn::Width:
    case ChannelColumn::OptionSignalling:
    case ChannelColumn::PttId:
    case ChannelColumn::SpUnmute:
    case ChannelColumn::BusyLockout:
    case ChannelColumn::Autodial:
    case ChannelColumn::BeatShift:
    case ChannelColumn::Compander:
        break;
    }
    return !IsChannelBlank(b, field.channel);
}

std::uint8_t ToldOfChannel(const ChannelField& field, const DataImage& a, const DataImage& b, int address) {
    const bool isNew = IsChannelBlank(a, field.channel) && a.At(address) == ErasedByte;
    if (isNew && field.column != ChannelColumn::ScanAdd) {
        return AllBits;
    }
    return IsBitByBit(field, b, address) ? BitsThatMatter(field, a, b, address) : BitsOfByte(field, a, b, address);
}

/// The bytes that name the variant, and others where they are as that variant has them.
std::uint8_t ToldOfIdentity(const Field& field, const DataImage& a, const DataImage& b, int address) {
    const ModelIdentity usual = MakeIdentity(b.At(address::Family), b.At(address::Market));
    const bool isUsual = b.At(address) == usual[static_cast<std::size_t>(address - address::Identity)];
    return isUsual ? AllBits : BitsOfByte(field, a, b, address);
}

} // namespace

std::uint8_t ToldBits(const Field& field, const DataImage& a, const DataImage& b, int address) {
    if (a.At(address) == b.At(address)) {
        return AllBits;
    }
    if (const auto* channel = field.As<ChannelField>()) {
        return ToldOfChannel(*channel, a, b, address);
    }
    return field.As<IdentityField>() != nullptr ? ToldOfIdentity(field, a, b, address)
                                                : BitsOfByte(field, a, b, address);
}

} // namespace zelvor::cli
