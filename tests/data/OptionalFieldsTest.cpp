#include "data/OptionalFields.h"

#include <gtest/gtest.h>
#include <vector>

#include "text/StringTable.h"

namespace zelvor {
namespace {

using namespace optional_features;

using Texts = std::vector<std::string>;

Texts Words(const ListField& field, Language language) {
    Texts texts;
    for (const FieldWord& word : field.words) {
        texts.emplace_back(word.In(language));
    }
    return texts;
}

TEST(OptionalFields, ChecksLieAtTheirAddressesUnderTheirLabels) {
    const struct {
        CheckField field;
        int address = 0;
        const char* english = "";
        const char* chinese = "";
    } rows[] = {
        {ScramblerActivation, 0x12C, "Scrambler Activation", "扰频器激活"},
        {ScramblerBackup, 0x12D, "Scrambler Backup", "扰频器备份"},
        {BatterySave, 0x135, "Battery Save", "电池省电"},
        {Beep, 0x136, "Beep", "哔音"},
        {CancelOperation, 0x137, "Cancel Operation", "取消操作"},
        {VoxInhibit, 0x138, "VOX inhibit on Receive", "接收时禁止VOX"},
        {VoxFunction, 0x139, "VOX Function", "VOX功能"},
        {VoxProceedTone, 0x13C, "VOX Proceed Tone", "VOX可进行音调"},
        {CloneMode, 0x13E, "Clone Mode", "复制模式"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.field.address, row.address);
        EXPECT_EQ(row.field.label.In(Language::English), row.english);
        EXPECT_EQ(row.field.label.In(Language::Chinese), row.chinese);
        EXPECT_FALSE(IsOn(row.field, 0));
        for (int byte = 1; byte <= 255; ++byte) {
            EXPECT_TRUE(IsOn(row.field, static_cast<std::uint8_t>(byte))) << row.english << ' ' << byte;
        }
    }
}

TEST(OptionalFields, ListsHaveTheirWordsInBothLanguages) {
    const struct {
        const ListField& field;
        int address;
        const char* english;
        const char* chinese;
        Texts englishWords;
        Texts chineseWords;
    } rows[] = {
        {MicSensitivity, 0x13D, "Mic Sensitivity", "麦克风灵敏度", {"Normal", "High"}, {"常规", "高"}},
        {VoiceAnnunciation,
         0x12F,
         "Voice Annunciation",
         "语音通知",
         {"Off", "English", "Chinese"},
         {"关", "英文", "中文"}},
        {PttIdType, 0x133, "PTT ID Type", "PTT ID类型", {"DTMF", "Corvane"}, {"DTMF(双音多频)", "Corvane(科瓦讯)"}},
        {PttId, 0x132, "PTT ID", "PTT ID", {"BOT", "EOT", "Both"}, {"发射开始", "发射结束", "两者"}},
        {VoxDelayTime,
         0x13B,
         "VOX Delay Time[s]",
         "VOX延迟时间[秒]",
         {"0.3", "0.5", "1", "1.5", "2", "3"},
         {"0.3", "0.5", "1", "1.5", "2", "3"}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.field.address, row.address);
        EXPECT_EQ(row.field.label.In(Language::English), row.english);
        EXPECT_EQ(row.field.label.In(Language::Chinese), row.chinese);
        EXPECT_EQ(Words(row.field, Language::English), row.englishWords);
        EXPECT_EQ(Words(row.field, Language::Chinese), row.chineseWords);
    }
}

TEST(OptionalFields, EveryByteOfAListShowsItsEntry) {
    // The entries of the lowest bytes, of those between, and of 0xFF.
    const struct {
        const ListField& field;
        std::vector<int> entries;
        int otherwise;
        int blank;
    } rows[] = {
        {MicSensitivity, {0, 1}, -1, -1}, {VoiceAnnunciation, {0, 2, 1}, -1, -1},    {PttIdType, {0, 1}, -1, -1},
        {PttId, {0, 1, 2}, -1, -1},       {VoxDelayTime, {0, 1, 2, 3, 4, 5}, 0, -1},
    };
    for (const auto& row : rows) {
        for (int byte = 0; byte <= 254; ++byte) {
            const auto place = static_cast<std::size_t>(byte);
            const int entry = place < row.entries.size() ? row.entries[place] : row.otherwise;
            EXPECT_EQ(EntryOf(row.field, static_cast<std::uint8_t>(byte)), entry) << row.field.address << ' ' << byte;
        }
        EXPECT_EQ(EntryOf(row.field, 255), row.blank) << row.field.address;
    }
}

TEST(OptionalFields, EveryEntryOfAListStoresItsByteAndNoEntryOnlyWhereItHasOne) {
    const struct {
        const ListField& field;
        std::vector<int> bytes;
        std::optional<int> none;
    } rows[] = {
        {MicSensitivity, {0, 1}, 255}, {VoiceAnnunciation, {0, 2, 1}, std::nullopt}, {PttIdType, {0, 1}, 255},
        {PttId, {0, 1, 2}, 255},       {VoxDelayTime, {0, 1, 2, 3, 4, 5}, 255},
    };
    for (const auto& row : rows) {
        for (std::size_t entry = 0; entry < row.bytes.size(); ++entry) {
            EXPECT_EQ(ByteOf(row.field, static_cast<int>(entry)), row.bytes[entry]) << row.field.address;
        }
        EXPECT_EQ(ByteOf(row.field, -1), row.none) << row.field.address;
    }
}

TEST(OptionalFields, NumbersHaveTheirAddressesLabelsAndRanges) {
    const struct {
        const NumberField& field;
        int address;
        const char* english;
        const char* chinese;
        int first;
        int last;
        int digits;
    } rows[] = {
        {TimeOutTimer, 0x130, "Time Out Timer(TOT)[s]", "超时定时器(TOT)[秒]", 1, 40, 3},
        {TimeOutPreAlert, 0x131, "TOT Pre-Alert[s]", "超时定时器预警[秒]", 0, 10, 2},
        {SquelchLevel, 0x134, "Squelch Level", "静噪电平", 0, 9, 1},
        {VoxGainLevel, 0x13A, "VOX Gain Level", "VOX增益电平", 0, 10, 2},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.field.address, row.address);
        EXPECT_EQ(row.field.bytes, 1);
        EXPECT_EQ(row.field.label.In(Language::English), row.english);
        EXPECT_EQ(row.field.label.In(Language::Chinese), row.chinese);
        EXPECT_EQ(row.field.first, row.first);
        EXPECT_EQ(row.field.last, row.last);
        EXPECT_EQ(row.field.increment, 1);
        EXPECT_EQ(row.field.lengthLimit, row.digits);
    }
}

TEST(OptionalFields, ATimeOutShowsFifteenSecondsAStep) {
    DataImage image;
    EXPECT_EQ(LoadNumber(image, TimeOutTimer, Language::English).text, "3825");
    const struct {
        int byte;
        const char* text;
    } rows[] = {{0, "0"}, {1, "15"}, {4, "60"}, {40, "600"}, {41, "615"}, {254, "3810"}};
    for (const auto& row : rows) {
        image.Set(0x130, static_cast<std::uint8_t>(row.byte));
        EXPECT_EQ(LoadNumber(image, TimeOutTimer, Language::Chinese).text, row.text);
    }
}

TEST(OptionalFields, ATimeOutIsRoundedUpToTheNextStepOfItsRange) {
    for (int seconds = 0; seconds <= 999; ++seconds) {
        int steps = 1;
        while (steps < 40 && steps * 15 < seconds) {
            ++steps;
        }
        EXPECT_EQ(ReadTimeOut(std::to_string(seconds)), steps) << seconds;
    }
    EXPECT_EQ(ReadTimeOut(""), 1);
    EXPECT_EQ(ReadTimeOut("15"), 1);
    EXPECT_EQ(ReadTimeOut("16"), 2);
    EXPECT_EQ(ReadTimeOut("585"), 39);
    EXPECT_EQ(ReadTimeOut("586"), 40);
    EXPECT_EQ(ReadTimeOut("599"), 40);
    EXPECT_EQ(ReadTimeOut("3825"), 40);
}

TEST(OptionalFields, PreAlertAndGainLevelShowOffForNoneAndNothingForABlankByte) {
    for (const NumberField* field : {&TimeOutPreAlert, &VoxGainLevel}) {
        DataImage image;
        EXPECT_EQ(LoadNumber(image, *field, Language::English).text, "");
        EXPECT_EQ(LoadNumber(image, *field, Language::English).value, 0);
        image.Set(field->address, 0);
        EXPECT_EQ(LoadNumber(image, *field, Language::English).text, "Off");
        EXPECT_EQ(LoadNumber(image, *field, Language::Chinese).text, "关");
        image.Set(field->address, 10);
        EXPECT_EQ(LoadNumber(image, *field, Language::English).text, "10");
        image.Set(field->address, 254);
        EXPECT_EQ(LoadNumber(image, *field, Language::English).text, "254");
    }
}

TEST(OptionalFields, PreAlertAndGainLevelEndAtTen) {
    for (int value = 0; value <= 99; ++value) {
        EXPECT_EQ(ReadUpToTen(std::to_string(value)), value < 10 ? value : 10) << value;
    }
    EXPECT_EQ(ReadUpToTen(""), 0);
    EXPECT_EQ(ReadUpToTen("Off"), 0);
    EXPECT_EQ(ReadUpToTen("关"), 0);
}

TEST(OptionalFields, ASquelchLevelIsTheNumberThatIsShown) {
    DataImage image;
    EXPECT_EQ(LoadNumber(image, SquelchLevel, Language::English).text, "0");
    image.Set(0x134, 9);
    EXPECT_EQ(LoadNumber(image, SquelchLevel, Language::English).text, "9");
    image.Set(0x134, 200);
    EXPECT_EQ(LoadNumber(image, SquelchLevel, Language::English).text, "200");
    EXPECT_EQ(ReadSquelchLevel(""), 0);
    EXPECT_EQ(ReadSquelchLevel("7"), 7);
    EXPECT_EQ(ReadSquelchLevel("200"), 200);
    EXPECT_EQ(ReadSquelchLevel("954"), 9);
}

TEST(OptionalFields, CodesLieAtTheirAddressesUnderTheirLabels) {
    EXPECT_EQ(PttCodes[0].address, 0x140);
    EXPECT_EQ(PttCodes[1].address, 0x150);
    EXPECT_EQ(PttCodes[0].label.In(Language::English), "Begin of TX");
    EXPECT_EQ(PttCodes[0].label.In(Language::Chinese), "发射开始");
    EXPECT_EQ(PttCodes[1].label.In(Language::English), "End of TX");
    EXPECT_EQ(PttCodes[1].label.In(Language::Chinese), "发射结束");
}

TEST(OptionalFields, ACodeIsReadOverItsGaps) {
    DataImage image;
    EXPECT_EQ(LoadCode(image, PttCodes[0]), u"");
    image.Set(0x140, '1');
    image.Set(0x142, 'A');
    image.Set(0x14F, '#');
    image.Set(0x150, 'x'); // not part of it
    EXPECT_EQ(LoadCode(image, PttCodes[0]), u"1A#");
    image.Set(0x15F, 0x80);
    EXPECT_EQ(LoadCode(image, PttCodes[1]), u"x€");
}

TEST(OptionalFields, AShorterCodeLeavesTheTailOfALongerOne) {
    DataImage image;
    StoreCode(image, PttCodes[1], u"12345");
    StoreCode(image, PttCodes[1], u"9*B");
    EXPECT_EQ(LoadCode(image, PttCodes[1]), u"9*B45");
    EXPECT_EQ(image.At(0x14F), 0xFF);
    EXPECT_EQ(image.At(0x155), 0xFF);
    EXPECT_EQ(LoadCode(image, PttCodes[0]), u"");
}

TEST(OptionalFields, AnEmptyCodeClearsAllSixteenBytes) {
    DataImage image;
    image.Fill(0x31);
    StoreCode(image, PttCodes[0], u"");
    for (int address = 0x140; address <= 0x14F; ++address) {
        EXPECT_EQ(image.At(address), 0xFF) << address;
    }
    EXPECT_EQ(image.At(0x13F), 0x31);
    EXPECT_EQ(image.At(0x150), 0x31);
}

TEST(OptionalFields, OnlyACodeThatIsToBeSentCanBeMissing) {
    const struct {
        PttIdChoice choice;
        int none, begin, end, both; // kinds, by what is missing
    } rows[] = {{PttIdChoice::Bot, 0, 1, 0, 1}, {PttIdChoice::Eot, 0, 0, 2, 2}, {PttIdChoice::Both, 0, 1, 2, 3}};
    for (const auto& row : rows) {
        DataImage image;
        EXPECT_EQ(MissingCodes(row.choice, image), row.both);
        image.Set(0x150, 0x00);
        EXPECT_EQ(MissingCodes(row.choice, image), row.begin);
        image.Set(0x140, 0xFE);
        EXPECT_EQ(MissingCodes(row.choice, image), row.none);
        image.Set(0x150, 0xFF);
        EXPECT_EQ(MissingCodes(row.choice, image), row.end);
    }
}

} // namespace
} // namespace zelvor
