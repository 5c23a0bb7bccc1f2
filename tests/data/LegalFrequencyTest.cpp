#include "data/LegalFrequency.h"

#include <gtest/gtest.h>

#include "data/FrequencyCodec.h"
#include "data/ToneCodec.h"
#include "text/Decimal.h"

namespace zelvor {
namespace {

constexpr BandLimits Any{100, 550};

TEST(LegalFrequency, TellsWhatStandsAgainstATypedOne) {
    const auto fault = [](const char* text) { return ReadTypedFrequency(text, Any).fault; };
    EXPECT_EQ(fault("145.125"), FrequencyFault::None);
    EXPECT_EQ(fault("100"), FrequencyFault::None);
    EXPECT_EQ(fault("550.00000"), FrequencyFault::None);
    EXPECT_EQ(fault("550.005"), FrequencyFault::OutOfRange);
    EXPECT_EQ(fault("99.99500"), FrequencyFault::OutOfRange);
    EXPECT_EQ(fault("145.12300"), FrequencyFault::OffRaster);
    EXPECT_EQ(fault("145.1250000001"), FrequencyFault::OffRaster);
    EXPECT_EQ(fault(""), FrequencyFault::NoNumber);
    EXPECT_EQ(fault("145.12500 "), FrequencyFault::NoNumber);
    EXPECT_EQ(fault("145.125.0"), FrequencyFault::NoNumber);
    EXPECT_EQ(fault("+145"), FrequencyFault::NoNumber);
    EXPECT_EQ(ReadTypedFrequency("145.13125", Any).text, "145.13125");
    EXPECT_EQ(ReadTypedFrequency("0145.1", Any).text, "145.10000");
    EXPECT_EQ(ReadTypedFrequency("180", {136, 174}).fault, FrequencyFault::OutOfRange);
}

TEST(LegalFrequency, RasterAndRangeOfStoredOnesAreThoseOfTypedOnes) {
    for (std::int32_t frequency = 9'990'000; frequency <= 55'010'000; frequency += 25) {
        const std::string text = Decimal::Of(frequency, 5).Format(3, 5);
        const bool isLegal = ReadTypedFrequency(text, Any).fault == FrequencyFault::None;
        ASSERT_EQ(IsInRange(frequency) && IsOnRaster(frequency), isLegal) << text;
    }
}

TEST(LegalFrequency, StoredOnesAreReadFromTheirDigits) {
    EXPECT_EQ(UnpackFrequency(FrequencyBytes{0x00, 0x25, 0x51, 0x14}), 14'512'500);
    EXPECT_EQ(UnpackFrequency(FrequencyBytes{0x99, 0x99, 0x99, 0x99}), 99'999'999);
    EXPECT_EQ(UnpackFrequency(FrequencyBytes{0x0A, 0x25, 0x51, 0x14}), std::nullopt);
    EXPECT_EQ(UnpackFrequency(FrequencyBytes{0x00, 0x25, 0x51, 0xA4}), std::nullopt);
}

TEST(LegalTone, IsWhatCanBeEnteredOrNone) {
    for (int word = 0; word <= 0xFFFF; ++word) {
        const ToneWord tone{static_cast<std::uint8_t>(word % 256), static_cast<std::uint8_t>(word / 256)};
        const auto text = ToneText(tone, Language::English);
        const bool canBeEntered = text && NormaliseTone(*text, Language::English) == *text;
        ASSERT_EQ(IsLegalTone(tone), canBeEntered) << word;
    }
}

} // namespace
} // namespace zelvor
