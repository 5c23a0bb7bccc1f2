#include "data/ImageChecks.h"

#include <gtest/gtest.h>

#include "data/BlankImage.h"
#include "data/TestImages.h"

namespace zelvor {
namespace {

/// Model 4618, market M, with channel 2 on 145.125 MHz.
DataImage Sound() {
    DataImage image;
    image.Set(0x1BD, 1);
    image.Set(0x1BE, 0xF8);
    InitAllFrameData(image);
    testing::StoreHex(image, 0x020, "0025511400255114FFFFFFFF00BFB0F8");
    return image;
}

/// A line for each finding: weight, key and text.
std::vector<std::string> Findings(const DataImage& image) {
    constexpr const char* weights[] = {"hint", "spoils", "stops"};
    std::vector<std::string> lines;
    for (const ImageFinding& finding : CheckImage(image)) {
        lines.push_back(std::string(weights[static_cast<int>(WeightOf(finding.fault))]) + ' ' +
                        (finding.field ? finding.field->Key() : "") + ": " + TextOf(finding.fault, Language::English));
    }
    return lines;
}

using Lines = std::vector<std::string>;

DataImage With(std::initializer_list<std::pair<int, const char*>> bytes) {
    DataImage image = Sound();
    for (const auto& [address, hex] : bytes) {
        testing::StoreHex(image, address, hex);
    }
    return image;
}

TEST(ImageChecks, FindNothingInASoundImage) {
    EXPECT_EQ(Findings(Sound()), Lines());
}

TEST(ImageChecks, MissTheCodesThatAPttIdSends) {
    const std::string begin = "stops optional.begin-of-tx: the code is missing that a channel's PTT ID sends";
    const std::string end = "stops optional.end-of-tx: the code is missing that a channel's PTT ID sends";
    EXPECT_EQ(Findings(With({{0x02E, "B1"}})), Lines()); // the begin code is there
    EXPECT_EQ(Findings(With({{0x02E, "B1"}, {0x140, "FF"}})), Lines{begin});
    EXPECT_EQ(Findings(With({{0x02E, "B0"}, {0x140, "FF"}})), Lines());
    EXPECT_EQ(Findings(With({{0x02E, "B1"}, {0x132, "01"}})), Lines{end});
    EXPECT_EQ(Findings(With({{0x02E, "B1"}, {0x132, "02"}, {0x140, "FF"}})), (Lines{begin, end}));
    EXPECT_EQ(Findings(With({{0x02E, "B1"}, {0x140, "FF"}, {0x133, "01"}})), Lines()); // Corvane sends none
}

TEST(ImageChecks, MissThePriorityChannelOfAFixedMode) {
    EXPECT_EQ(Findings(With({{0x160, "01"}})),
              Lines{"stops scan.priority-channel: the priority mode is Fixed, and no channel is chosen"});
    EXPECT_EQ(Findings(With({{0x160, "01"}, {0x161, "02"}})), Lines());
    EXPECT_EQ(Findings(With({{0x160, "01"}, {0x161, "03"}})),
              Lines{"spoils scan.priority-channel: the priority channel is not programmed"});
    EXPECT_EQ(Findings(With({{0x160, "02"}, {0x164, "02"}, {0x161, "03"}})),
              Lines{"hint scan.priority-channel: the priority channel is not programmed"});
}

TEST(ImageChecks, TellFrequenciesOffRasterOutOfRangeAndOutOfMarket) {
    EXPECT_EQ(Findings(With({{0x020, "00235114"}})),
              Lines{"spoils channels.2.rx_mhz: the frequency is no multiple of 5 kHz or 6.25 kHz"});
    EXPECT_EQ(Findings(With({{0x024, "00255109"}})),
              Lines{"spoils channels.2.tx_mhz: the frequency is outside 100 to 550 MHz"});
    EXPECT_EQ(Findings(With({{0x024, "00500055"}})),
              Lines{"spoils channels.2.tx_mhz: the frequency is outside 100 to 550 MHz"});
    EXPECT_EQ(Findings(With({{0x020, "00000040"}})),
              Lines{"hint channels.2.rx_mhz: the frequency is outside the market's range"});
    EXPECT_EQ(Findings(With({{0x024, "FFFFFFFF"}})), Lines());
    EXPECT_EQ(Findings(With({{0x284, "01000015"}})),
              Lines{"spoils test.1.transmit: the frequency is no multiple of 5 kHz or 6.25 kHz"});
    EXPECT_EQ(Findings(With({{0x284, "00000040"}})),
              Lines{"hint test.1.transmit: the frequency is outside the market's range"});
    EXPECT_EQ(Findings(With({{0x280, "FF000040"}})), Lines()); // an empty test channel has none
    EXPECT_EQ(Findings(With({{0x284, "00000040"}, {0x1BD, "07"}})),
              Lines{"spoils identity.model: the model is unknown"});
    EXPECT_EQ(Findings(With({{0x030, "FFFFFF00"}})), Lines()); // a blank channel has no values
}

TEST(ImageChecks, TellIllegalBytesOfFields) {
    const auto illegal = [](const char* key) {
        return Lines{std::string("spoils ") + key + ": the value is not legal"};
    };
    EXPECT_EQ(Findings(With({{0x136, "02"}})), illegal("optional.beep"));
    EXPECT_EQ(Findings(With({{0x136, "FF"}})), Lines()); // never stored, and on
    EXPECT_EQ(Findings(With({{0x130, "00"}})), illegal("optional.time-out-timer"));
    EXPECT_EQ(Findings(With({{0x130, "29"}})), illegal("optional.time-out-timer"));
    EXPECT_EQ(Findings(With({{0x134, "0A"}})), illegal("optional.squelch-level"));
    EXPECT_EQ(Findings(With({{0x164, "04"}})), illegal("scan.revert-channel"));
    EXPECT_EQ(Findings(With({{0x120, "FF"}})), illegal("dtmf.id-code"));
    EXPECT_EQ(Findings(With({{0x1C0, "FB0100"}})), illegal("corvane.fleet-list.1.fleet"));
    EXPECT_EQ(Findings(With({{0x1C0, "01A10F"}})), illegal("corvane.fleet-list.1.id"));
    EXPECT_EQ(Findings(With({{0x028, "1040"}})), illegal("channels.2.decode"));
    EXPECT_EQ(Findings(With({{0x02C, "06"}})), illegal("channels.2.option_signalling"));
    EXPECT_EQ(Findings(With({{0x133, "02"}})), illegal("optional.ptt-id-type"));
}

TEST(ImageChecks, HintAtAChannelWithoutSpUnmute) {
    EXPECT_EQ(Findings(With({{0x02C, "60"}})), Lines{"hint channels.2.sp_unmute: the channel has no legal SP Unmute"});
}

TEST(ImageChecks, TellAnUnknownModelAndAHalfOwnNumber) {
    EXPECT_EQ(Findings(With({{0x1BD, "07"}})), Lines{"spoils identity.model: the model is unknown"});
    const std::string half = ": of the own fleet and the own ID only one is set";
    EXPECT_EQ(Findings(With({{0x170, "01"}})), Lines{"spoils corvane.own-id" + half});
    EXPECT_EQ(Findings(With({{0x171, "0100"}})), Lines{"spoils corvane.own-fleet" + half});
    EXPECT_EQ(Findings(With({{0x170, "010100"}})), Lines());
}

TEST(ImageChecks, HintAtValuesThatDoNotGoTogether) {
    EXPECT_EQ(Findings(With({{0x164, "02"}})),
              Lines{"hint scan.revert-channel: the priority mode does not offer this revert channel"});
    EXPECT_EQ(Findings(With({{0x1C0, "01"}})),
              Lines{"hint corvane.fleet-list.1.id: of the entry's fleet and ID only one is set"});
    EXPECT_EQ(Findings(With({{0x024, "FFFFFFFF"}, {0x02A, "1328"}})),
              Lines{"hint channels.2.encode: the channel has an encode tone and no transmit frequency"});
}

TEST(ImageChecks, HaveATextInBothLanguagesForEveryFault) {
    for (int fault = 0; fault <= static_cast<int>(ImageFault::EncodeWithoutTransmit); ++fault) {
        EXPECT_NE(TextOf(static_cast<ImageFault>(fault), Language::English), "");
        EXPECT_NE(TextOf(static_cast<ImageFault>(fault), Language::Chinese), "");
        EXPECT_NE(TextOf(static_cast<ImageFault>(fault), Language::Chinese),
                  TextOf(static_cast<ImageFault>(fault), Language::English));
    }
}

} // namespace
} // namespace zelvor
