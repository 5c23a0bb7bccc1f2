#include "service/FrequencyPoints.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "service/TestChannels.h"

namespace zelvor {
namespace {

struct PointsRow {
    int family;
    int market;
    std::vector<std::string> receive; // Low, Low', Center, High', High
    std::vector<std::string> transmit;
};

DataImage ImageOf(int family, int market) {
    DataImage image;
    image.SetIndex(998, static_cast<std::uint8_t>(family));
    image.SetIndex(982, static_cast<std::uint8_t>(market));
    return image;
}

class FrequencyPointsOfModels : public ::testing::TestWithParam<PointsRow> {};

TEST_P(FrequencyPointsOfModels, LieInTheModelsBand) {
    const PointsRow& row = GetParam();
    const auto points = FrequencyPointsOf(ImageOf(row.family, row.market));
    ASSERT_TRUE(points);
    std::vector<std::string> receive;
    std::vector<std::string> transmit;
    for (const TunePoint point :
         {TunePoint::Low, TunePoint::LowPrime, TunePoint::Center, TunePoint::HighPrime, TunePoint::High}) {
        receive.push_back(FrequencyOnShow(points->At(point).receive));
        transmit.push_back(FrequencyOnShow(points->At(point).transmit));
    }
    EXPECT_EQ(receive, row.receive);
    EXPECT_EQ(transmit, row.transmit);
}

const std::vector<std::string> VhfReceive{"136.05000MHz", "145.55000MHz", "155.05000MHz", "164.55000MHz",
                                          "173.95000MHz"};
const std::vector<std::string> VhfTransmit{"136.10000MHz", "145.60000MHz", "155.10000MHz", "164.60000MHz",
                                           "173.90000MHz"};
const std::vector<std::string> Uhf450Receive{"450.05000MHz", "460.05000MHz", "470.05000MHz", "480.05000MHz",
                                             "489.95000MHz"};
const std::vector<std::string> Uhf450Transmit{"450.10000MHz", "460.10000MHz", "470.10000MHz", "480.10000MHz",
                                              "489.90000MHz"};
const std::vector<std::string> Uhf400Receive{"400.05000MHz", "407.55000MHz", "415.05000MHz", "422.55000MHz",
                                             "429.95000MHz"};
const std::vector<std::string> Uhf400Transmit{"400.10000MHz", "407.60000MHz", "415.10000MHz", "422.60000MHz",
                                              "429.90000MHz"};
const std::vector<std::string> Uhf470Receive{"470.05000MHz", "480.55000MHz", "491.05000MHz", "501.55000MHz",
                                             "511.95000MHz"};
const std::vector<std::string> Uhf470Transmit{"470.10000MHz", "480.60000MHz", "491.10000MHz", "501.60000MHz",
                                              "511.90000MHz"};

INSTANTIATE_TEST_SUITE_P(
    AllModels, FrequencyPointsOfModels,
    ::testing::Values(
        PointsRow{0xF8, 0x01, VhfReceive, VhfTransmit}, PointsRow{0xF8, 0x21, Uhf450Receive, Uhf450Transmit},
        PointsRow{0xF8,
                  0x33,
                  {"440.05000MHz", "450.05000MHz", "460.05000MHz", "470.05000MHz", "479.95000MHz"},
                  {"440.10000MHz", "450.10000MHz", "460.10000MHz", "470.10000MHz", "479.90000MHz"}},
        PointsRow{0xF8, 0x43, Uhf400Receive, Uhf400Transmit},
        PointsRow{0xF8,
                  0x63,
                  {"370.05000MHz", "375.05000MHz", "380.05000MHz", "385.05000MHz", "389.95000MHz"},
                  {"370.10000MHz", "375.10000MHz", "380.10000MHz", "385.10000MHz", "389.90000MHz"}},
        PointsRow{0xF8,
                  0x53,
                  {"350.05000MHz", "355.05000MHz", "360.05000MHz", "365.05000MHz", "369.95000MHz"},
                  {"350.10000MHz", "355.10000MHz", "360.10000MHz", "365.10000MHz", "369.90000MHz"}},
        PointsRow{0xF8,
                  0x73,
                  {"400.05000MHz", "417.55000MHz", "435.05000MHz", "452.55000MHz", "469.95000MHz"},
                  {"400.10000MHz", "417.60000MHz", "435.10000MHz", "452.60000MHz", "469.90000MHz"}},
        PointsRow{0xF9, 0x01, VhfReceive, VhfTransmit}, PointsRow{0xF9, 0x00, VhfReceive, VhfTransmit},
        PointsRow{0xF9, 0x20, Uhf450Receive, Uhf450Transmit}, PointsRow{0xF9, 0x21, Uhf450Receive, Uhf450Transmit},
        PointsRow{0xF9, 0x70, Uhf470Receive, Uhf470Transmit}, PointsRow{0xF9, 0x71, Uhf470Receive, Uhf470Transmit},
        PointsRow{0xFC, 0x01, VhfReceive, VhfTransmit}, PointsRow{0xFC, 0x21, Uhf450Receive, Uhf450Transmit},
        PointsRow{0xFC, 0x41, Uhf400Receive, Uhf400Transmit}));

TEST(FrequencyPoints, AnIdentityOfNoModelHasNone) {
    EXPECT_FALSE(FrequencyPointsOf(ImageOf(0xF8, 0x00)));
    EXPECT_FALSE(FrequencyPointsOf(ImageOf(0xF9, 0x41)));
    EXPECT_FALSE(FrequencyPointsOf(ImageOf(0xFC, 0x43)));
    EXPECT_FALSE(FrequencyPointsOf(ImageOf(0xFF, 0x01)));
}

TEST(FrequencyPoints, AFrequencyTextIsReadInUnitsOfTenHertz) {
    EXPECT_EQ(FrequencyOfText("145.12505"), 14512505);
    EXPECT_EQ(FrequencyOfText("0"), 0);
}

TEST(TestChannelRecord, ItsPairsOfDigitsAreReadFromTheLastByte) {
    const std::array<std::uint8_t, 8> record{0x05, 0x25, 0x51, 0x14, 0x00, 0x50, 0x62, 0x16};
    const TestFrequencyTexts texts = TestFrequencyTextOf(record);
    EXPECT_EQ(texts.receive, "145.12505");  // 14 51 25 05
    EXPECT_EQ(texts.transmit, "166.25000"); // 16 62 50 00
}

TEST(TestChannelRecord, AFirstByteOf0xFFIsAnUnusedChannelWhateverFollows) {
    const std::array<std::uint8_t, 8> record{0xFF, 0x25, 0x51, 0x14, 0x00, 0x50, 0x62, 0x16};
    const TestFrequencyTexts texts = TestFrequencyTextOf(record);
    EXPECT_EQ(texts.receive, "0");
    EXPECT_EQ(texts.transmit, "0");
}

TEST(TestChannelRecord, AgreesWithTheSameBytesOfItsOwnChannelOnly) {
    const std::array<std::uint8_t, 8> record{0x05, 0x25, 0x51, 0x14, 0x00, 0x50, 0x62, 0x16};
    DataImage image;
    for (int i = 0; i < 8; ++i) {
        image.Set(0x288 + i, record[static_cast<std::size_t>(i)]);
    }
    EXPECT_TRUE(AgreesWithImage(record, image, 2));
    EXPECT_FALSE(AgreesWithImage(record, image, 1));
    image.Set(0x28F, 0x15);
    EXPECT_FALSE(AgreesWithImage(record, image, 2));
}

TEST(TestChannelRecord, TwoUnusedChannelsAgreeWhateverTheirOtherBytes) {
    const std::array<std::uint8_t, 8> unused{0xFF, 1, 2, 3, 4, 5, 6, 7};
    const std::array<std::uint8_t, 8> used{0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
    const DataImage image; // all 0xFF
    EXPECT_TRUE(AgreesWithImage(unused, image, 16));
    EXPECT_FALSE(AgreesWithImage(used, image, 16));
}

TEST(TestChannels, AreOfferedAboveZeroAndBelowSixHundredMegahertz) {
    EXPECT_TRUE(IsTestChannelOffered({"145.12500", "145.12500"}));
    EXPECT_TRUE(IsTestChannelOffered({"599.99999", "0"}));
    EXPECT_FALSE(IsTestChannelOffered({"600.00000", "600.00000"}));
    EXPECT_FALSE(IsTestChannelOffered({"0", "145.12500"}));
    EXPECT_FALSE(IsTestChannelOffered({"000.00000", "145.12500"}));
}

} // namespace
} // namespace zelvor
