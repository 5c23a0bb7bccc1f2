#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>

#include "data/ChannelCodec.h"
#include "data/TestImages.h"
#include "support/AllocationCount.h"

namespace zelvor {
namespace {

/// A channel whose texts all say something, in English.
ChannelTexts FullTexts() {
    return {"145.12500", "450.00625", "67.0", "D023I", "High", "Wide", "Yes", "DTMF", "Off", "", "", "3", false, false};
}

/// An encoder whose working bytes are those of a decoded channel 16.
struct Bench {
    DataImage image;
    ChannelCodec codec;
    bool txCodeError = false;
    Language language = Language::English;

    explicit Bench(int byte12 = 0xFF, int byte13 = 0xFF, int byte14 = 0xFF, int pttIdType = 0) {
        testing::StoreBytes(image, 0x10C, {byte12, byte13, byte14});
        image.Set(0x133, static_cast<std::uint8_t>(pttIdType));
        Decode();
        codec.Texts = FullTexts();
    }
    void Decode() { static_cast<void>(codec.DecodeAll(image, language)); }
    void Encode(int k) { codec.EncodeChannel(image, language, k, txCodeError); }
};

TEST(ChannelEncoder, WritesTheRecordOfEachChannelAndItsScanAddBitOnly) {
    for (int k = 1; k <= 16; ++k) {
        Bench bench(0x00, 0x00, 0x00);
        bench.image.Set(0x17E, 0x00);
        bench.image.Set(0x17F, 0x00);
        DataImage expected = bench.image;
        testing::StoreHex(expected, 16 * k,
                          "00255114"
                          "25060045"
                          "9E02"
                          "13A8");
        // Byte 12 takes bits 3 and 4 from the record: erased in all channels but 16.
        testing::StoreBytes(expected, 16 * k + 12, {k == 16 ? 0x02 : 0x1A, 0xBF, 0xB0, 0xFA});
        testing::StoreBytes(expected, 0x17E, {k <= 8 ? 1 << (k - 1) : 0, k <= 8 ? 0 : 1 << (k - 9)});
        bench.Encode(k);
        EXPECT_EQ(bench.image, expected) << k;
    }
}

TEST(ChannelEncoder, WritesChannel16IntoTheRecordThatStartsARowOfTheArray) {
    Bench bench;
    bench.Encode(16);
    EXPECT_EQ(bench.image.At(0x100), 0x00);
    EXPECT_EQ(bench.image.At(0x101), 0x25);
    EXPECT_EQ(bench.image.At(0x10F), 0xFA);
    EXPECT_EQ(bench.image.AtIndex(4), 0x00);
    EXPECT_EQ(bench.image.AtIndex(4 + 16), 0x25);
    EXPECT_EQ(bench.image.At(0x110), 0xFF);
    EXPECT_EQ(bench.image.At(0x0FF), 0xFF);
}

TEST(ChannelEncoder, ErasesTheBytesOfAnEmptyFrequency) {
    Bench bench;
    bench.image.Set(0x014, 0x12);
    bench.codec.Texts.TxText.clear();
    bench.Encode(1);
    for (int address = 0x014; address < 0x018; ++address) {
        EXPECT_EQ(bench.image.At(address), 0xFF);
    }
    bench.codec.Texts.RxText.clear();
    bench.Encode(1);
    for (int address = 0x010; address < 0x014; ++address) {
        EXPECT_EQ(bench.image.At(address), 0xFF);
    }
    bench.codec.Texts.RxText = "000.00000";
    bench.Encode(1);
    for (int address = 0x010; address < 0x014; ++address) {
        EXPECT_EQ(bench.image.At(address), 0x00);
    }
}

TEST(ChannelEncoder, EncodesTheDecodeToneBeforeTheEncodeTone) {
    Bench bench;
    bench.codec.Texts.DecText = "D023I";
    bench.codec.Texts.EncText = "D754"; // the polarity of the text before it
    bench.Encode(1);
    EXPECT_EQ(bench.image.At(0x019), 0xA8);
    EXPECT_EQ(bench.image.At(0x01A), 0xEC);
    EXPECT_EQ(bench.image.At(0x01B), 0xA9);
    bench.codec.Texts.DecText = "D023";
    bench.codec.Texts.EncText = "None";
    bench.Encode(2);
    EXPECT_EQ(bench.image.At(0x029), 0xA8);
    EXPECT_EQ(bench.image.At(0x02A), 0xFF);
    EXPECT_EQ(bench.image.At(0x02B), 0xFF);
}

TEST(ChannelEncoder, SetsOptionSignallingByItsWordAndElseKeepsTheWorkingBits) {
    struct Word {
        Language language;
        std::string_view text;
        int bits; // -1: as they are
    };
    constexpr Word Words[] = {
        {Language::English, "None", 0}, {Language::English, "DTMF", 2}, {Language::English, "Corvane", 4},
        {Language::English, "", -1},    {Language::English, "无", -1},  {Language::English, "dtmf", -1},
        {Language::Chinese, "无", 0},   {Language::Chinese, "DTMF", 2}, {Language::Chinese, "Corvane", 4},
        {Language::Chinese, "", -1},    {Language::Chinese, "None", -1}};
    for (const Word& word : Words) {
        for (int working = 0; working < 256; ++working) {
            Bench bench(working);
            bench.language = word.language;
            bench.codec.Texts.OptSignalText = word.text;
            bench.Encode(1);
            const int expected = word.bits >= 0 ? word.bits : working & 0x06;
            ASSERT_EQ(bench.image.At(0x01C) & 0x06, expected) << word.text << ", working byte " << working;
        }
    }
}

TEST(ChannelEncoder, BuildsByte12FromTheWorkingByteAndTheRecord) {
    for (int working = 0; working < 256; ++working) {
        for (const int own : {0x00, 0x08, 0x10, 0x18, 0xE7, 0xFF}) {
            for (const bool compander : {false, true}) {
                Bench bench(working);
                bench.image.Set(0x02C, static_cast<std::uint8_t>(own));
                bench.codec.Texts.OptSignalText = "Corvane";
                bench.codec.Texts.CompanderFlag = compander;
                bench.Encode(2);
                const int expected = (working & 0xE0) | (own & 0x18) | 0x04 | (compander ? 0x01 : 0x00);
                ASSERT_EQ(bench.image.At(0x02C), expected) << "working byte " << working << ", record " << own;
            }
        }
    }
}

TEST(ChannelEncoder, NeverChangesTheBusyChannelLockoutOfARecord) {
    for (int own = 0; own < 256; ++own) {
        Bench bench(0x5A);
        bench.image.Set(0x01C, static_cast<std::uint8_t>(own));
        bench.codec.Texts.BusyLockText = "Carrier";
        bench.Encode(1);
        ASSERT_EQ(bench.image.At(0x01C) & 0x18, own & 0x18) << own;
    }
}

TEST(ChannelEncoder, ClearsSpUnmuteOnlyForAZeroOutsideTheMaskOfItsFixedByte) {
    for (int fixed = 0; fixed < 256; ++fixed) {
        for (const int working : {0x00, 0x20, 0x40, 0x60}) {
            Bench bench(working);
            bench.image.Set(0x00C, static_cast<std::uint8_t>(fixed));
            bench.image.Set(0x01C, 0x40);
            bench.codec.Texts.SpMuteText = "Carrier + Opt.Sig.";
            bench.Encode(1);
            const bool clears = fixed == 0x00 || fixed == 0x20 || fixed == 0x40 || fixed == 0x60;
            ASSERT_EQ(bench.image.At(0x01C) & 0x60, clears ? 0x00 : working) << fixed;
        }
    }
}

TEST(ChannelEncoder, BuildsByte13FromTheWorkingByteAndItsWords) {
    struct Case {
        Language language;
        std::string_view power;
        std::string_view width;
        int keptBits;
        int setBits;
    };
    constexpr Case Cases[] = {
        {Language::English, "High", "Wide", 0x00, 0x30}, {Language::English, "High", "Narrow", 0x00, 0x20},
        {Language::English, "Low", "Wide", 0x00, 0x10},  {Language::English, "Low", "Narrow", 0x00, 0x00},
        {Language::English, "", "Wide", 0x20, 0x10},     {Language::English, "High", "", 0x10, 0x20},
        {Language::English, "高", "宽带", 0x30, 0x00},   {Language::Chinese, "高", "宽带", 0x00, 0x30},
        {Language::Chinese, "低", "窄带", 0x00, 0x00},   {Language::Chinese, "Low", "Narrow", 0x30, 0x00}};
    for (const Case& words : Cases) {
        for (int working = 0; working < 256; ++working) {
            for (const bool beatShift : {false, true}) {
                Bench bench(0xFF, working);
                bench.language = words.language;
                bench.codec.Texts.PowerText = words.power;
                bench.codec.Texts.WidthText = words.width;
                bench.codec.Texts.BeatShiftFlag = beatShift;
                bench.Encode(1);
                const int expected = (working & words.keptBits) | words.setBits | (beatShift ? 0x40 : 0x00) | 0x8F;
                ASSERT_EQ(bench.image.At(0x01D), expected) << words.power << words.width << working;
            }
        }
    }
}

struct PttIdCase {
    Language language;
    std::string_view text;
    int type;
    int byte; // -1: the working byte
    bool txCodeError;
};

constexpr PttIdCase PttIdCases[] = {
    {Language::English, "Off", 0, 0xB0, false},
    {Language::English, "On", 0, 0xB1, true},
    {Language::English, "Own", 0, -1, false},
    {Language::English, "Fleet List 1", 0, -1, false},
    {Language::English, "", 0, -1, false},
    {Language::English, "开", 0, -1, false},
    {Language::Chinese, "关", 0, 0xB0, false},
    {Language::Chinese, "开", 0, 0xB1, true},
    {Language::Chinese, "On", 0, -1, false},
    {Language::English, "Off", 1, 0xB0, false},
    {Language::English, "Own", 1, 0xB1, false},
    {Language::English, "Fleet List 1", 1, 0xB2, false},
    {Language::English, "Fleet List 2", 1, 0xB3, false},
    {Language::English, "Fleet List 3", 1, 0xB4, false},
    {Language::English, "Fleet List 4", 1, 0xB5, false},
    {Language::English, "Fleet List 5", 1, 0xB6, false},
    {Language::English, "Fleet List 6", 1, 0xB7, false},
    {Language::English, "Fleet List 7", 1, 0xB8, false},
    {Language::English, "Fleet List 8", 1, 0xB9, false},
    {Language::English, "Fleet List", 1, 0xB1, false},
    {Language::English, "On", 1, -1, false},
    {Language::English, "", 1, -1, false},
    {Language::Chinese, "自身", 1, 0xB1, false},
    {Language::Chinese, "队列表 1", 1, 0xB2, false},
    {Language::Chinese, "队列表 8", 1, 0xB9, false},
    {Language::Chinese, "Fleet List 8", 1, -1, false},
    {Language::English, "Off", 2, -1, false},
    {Language::English, "On", 2, -1, false},
    {Language::English, "Own", 255, -1, false},
    {Language::English, "", 2, -1, false},
};

TEST(ChannelEncoder, SetsThePttIdByItsWordAndTypeAndElseKeepsTheWorkingByte) {
    for (const PttIdCase& expected : PttIdCases) {
        for (int working = 0; working < 256; ++working) {
            Bench bench(0xFF, 0xFF, working, expected.type);
            bench.language = expected.language;
            bench.codec.Texts.PttIdText = expected.text;
            bench.Encode(1);
            ASSERT_EQ(bench.image.At(0x01E), expected.byte >= 0 ? expected.byte : working)
                << expected.text << ", type " << expected.type << ", working byte " << working;
            ASSERT_EQ(bench.txCodeError, expected.txCodeError) << expected.text;
        }
    }
}

TEST(ChannelEncoder, NeverClearsTheTxCodeError) {
    Bench bench;
    bench.txCodeError = true;
    bench.Encode(1);
    EXPECT_TRUE(bench.txCodeError);
}

TEST(ChannelEncoder, WritesTheAutodialMemory) {
    const struct {
        std::string_view text;
        int byte;
    } cases[] = {{"", 0xF8},  {"1", 0xF8}, {"2", 0xF9}, {"3", 0xFA}, {"4", 0xFB},
                 {"5", 0xFC}, {"6", 0xFD}, {"7", 0xFE}, {"8", 0xFF}};
    for (const auto& expected : cases) {
        Bench bench;
        bench.codec.Texts.AutoDialText = expected.text;
        bench.Encode(1);
        EXPECT_EQ(bench.image.At(0x01F), expected.byte) << expected.text;
    }
}

TEST(ChannelEncoder, SetsAndClearsTheScanAddBitOfItsChannel) {
    for (int k = 1; k <= 16; ++k) {
        const int address = k <= 8 ? 0x17E : 0x17F;
        const int bit = k <= 8 ? 1 << (k - 1) : 1 << (k - 9);
        for (const int before : {0x00, 0xFF, 0x5A}) {
            Bench bench;
            bench.image.Set(0x17E, static_cast<std::uint8_t>(before));
            bench.image.Set(0x17F, static_cast<std::uint8_t>(before));
            bench.codec.Texts.ScanAddText = "";
            bench.Encode(k);
            EXPECT_EQ(bench.image.At(address), before);
            bench.codec.Texts.ScanAddText = "Yes";
            bench.Encode(k);
            EXPECT_EQ(bench.image.At(address), before | bit);
            bench.codec.Texts.ScanAddText = "No";
            bench.Encode(k);
            EXPECT_EQ(bench.image.At(address), before & ~bit);
            EXPECT_EQ(bench.image.At(k <= 8 ? 0x17F : 0x17E), before);
        }
    }
}

TEST(ChannelEncoder, CarriesItsWorkingBytesFromOneChannelToTheNext) {
    Bench bench(0x00, 0x00, 0x00, 1);
    bench.codec.Texts.OptSignalText = "Corvane";
    bench.codec.Texts.PowerText = "High";
    bench.codec.Texts.WidthText = "Wide";
    bench.codec.Texts.PttIdText = "Fleet List 7";
    bench.Encode(1);
    bench.codec.Texts.OptSignalText.clear();
    bench.codec.Texts.PowerText.clear();
    bench.codec.Texts.WidthText.clear();
    bench.codec.Texts.PttIdText.clear();
    bench.Encode(2);
    EXPECT_EQ(bench.image.At(0x02C), 0x1C);
    EXPECT_EQ(bench.image.At(0x02D), 0xBF);
    EXPECT_EQ(bench.image.At(0x02E), 0xB8);
}

TEST(ChannelEncoder, StartsAgainFromTheBytesOfChannel16AfterADecode) {
    Bench bench(0x64, 0x10, 0xB5, 2);
    bench.codec.Texts.OptSignalText = "DTMF";
    bench.codec.Texts.WidthText = "Narrow";
    bench.Encode(1);
    bench.Decode();
    bench.codec.Texts.OptSignalText = "";
    bench.codec.Texts.WidthText = "";
    bench.codec.Texts.PowerText = "";
    bench.codec.Texts.PttIdText = "";
    bench.codec.Texts.CompanderFlag = false;
    bench.codec.Texts.BeatShiftFlag = false;
    bench.Encode(2);
    EXPECT_EQ(bench.image.At(0x02C), 0x7C); // 0x64 with bits 3 and 4 of the erased record
    EXPECT_EQ(bench.image.At(0x02D), 0x9F);
    EXPECT_EQ(bench.image.At(0x02E), 0xB5);
}

TEST(ChannelEncoder, LeavesItsWorkingBytesAloneWhereHiddenFieldsAreLoaded) {
    Bench bench(0x60, 0x00, 0xB4, 2);
    bench.image.Set(0x01C, 0x00);
    bench.codec.LoadHiddenFields(bench.image, Language::English, 1);
    bench.Encode(1);
    EXPECT_EQ(bench.image.At(0x01C), 0x62);
    EXPECT_EQ(bench.image.At(0x01E), 0xB4);
}

TEST(ChannelEncoder, TakesNoMemoryFromTheHeap) {
    Bench bench;
    bench.codec.Texts.PttIdText = "Fleet List 7";
    for (int type = 0; type < 3; ++type) {
        bench.image.Set(0x133, static_cast<std::uint8_t>(type));
        const std::size_t before = testing::AllocationCount();
        for (int k = 1; k <= 16; ++k) {
            bench.Encode(k);
        }
        EXPECT_EQ(testing::AllocationCount(), before);
    }
    const std::size_t before = testing::AllocationCount();
    const std::string longText(1000, 'x');
    EXPECT_GT(testing::AllocationCount(), before) << "the counter does not count";
}

} // namespace
} // namespace zelvor
