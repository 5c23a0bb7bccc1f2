#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "data/DataImage.h"
#include "data/Field.h"
#include "data/MemoryMap.h"
#include "data/ModelCatalogue.h"

namespace zelvor {

/// The test channels 1 to 16: the pairs of frequencies that the radio uses in test mode.
inline constexpr int TestChannelCount = 16;

/// All their bytes, in the order of the addresses.
using TestFrequencyBytes = std::array<std::uint8_t, TestChannelCount * address::TestFrequencyPairSize>;

/// Both frequencies of a test channel as "000.00000" in MHz, or both empty.
struct TestFrequencyTexts {
    std::string receive;
    std::string transmit;

    bool operator==(const TestFrequencyTexts&) const = default;
};

[[nodiscard]] TestFrequencyBytes TestFrequencyBlock(const DataImage& image);

/// A test channel is empty where the first byte of its receive frequency is 0xFF; no other byte counts.
[[nodiscard]] bool IsTestChannelEmpty(const DataImage& image, int channel);
[[nodiscard]] bool AreTestChannelsEmpty(const DataImage& image);

/// The texts of a test channel. A byte that is no packed decimal ends its number before the first digit above 9, as the
/// numeric parse of the digits A to F does.
[[nodiscard]] TestFrequencyTexts ReadTestChannel(const DataImage& image, int channel);

/// Stores a pair of "000.00000" texts.
void WriteTestChannel(DataImage& image, int channel, const TestFrequencyTexts& texts);

/// Sets the eight bytes of a test channel to 0xFF.
void EraseTestChannel(DataImage& image, int channel);

inline constexpr int DefaultTestChannelCount = 6;

/// Stores the default pairs of a band in channels 1 to 6 and leaves the others alone. A frequency that would lie below
/// zero is stored as zero.
void StoreDefaultTestFrequencies(DataImage& image, Band band);

/// Stores the default pairs of the image's own market. A market without a band counts as the band 0 to 0, unlike in the
/// blank image, which takes 440 to 480 MHz for it: both are intended.
void RestoreDefaultTestFrequencies(DataImage& image);

/// One frequency of a test channel as a field. What it holds in a blank image depends on the model.
struct TestFrequencyField {
    int channel; // 1 to 16
    bool isTransmit;
};
inline constexpr std::array<TestFrequencyField, 2 * TestChannelCount> TestFrequencyFields = [] {
    std::array<TestFrequencyField, 2 * TestChannelCount> fields{};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        fields[i] = {static_cast<int>(i / 2) + 1, i % 2 == 1};
    }
    return fields;
}();

/// "test.3.transmit"
[[nodiscard]] std::string KeyOf(const TestFrequencyField& field);
[[nodiscard]] int AddressOf(const TestFrequencyField& field);
[[nodiscard]] int SizeOf(const TestFrequencyField& field);
[[nodiscard]] std::string LabelOf(const TestFrequencyField& field, Language language);
[[nodiscard]] std::string ShowValue(const TestFrequencyField& field, const DataImage& image, Language language);
[[nodiscard]] LegalValues LegalValuesOf(const TestFrequencyField& field, Language language);
/// A frequency as ReadTypedFrequency takes it, within the limits of the image; an empty text empties the channel. As in
/// the window, the first frequency of an empty channel becomes both.
[[nodiscard]] bool ParseValue(const TestFrequencyField& field, std::string_view text, DataImage& image);
[[nodiscard]] bool HoldsLegalValue(const TestFrequencyField& field, const DataImage& image);
void StoreBlankValue(const TestFrequencyField& field, DataImage& image);

} // namespace zelvor
