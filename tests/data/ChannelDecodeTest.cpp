#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "data/ChannelCodec.h"
#include "data/TestImages.h"

namespace zelvor {
namespace {

struct Pair {
    std::string_view english;
    std::string_view chinese;

    [[nodiscard]] std::string_view In(Language language) const {
        return language == Language::Chinese ? chinese : english;
    }
};

constexpr std::array<Language, 2> BothLanguages{Language::English, Language::Chinese};

/// Channel 1 with one byte of its record set, under a PTT ID Type.
ChannelTexts DecodeWithByte(int j, int value, Language language, int pttIdType = 0) {
    DataImage image;
    image.Set(0x133, static_cast<std::uint8_t>(pttIdType));
    image.Set(0x010 + j, static_cast<std::uint8_t>(value));
    ChannelCodec codec;
    return codec.DecodeAll(image, language).front();
}

TEST(ChannelDecoder, ShowsAProgrammedChannelInBothLanguages) {
    DataImage image;
    testing::StoreHex(image, 0x030,
                      "0025511425060045"
                      "9E0213A8"
                      "0BF0B1FA");
    image.Set(0x133, 0x00);
    image.Set(0x17E, 0x04);
    ChannelCodec codec;
    const ChannelTexts english = codec.DecodeAll(image, Language::English)[2];
    EXPECT_EQ(english.RxText, "145.12500");
    EXPECT_EQ(english.TxText, "450.00625");
    EXPECT_EQ(english.DecText, "67.0");
    EXPECT_EQ(english.EncText, "D023I");
    EXPECT_EQ(english.PowerText, "High");
    EXPECT_EQ(english.WidthText, "Wide");
    EXPECT_EQ(english.ScanAddText, "Yes");
    EXPECT_EQ(english.OptSignalText, "DTMF");
    EXPECT_EQ(english.PttIdText, "On");
    EXPECT_EQ(english.SpMuteText, "Carrier");
    EXPECT_EQ(english.BusyLockText, "Carrier");
    EXPECT_EQ(english.AutoDialText, "3");
    EXPECT_TRUE(english.BeatShiftFlag);
    EXPECT_TRUE(english.CompanderFlag);

    const ChannelTexts chinese = codec.DecodeAll(image, Language::Chinese)[2];
    EXPECT_EQ(chinese.RxText, "145.12500");
    EXPECT_EQ(chinese.PowerText, "高");
    EXPECT_EQ(chinese.WidthText, "宽带");
    EXPECT_EQ(chinese.ScanAddText, "有");
    EXPECT_EQ(chinese.OptSignalText, "DTMF");
    EXPECT_EQ(chinese.PttIdText, "开");
    EXPECT_EQ(chinese.SpMuteText, "载波");
    EXPECT_EQ(chinese.BusyLockText, "载波");
}

TEST(ChannelDecoder, OrdersTheGridTextsByColumn) {
    const ChannelTexts texts{"1", "2", "3", "4", "5", "6", "7", "8", "9", "", "", "", false, false};
    for (std::size_t column = 1; column <= 9; ++column) {
        EXPECT_EQ(texts.*GridTexts[column - 1], std::to_string(column));
    }
}

TEST(ChannelDecoder, ReadsEveryChannelFromItsOwnRecord) {
    DataImage image;
    for (int k = 1; k <= 16; ++k) {
        testing::StoreBytes(image, 16 * k, {0x00, 0x00, k / 10 * 16 + k % 10, 0x14});
    }
    ChannelCodec codec;
    const std::vector<ChannelTexts> all = codec.DecodeAll(image, Language::English);
    ASSERT_EQ(all.size(), 16U);
    EXPECT_EQ(all[0].RxText, "140.10000");
    EXPECT_EQ(all[8].RxText, "140.90000");
    EXPECT_EQ(all[15].RxText, "141.60000");
    EXPECT_EQ(codec.Texts.RxText, "141.60000");
    EXPECT_EQ(codec.ChannelBytes[15][2], 0x16);
}

TEST(ChannelDecoder, CallsAFrequencyMissingWhateverItsLowBytesHold) {
    for (const int top : {0x00, 0xFF}) {
        DataImage image;
        testing::StoreBytes(image, 0x010, {0x78, 0x56, 0x34, top, 0x78, 0x56, 0x34, top});
        ChannelCodec codec;
        const ChannelTexts texts = codec.DecodeAll(image, Language::English)[0];
        EXPECT_EQ(texts.RxText, "000.00000");
        EXPECT_EQ(texts.TxText, "");
        for (std::size_t j = 0; j < 8; ++j) {
            EXPECT_EQ(codec.ChannelBytes[0][j], 0);
        }
        codec.RefreshChannelBytes(image);
        EXPECT_EQ(codec.ChannelBytes[0][0], 0x78);
        EXPECT_EQ(codec.ChannelBytes[0][7], top);
    }
}

TEST(ChannelDecoder, ShowsNothingForTheMissingTransmitFrequencyOfAReceiver) {
    DataImage image;
    testing::StoreHex(image, 0x010, "00255114FFFFFFFF");
    ChannelCodec codec;
    const ChannelTexts texts = codec.DecodeAll(image, Language::English)[0];
    EXPECT_EQ(texts.RxText, "145.12500");
    EXPECT_EQ(texts.TxText, "");
}

TEST(ChannelDecoder, ReadsEveryValueOfByte12) {
    constexpr std::array<std::string_view, 4> OptSignal[] = {{"None", "DTMF", "Corvane", ""},
                                                             {"无", "DTMF", "Corvane", ""}};
    constexpr std::array<std::string_view, 4> BusyLock[] = {{"Off", "Carrier", "QT/DQT", "Option Signalling"},
                                                            {"关", "载波", "QT/DQT", "可选信令"}};
    constexpr std::array<std::string_view, 4> SpMute[] = {{"Carrier", "Carrier + Opt.Sig.", "Carrier or Opt.Sig.", ""},
                                                          {"载波", "载波+可选信令", "载波或可选信令", ""}};
    for (std::size_t language = 0; language < 2; ++language) {
        for (std::size_t byte = 0; byte < 256; ++byte) {
            const ChannelTexts texts = DecodeWithByte(12, static_cast<int>(byte), BothLanguages[language]);
            ASSERT_EQ(texts.OptSignalText, OptSignal[language][byte / 2 % 4]) << byte;
            ASSERT_EQ(texts.BusyLockText, BusyLock[language][byte / 8 % 4]) << byte;
            ASSERT_EQ(texts.SpMuteText, SpMute[language][byte / 32 % 4]) << byte;
            ASSERT_EQ(texts.CompanderFlag, byte % 2 == 1) << byte;
        }
    }
}

TEST(ChannelDecoder, ShowsNoOptionSignallingForBothBitsAndForAnErasedByte) {
    EXPECT_EQ(DecodeWithByte(12, 0x06, Language::English).OptSignalText, "");
    EXPECT_EQ(DecodeWithByte(12, 0xFF, Language::English).OptSignalText, "");
}

TEST(ChannelDecoder, ReadsEveryValueOfByte13) {
    constexpr Pair Width[] = {{"Narrow", "窄带"}, {"Wide", "宽带"}};
    constexpr Pair Power[] = {{"Low", "低"}, {"High", "高"}};
    for (const Language language : BothLanguages) {
        for (int byte = 0; byte < 256; ++byte) {
            const ChannelTexts texts = DecodeWithByte(13, byte, language);
            ASSERT_EQ(texts.WidthText, Width[byte / 16 % 2].In(language)) << byte;
            ASSERT_EQ(texts.PowerText, Power[byte / 32 % 2].In(language)) << byte;
            ASSERT_EQ(texts.BeatShiftFlag, byte / 64 % 2 == 1) << byte;
        }
    }
}

TEST(ChannelDecoder, ReadsEveryValueOfByte14UnderEveryPttIdType) {
    constexpr Pair Corvane[16] = {{"Off", "关"},
                                  {"Own", "自身"},
                                  {"Fleet List 1", "队列表 1"},
                                  {"Fleet List 2", "队列表 2"},
                                  {"Fleet List 3", "队列表 3"},
                                  {"Fleet List 4", "队列表 4"},
                                  {"Fleet List 5", "队列表 5"},
                                  {"Fleet List 6", "队列表 6"},
                                  {"Fleet List 7", "队列表 7"},
                                  {"Fleet List 8", "队列表 8"},
                                  {"Off", "关"},
                                  {"Off", "关"},
                                  {"Off", "关"},
                                  {"Off", "关"},
                                  {"Off", "关"},
                                  {"Off", "关"}};
    constexpr int OnBytes[] = {0xB1, 0xB3, 0xB5, 0xB7, 0xB9, 0xBB, 0xBD, 0xBF,
                               0xF1, 0xF3, 0xF5, 0xF7, 0xF9, 0xFB, 0xFD, 0xFF};
    for (const Language language : BothLanguages) {
        for (int byte = 0; byte < 256; ++byte) {
            const bool isOn = std::find(std::begin(OnBytes), std::end(OnBytes), byte) != std::end(OnBytes);
            const Pair dtmf = isOn ? Pair{"On", "开"} : Pair{"Off", "关"};
            ASSERT_EQ(DecodeWithByte(14, byte, language, 0).PttIdText, dtmf.In(language)) << byte;
            ASSERT_EQ(DecodeWithByte(14, byte, language, 1).PttIdText, Corvane[byte % 16].In(language)) << byte;
            ASSERT_EQ(DecodeWithByte(14, byte, language, 2).PttIdText, "") << byte;
        }
        for (int type = 2; type < 256; ++type) {
            ASSERT_EQ(DecodeWithByte(14, 0xB1, language, type).PttIdText, "") << type;
        }
    }
}

TEST(ChannelDecoder, ReadsEveryValueOfByte15) {
    constexpr std::string_view Number[8] = {"1", "2", "3", "4", "5", "6", "7", "8"};
    for (int byte = 0; byte < 256; ++byte) {
        ASSERT_EQ(DecodeWithByte(15, byte, Language::English).AutoDialText, Number[byte % 8]) << byte;
    }
}

TEST(ChannelDecoder, ReadsTheScanAddBitOfEachChannel) {
    for (std::size_t bit = 0; bit < 16; ++bit) {
        DataImage image;
        image.Set(0x17E, static_cast<std::uint8_t>(bit < 8 ? 1 << bit : 0));
        image.Set(0x17F, static_cast<std::uint8_t>(bit < 8 ? 0 : 1 << (bit - 8)));
        ChannelCodec codec;
        const std::vector<ChannelTexts> english = codec.DecodeAll(image, Language::English);
        const std::vector<ChannelTexts> chinese = codec.DecodeAll(image, Language::Chinese);
        for (std::size_t i = 0; i < 16; ++i) {
            EXPECT_EQ(english[i].ScanAddText, i == bit ? "Yes" : "No");
            EXPECT_EQ(chinese[i].ScanAddText, i == bit ? "有" : "无");
        }
    }
}

TEST(ChannelDecoder, KeepsTheToneOfTheChannelBeforeForAWordThatIsNoTone) {
    DataImage image;
    testing::StoreHex(image, 0x018,
                      "9E02"
                      "1328"); // channel 1: 67.0, D023N
    testing::StoreHex(image, 0x028,
                      "0040"
                      "0040"); // channel 2: 1638.4 Hz
    testing::StoreHex(image, 0x038,
                      "FFFF"
                      "0050"); // channel 3: none, 2048.0 Hz
    ChannelCodec codec;
    const std::vector<ChannelTexts> all = codec.DecodeAll(image, Language::English);
    EXPECT_EQ(all[1].DecText, "67.0");
    EXPECT_EQ(all[1].EncText, "D023N");
    EXPECT_EQ(all[2].DecText, "None");
    EXPECT_EQ(all[2].EncText, "D023N");
    EXPECT_EQ(all[3].EncText, "None");
}

TEST(ChannelDecoder, LoadsTheFieldsWithoutAColumnFromOneRecordAndLeavesTheRest) {
    DataImage image;
    testing::StoreHex(image, 0x05C, "50CFB0FD");
    ChannelCodec codec;
    codec.Texts.RxText = "145.12500";
    codec.Texts.OptSignalText = "Corvane";
    codec.Texts.CompanderFlag = true;
    codec.LoadHiddenFields(image, Language::English, 5);
    EXPECT_EQ(codec.Texts.SpMuteText, "Carrier or Opt.Sig.");
    EXPECT_EQ(codec.Texts.BusyLockText, "QT/DQT");
    EXPECT_EQ(codec.Texts.AutoDialText, "6");
    EXPECT_TRUE(codec.Texts.BeatShiftFlag);
    EXPECT_FALSE(codec.Texts.CompanderFlag);
    EXPECT_EQ(codec.Texts.RxText, "145.12500");
    EXPECT_EQ(codec.Texts.OptSignalText, "Corvane");
}

TEST(PttIdTexts, ListsTheChoicesOfThePttIdType) {
    DataImage image;
    image.Set(0x133, 0);
    EXPECT_EQ(PttIdTexts(image, Language::English), (std::vector<std::string>{"Off", "On"}));
    EXPECT_EQ(PttIdTexts(image, Language::Chinese), (std::vector<std::string>{"关", "开"}));
    image.Set(0x133, 1);
    EXPECT_EQ(PttIdTexts(image, Language::English),
              (std::vector<std::string>{"Off", "Own", "Fleet List 1", "Fleet List 2", "Fleet List 3", "Fleet List 4",
                                        "Fleet List 5", "Fleet List 6", "Fleet List 7", "Fleet List 8"}));
    EXPECT_EQ(PttIdTexts(image, Language::Chinese),
              (std::vector<std::string>{"关", "自身", "队列表 1", "队列表 2", "队列表 3", "队列表 4", "队列表 5",
                                        "队列表 6", "队列表 7", "队列表 8"}));
    for (int type = 2; type < 256; ++type) {
        image.Set(0x133, static_cast<std::uint8_t>(type));
        EXPECT_TRUE(PttIdTexts(image, Language::English).empty());
    }
}

TEST(PttIdTexts, WriteAFleetListWithABlankBeforeItsNumber) {
    EXPECT_EQ(FleetListText(Language::English, 3), "Fleet List 3");
    EXPECT_EQ(FleetListText(Language::Chinese, 8), "队列表 8");
}

} // namespace
} // namespace zelvor
