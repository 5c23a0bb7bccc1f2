#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "data/ChannelCodec.h"
#include "data/TestImages.h"

namespace zelvor {
namespace {

constexpr unsigned Seeds[] = {20070130, 1, 2, 3, 5, 8, 13, 21, 34, 55};
constexpr int ImagesPerSeed = 10;

/// Encodes each channel of a random image from its own texts and hands over image, texts before and after.
template<typename Check>
void ForRandomChannels(Check check) {
    for (const unsigned seed : Seeds) {
        std::mt19937 random(seed);
        for (int round = 0; round < ImagesPerSeed; ++round) {
            DataImage image = testing::RandomImage(random);
            image.Set(0x133, static_cast<std::uint8_t>(round % 3));
            const Language language = round % 2 == 0 ? Language::English : Language::Chinese;
            for (int k = 1; k <= 16; ++k) {
                SCOPED_TRACE("seed " + std::to_string(seed) + ", image " + std::to_string(round) + ", channel " +
                             std::to_string(k));
                ChannelCodec codec;
                codec.Texts.DecText = "67.0"; // for a channel 1 whose word is no tone
                codec.Texts.EncText = "D023N";
                const std::vector<ChannelTexts> before = codec.DecodeAll(image, language);
                codec.Texts = before[static_cast<std::size_t>(k - 1)];
                DataImage encoded = image;
                bool txCodeError = false;
                codec.EncodeChannel(encoded, language, k, txCodeError);
                const std::vector<ChannelTexts> after = codec.DecodeAll(encoded, language);
                check(image, encoded, before, after, k);
                if (::testing::Test::HasFatalFailure()) {
                    return;
                }
            }
        }
    }
}

TEST(RandomImages, ShowTheSameGridTextsAfterAChannelIsEncodedFromThem) {
    ForRandomChannels([](const DataImage&, const DataImage&, const std::vector<ChannelTexts>& before,
                         const std::vector<ChannelTexts>& after, int k) {
        const ChannelTexts& was = before[static_cast<std::size_t>(k - 1)];
        const ChannelTexts& is = after[static_cast<std::size_t>(k - 1)];
        ASSERT_EQ(is.RxText, was.RxText);
        ASSERT_EQ(is.TxText, was.TxText);
        ASSERT_EQ(is.DecText, was.DecText);
        ASSERT_EQ(is.EncText, was.EncText);
        ASSERT_EQ(is.PowerText, was.PowerText);
        ASSERT_EQ(is.WidthText, was.WidthText);
        ASSERT_EQ(is.ScanAddText, was.ScanAddText);
        if (!was.OptSignalText.empty()) {
            ASSERT_EQ(is.OptSignalText, was.OptSignalText);
        }
        ASSERT_EQ(is.PttIdText, was.PttIdText);
        ASSERT_EQ(is.BusyLockText, was.BusyLockText);
        ASSERT_EQ(is.AutoDialText, was.AutoDialText);
        ASSERT_EQ(is.BeatShiftFlag, was.BeatShiftFlag);
        ASSERT_EQ(is.CompanderFlag, was.CompanderFlag);
    });
}

TEST(RandomImages, ChangeOnlyInTheRecordOfTheEncodedChannel) {
    ForRandomChannels([](const DataImage& image, const DataImage& encoded, const std::vector<ChannelTexts>&,
                         const std::vector<ChannelTexts>&, int k) {
        for (int address = 0; address < 1024; ++address) {
            if (address < 16 * k || address >= 16 * k + 16) {
                ASSERT_EQ(encoded.At(address), image.At(address)) << address;
            }
        }
    });
}

TEST(RandomImages, GiveTheEncoderTheSpUnmuteBitsOfChannel16) {
    ForRandomChannels([](const DataImage& image, const DataImage& encoded, const std::vector<ChannelTexts>&,
                         const std::vector<ChannelTexts>&, int k) {
        const int expected = (image.At(0x00C) & 0x9F) == 0 ? 0 : image.At(0x10C) & 0x60;
        ASSERT_EQ(encoded.At(16 * k + 12) & 0x60, expected);
    });
}

} // namespace
} // namespace zelvor
