#include "data/TestFrequencies.h"

#include <algorithm>
#include <optional>
#include <span>

#include "data/FrequencyCodec.h"
#include "data/LegalFrequency.h"
#include "text/Decimal.h"
#include "text/StringTable.h"

namespace zelvor {
namespace {

constexpr int PairSize = address::TestFrequencyPairSize;
constexpr int TransmitOffset = PairSize / 2;

constexpr int AddressOf(int channel) {
    return address::TestFrequencies + PairSize * (channel - 1);
}

std::string TextAt(const DataImage& image, int address) {
    constexpr std::string_view HexDigits = "0123456789ABCDEF";
    std::string digits;
    for (int i = TransmitOffset - 1; i >= 0; --i) {
        const std::uint8_t byte = image.At(address + i);
        digits += HexDigits[byte >> 4];
        digits += HexDigits[byte & 0x0F];
    }
    const std::int64_t tensOfHertz = Decimal::Leading(digits).Rounded();
    return Decimal::Of(tensOfHertz, 5).Format(3, 5);
}

void StoreAt(DataImage& image, int address, const FrequencyBytes& bytes) {
    for (const std::uint8_t byte : bytes) {
        image.Set(address++, byte);
    }
}

} // namespace

TestFrequencyBytes TestFrequencyBlock(const DataImage& image) {
    TestFrequencyBytes block{};
    int address = address::TestFrequencies;
    for (std::uint8_t& byte : block) {
        byte = image.At(address++);
    }
    return block;
}

bool IsTestChannelEmpty(const DataImage& image, int channel) {
    return image.At(AddressOf(channel)) == 0xFF;
}

bool AreTestChannelsEmpty(const DataImage& image) {
    for (int channel = 1; channel <= TestChannelCount; ++channel) {
        if (!IsTestChannelEmpty(image, channel)) {
            return false;
        }
    }
    return true;
}

TestFrequencyTexts ReadTestChannel(const DataImage& image, int channel) {
    if (IsTestChannelEmpty(image, channel)) {
        return {};
    }
    const int address = AddressOf(channel);
    return {TextAt(image, address), TextAt(image, address + TransmitOffset)};
}

void WriteTestChannel(DataImage& image, int channel, const TestFrequencyTexts& texts) {
    const int address = AddressOf(channel);
    StoreAt(image, address, EncodeFrequency(texts.receive));
    StoreAt(image, address + TransmitOffset, EncodeFrequency(texts.transmit));
}

void EraseTestChannel(DataImage& image, int channel) {
    for (int i = 0; i < PairSize; ++i) {
        image.Set(AddressOf(channel) + i, 0xFF);
    }
}

void StoreDefaultTestFrequencies(DataImage& image, Band band) {
    struct Pair {
        std::int32_t receive;
        std::int32_t transmit;
    };
    const std::int32_t centre = (band.low + band.high) / 2;
    const std::array<Pair, DefaultTestChannelCount> pairs{{{centre + 5'000, centre + 10'000},
                                                           {band.low + 5'000, band.low + 10'000},
                                                           {band.high - 5'000, band.high - 10'000},
                                                           {centre, centre},
                                                           {centre + 20'000, centre + 20'000},
                                                           {centre + 40'000, centre + 40'000}}};
    int channel = 1;
    for (const Pair pair : pairs) {
        const int address = AddressOf(channel++);
        StoreAt(image, address, PackFrequency(std::max(pair.receive, 0)));
        StoreAt(image, address + TransmitOffset, PackFrequency(std::max(pair.transmit, 0)));
    }
}

void RestoreDefaultTestFrequencies(DataImage& image) {
    StoreDefaultTestFrequencies(image, BandOfMarket(image.At(address::Market)).value_or(Band{0, 0}));
}

std::string KeyOf(const TestFrequencyField& field) {
    return "test." + std::to_string(field.channel) + (field.isTransmit ? ".transmit" : ".receive");
}

int AddressOf(const TestFrequencyField& field) {
    return AddressOf(field.channel) + (field.isTransmit ? TransmitOffset : 0);
}

int SizeOf(const TestFrequencyField& /*field*/) {
    return TransmitOffset;
}

std::string LabelOf(const TestFrequencyField& field, Language language) {
    const Text side = field.isTransmit ? Text::TxFrequency : Text::RxFrequency;
    return std::string(TableText(language, Text::Channel)) + ' ' + std::to_string(field.channel) + ' ' +
           std::string(TableText(language, side));
}

std::string ShowValue(const TestFrequencyField& field, const DataImage& image, Language /*language*/) {
    const TestFrequencyTexts texts = ReadTestChannel(image, field.channel);
    return field.isTransmit ? texts.transmit : texts.receive;
}

LegalValues LegalValuesOf(const TestFrequencyField& /*field*/, Language /*language*/) {
    return LegalFrequencies();
}

bool ParseValue(const TestFrequencyField& field, std::string_view text, DataImage& image) {
    const std::string_view typed = Trimmed(text);
    if (typed.empty()) {
        EraseTestChannel(image, field.channel);
        return true;
    }
    if (HoldsLegalValue(field, image) && IsNumberOnShow(typed, ShowValue(field, image, Language::English))) {
        return true; // also where the model has narrower limits for a new one
    }
    const TypedFrequency frequency = ReadTypedFrequency(typed, SetBandLimits(image));
    if (frequency.fault != FrequencyFault::None) {
        return false;
    }
    TestFrequencyTexts texts = ReadTestChannel(image, field.channel);
    if (texts == TestFrequencyTexts{}) {
        texts = {frequency.text, frequency.text};
    }
    (field.isTransmit ? texts.transmit : texts.receive) = frequency.text;
    WriteTestChannel(image, field.channel, texts);
    return true;
}

bool HoldsLegalValue(const TestFrequencyField& field, const DataImage& image) {
    if (IsTestChannelEmpty(image, field.channel)) {
        return true;
    }
    FrequencyBytes bytes{};
    for (int i = 0; i < TransmitOffset; ++i) {
        bytes[static_cast<std::size_t>(i)] = image.At(AddressOf(field) + i);
    }
    const std::optional<std::int32_t> frequency = UnpackFrequency(bytes);
    return frequency && IsInRange(*frequency) && IsOnRaster(*frequency);
}

void StoreBlankValue(const TestFrequencyField& /*field*/, DataImage& /*image*/) {}

} // namespace zelvor
