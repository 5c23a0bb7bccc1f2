#include <gtest/gtest.h>

#include "data/BlankImage.h"
#include "data/ChannelCodec.h"
#include "data/TestImages.h"

namespace zelvor {
namespace {

DataImage BlankImage4618() {
    DataImage image;
    image.Set(0x1BD, 0x01);
    image.Set(0x1BE, 0xF8);
    InitAllFrameData(image);
    return image;
}

TEST(ChannelDefaults, CompleteAFirstFrequency) {
    DataImage image = BlankImage4618();
    ChannelCodec codec;
    codec.CompleteChannelDefaults(image, Language::English, 1, "145");
    EXPECT_EQ(codec.Texts.RxText, "145.00000");
    EXPECT_EQ(codec.Texts.TxText, "");
    EXPECT_EQ(codec.Texts.DecText, "None");
    EXPECT_EQ(codec.Texts.EncText, "None");
    EXPECT_EQ(codec.Texts.PowerText, "High");
    EXPECT_EQ(codec.Texts.WidthText, "Wide");
    EXPECT_EQ(codec.Texts.ScanAddText, "Yes");
    EXPECT_EQ(codec.Texts.OptSignalText, "None");
    EXPECT_EQ(codec.Texts.PttIdText, "Off");
    EXPECT_EQ(codec.Texts.SpMuteText, "Carrier");
    EXPECT_EQ(codec.Texts.BusyLockText, "Off");
    EXPECT_EQ(codec.Texts.AutoDialText, "1");
}

TEST(ChannelDefaults, AreWordsOfTheLanguage) {
    DataImage image = BlankImage4618();
    ChannelCodec codec;
    codec.CompleteChannelDefaults(image, Language::Chinese, 1, "145");
    EXPECT_EQ(codec.Texts.DecText, "无");
    EXPECT_EQ(codec.Texts.EncText, "无");
    EXPECT_EQ(codec.Texts.PowerText, "高");
    EXPECT_EQ(codec.Texts.WidthText, "宽带");
    EXPECT_EQ(codec.Texts.ScanAddText, "有");
    EXPECT_EQ(codec.Texts.OptSignalText, "无");
    EXPECT_EQ(codec.Texts.PttIdText, "关");
    EXPECT_EQ(codec.Texts.SpMuteText, "载波");
    EXPECT_EQ(codec.Texts.BusyLockText, "关");
}

TEST(ChannelDefaults, LeaveEveryTextThatIsThere) {
    DataImage image = BlankImage4618();
    ChannelCodec codec;
    codec.Texts = {"",   "146.00000",           "67.0",   "D023N", "Low", "Narrow", "No", "DTMF",
                   "On", "Carrier or Opt.Sig.", "QT/DQT", "7",     true,  true};
    codec.CompleteChannelDefaults(image, Language::English, 1, "145.00625");
    EXPECT_EQ(codec.Texts.RxText, "145.00625");
    EXPECT_EQ(codec.Texts.TxText, "146.00000");
    EXPECT_EQ(codec.Texts.DecText, "67.0");
    EXPECT_EQ(codec.Texts.EncText, "D023N");
    EXPECT_EQ(codec.Texts.PowerText, "Low");
    EXPECT_EQ(codec.Texts.WidthText, "Narrow");
    EXPECT_EQ(codec.Texts.ScanAddText, "No");
    EXPECT_EQ(codec.Texts.OptSignalText, "DTMF");
    EXPECT_EQ(codec.Texts.PttIdText, "On");
    EXPECT_EQ(codec.Texts.SpMuteText, "Carrier or Opt.Sig.");
    EXPECT_EQ(codec.Texts.BusyLockText, "QT/DQT");
    EXPECT_EQ(codec.Texts.AutoDialText, "1");
    EXPECT_FALSE(codec.Texts.BeatShiftFlag);
    EXPECT_FALSE(codec.Texts.CompanderFlag);
}

TEST(ChannelDefaults, TakeTheEncodeToneFromAReceiver) {
    DataImage image = BlankImage4618();
    ChannelCodec codec;
    codec.Texts.EncText = "67.0";
    codec.Texts.DecText = "67.0";
    codec.CompleteChannelDefaults(image, Language::English, 1, "145");
    EXPECT_EQ(codec.Texts.EncText, "None");
    EXPECT_EQ(codec.Texts.DecText, "67.0");
}

TEST(ChannelDefaults, GiveAPttIdOnlyUnderAKnownType) {
    for (int type = 0; type < 256; ++type) {
        DataImage image = BlankImage4618();
        image.Set(0x133, static_cast<std::uint8_t>(type));
        ChannelCodec codec;
        codec.CompleteChannelDefaults(image, Language::English, 1, "145");
        EXPECT_EQ(codec.Texts.PttIdText, type <= 1 ? "Off" : "") << type;
        codec.Texts.PttIdText = "Own";
        codec.CompleteChannelDefaults(image, Language::English, 1, "145");
        EXPECT_EQ(codec.Texts.PttIdText, type <= 1 ? "Own" : "") << type;
    }
}

TEST(ChannelDefaults, ClearThreeFieldsOfThatChannelInTheImageAndNothingElse) {
    for (int k = 1; k <= 16; ++k) {
        DataImage image;
        DataImage expected;
        expected.Set(16 * k + 12, 0xFE);
        expected.Set(16 * k + 13, 0xBF);
        expected.Set(16 * k + 15, 0xF8);
        ChannelCodec codec;
        codec.CompleteChannelDefaults(image, Language::English, k, "145");
        EXPECT_EQ(image, expected) << k;
    }
}

TEST(ChannelDefaults, MakeARecordTogetherWithTheEncoder) {
    DataImage image = BlankImage4618();
    ChannelCodec codec;
    static_cast<void>(codec.DecodeAll(image, Language::English));
    codec.Texts = {};
    codec.CompleteChannelDefaults(image, Language::English, 3, "145");
    bool txCodeError = false;
    codec.EncodeChannel(image, Language::English, 3, txCodeError);
    DataImage expected = BlankImage4618();
    // Byte 12 keeps bits 3 and 4 of the erased record, and bits 5 to 7 of the erased channel 16.
    testing::StoreHex(expected, 0x030, "00005014FFFFFFFFFFFFFFFFF8BFB0F8");
    expected.Set(0x17E, 0x04);
    EXPECT_EQ(image, expected);
    EXPECT_FALSE(txCodeError);
}

} // namespace
} // namespace zelvor
