#include "data/DtmfFields.h"

#include <gtest/gtest.h>
#include <vector>

namespace zelvor {
namespace {

constexpr Language En = Language::English;
constexpr Language Zh = Language::Chinese;

using Bytes = std::vector<int>;
using Digits = std::u16string;

Bytes From(const DataImage& image, int address, int count) {
    Bytes bytes;
    for (int i = 0; i < count; ++i) {
        bytes.push_back(image.At(address + i));
    }
    return bytes;
}

void Put(DataImage& image, int address, std::initializer_list<int> bytes) {
    for (const int byte : bytes) {
        image.Set(address++, static_cast<std::uint8_t>(byte));
    }
}

/// Memory 1 to 8.
const TextField& Memory(int n) {
    return dtmf::Autodials[static_cast<std::size_t>(n - 1)];
}

struct Range {
    int from;
    int to;
    int value;
};
void ExpectReads(const NumberField& field, std::initializer_list<Range> ranges) {
    for (const Range& range : ranges) {
        for (int typed = range.from; typed <= range.to; ++typed) {
            ASSERT_EQ(field.read(std::to_string(typed)), range.value) << field.address << ": " << typed;
        }
    }
}

TEST(DtmfFields, HaveDtmfDigitsAndTurnSmallLettersIntoCapitals) {
    const std::string_view entered = "0123456789ABCD*#abcd";
    const std::string_view stored = "0123456789ABCD*#ABCD";
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        const auto place = character < 0x80 ? entered.find(static_cast<char>(character)) : std::string_view::npos;
        const char expected = place == std::string_view::npos ? '\0' : stored[place];
        ASSERT_EQ(DtmfDigit(character), expected) << static_cast<unsigned>(character);
    }
}

TEST(DtmfFields, LieAtTheirAddresses) {
    EXPECT_EQ(dtmf::Speed.address, 0x110);
    EXPECT_EQ(dtmf::FirstDigitTime.address, 0x111);
    EXPECT_EQ(dtmf::FirstDigitDelay.address, 0x112);
    EXPECT_EQ(dtmf::Tone.address, 0x113);
    EXPECT_EQ(dtmf::DCodeAssignment.address, 0x114);
    EXPECT_EQ(dtmf::SideTone.address, 0x115);
    EXPECT_EQ(dtmf::GroupCode.address, 0x116);
    EXPECT_EQ(dtmf::AutoResetTimer.address, 0x117);
    EXPECT_EQ(dtmf::CallAlert.address, 0x118);
    EXPECT_EQ(dtmf::Transpond.address, 0x119);
    EXPECT_EQ(dtmf::ClearToTranspond.address, 0x11A);
    EXPECT_EQ(dtmf::IdCode.address, 0x120);
    EXPECT_EQ(dtmf::StunCode.address, 0x1F0);
    EXPECT_EQ(dtmf::StunType.address, 0x1FA);
}

TEST(DtmfFields, SpeedsAreSixEightTenAndFifteenAndSnapDownward) {
    EXPECT_EQ(dtmf::Speed.show(0, En), "6");
    EXPECT_EQ(dtmf::Speed.show(1, En), "8");
    EXPECT_EQ(dtmf::Speed.show(2, Zh), "10");
    EXPECT_EQ(dtmf::Speed.show(3, Zh), "15");
    EXPECT_EQ(dtmf::Speed.show(4, En), "");
    EXPECT_EQ(dtmf::Speed.show(254, En), "");
    ExpectReads(dtmf::Speed, {{0, 7, 0}, {8, 9, 1}, {10, 14, 2}, {15, 99, 3}});
    EXPECT_EQ(dtmf::Speed.read(""), 0);
}

TEST(DtmfFields, TimesAreNoneATenthHalfAndAWholeSecondAndSnapDownward) {
    for (const NumberField& field : {dtmf::FirstDigitTime, dtmf::Tone}) {
        EXPECT_EQ(field.show(0, En), "0");
        EXPECT_EQ(field.show(1, Zh), "100");
        EXPECT_EQ(field.show(2, En), "500");
        EXPECT_EQ(field.show(3, Zh), "1000");
        EXPECT_EQ(field.show(4, En), "");
        ExpectReads(field, {{0, 99, 0}, {100, 499, 1}, {500, 999, 2}, {1000, 9999, 3}});
        EXPECT_EQ(field.read(""), 0);
    }
}

TEST(DtmfFields, TheFirstDigitDelayIsCutToTensAndFallsToTheLeastBelowOneHundredFifty) {
    EXPECT_EQ(dtmf::FirstDigitDelay.show(10, En), "100");
    EXPECT_EQ(dtmf::FirstDigitDelay.show(100, Zh), "1000");
    EXPECT_EQ(dtmf::FirstDigitDelay.show(0, En), "0");
    EXPECT_EQ(dtmf::FirstDigitDelay.show(254, En), "2540");
    ExpectReads(dtmf::FirstDigitDelay,
                {{0, 149, 10}, {150, 159, 15}, {160, 169, 16}, {990, 999, 99}, {1000, 9999, 100}});
    EXPECT_EQ(dtmf::FirstDigitDelay.read(""), 10);
}

TEST(DtmfFields, TheDCodeIsAWordOrSecondsAndTooManySecondsGiveTheWord) {
    EXPECT_EQ(dtmf::DCodeAssignment.show(0, En), "D Code");
    EXPECT_EQ(dtmf::DCodeAssignment.show(0, Zh), "D 码");
    EXPECT_EQ(dtmf::DCodeAssignment.show(1, En), "1s");
    EXPECT_EQ(dtmf::DCodeAssignment.show(16, Zh), "16s");
    EXPECT_EQ(dtmf::DCodeAssignment.show(17, En), "");
    EXPECT_EQ(dtmf::DCodeAssignment.show(254, En), "");
    EXPECT_EQ(dtmf::DCodeAssignment.read("7s"), 7);
    EXPECT_EQ(dtmf::DCodeAssignment.read("7D"), 7);
    for (const char* text : {"", "D", "D Code", "D 码", "D7", "0"}) {
        EXPECT_EQ(dtmf::DCodeAssignment.read(text), 0) << text;
    }
    EXPECT_EQ(dtmf::DCodeAssignment.read("1"), 1);
    EXPECT_EQ(dtmf::DCodeAssignment.read("16"), 16);
    ExpectReads(dtmf::DCodeAssignment, {{17, 99, 0}});
}

TEST(DtmfFields, TheAutoResetTimerIsOffOrUpToFifteenSeconds) {
    EXPECT_EQ(dtmf::AutoResetTimer.show(0, En), "Off");
    EXPECT_EQ(dtmf::AutoResetTimer.show(0, Zh), "关");
    EXPECT_EQ(dtmf::AutoResetTimer.show(15, En), "15");
    EXPECT_EQ(dtmf::AutoResetTimer.show(254, En), "254");
    EXPECT_EQ(dtmf::AutoResetTimer.read(""), 0);
    EXPECT_EQ(dtmf::AutoResetTimer.read("Off"), 0);
    EXPECT_EQ(dtmf::AutoResetTimer.read("关"), 0);
    ExpectReads(dtmf::AutoResetTimer, {{0, 0, 0}, {1, 1, 1}, {14, 14, 14}, {15, 99, 15}});
}

TEST(DtmfFields, AnErasedByteStandsForItsFieldsBlankValue) {
    const DataImage erased;
    const auto load = [&erased](const NumberField& field) { return LoadNumber(erased, field, En); };
    EXPECT_EQ(load(dtmf::Speed).value, 0);
    EXPECT_EQ(load(dtmf::Speed).text, "6");
    EXPECT_EQ(load(dtmf::FirstDigitTime).text, "0");
    EXPECT_EQ(load(dtmf::Tone).text, "0");
    EXPECT_EQ(load(dtmf::FirstDigitDelay).value, 10);
    EXPECT_EQ(load(dtmf::FirstDigitDelay).text, "100");
    EXPECT_EQ(load(dtmf::DCodeAssignment).value, 0);
    EXPECT_EQ(load(dtmf::DCodeAssignment).text, "D Code");
    EXPECT_EQ(load(dtmf::AutoResetTimer).value, 10);
    EXPECT_EQ(load(dtmf::AutoResetTimer).text, "10");
}

TEST(DtmfFields, TheNextTextGoesRoundAndIsNoneForAnotherText) {
    EXPECT_EQ(dtmf::NextText(dtmf::Speed, "6", true), 1);
    EXPECT_EQ(dtmf::NextText(dtmf::Speed, "10", true), 3);
    EXPECT_EQ(dtmf::NextText(dtmf::Speed, "15", true), 0);
    EXPECT_EQ(dtmf::NextText(dtmf::Speed, "6", false), 3);
    EXPECT_EQ(dtmf::NextText(dtmf::Tone, "500", false), 1);
    for (const char* text : {"", "7", "06", "14"}) {
        EXPECT_FALSE(dtmf::NextText(dtmf::Speed, text, true).has_value()) << text;
        EXPECT_FALSE(dtmf::NextText(dtmf::Speed, text, false).has_value()) << text;
    }
}

TEST(DtmfFields, OnlyClearToTranspondReadsAnErasedByteAsOff) {
    for (int byte = 0; byte <= 0xFF; ++byte) {
        EXPECT_EQ(IsOn(dtmf::SideTone, static_cast<std::uint8_t>(byte)), byte != 0) << byte;
        EXPECT_EQ(IsOn(dtmf::ClearToTranspond, static_cast<std::uint8_t>(byte)), byte != 0 && byte != 0xFF) << byte;
    }
}

TEST(DtmfFields, AnIdCodeEndsBeforeTheFirstByteThatIsNoDecimalDigit) {
    DataImage image;
    EXPECT_EQ(LoadCode(image, dtmf::IdCode), u"");
    Put(image, 0x120, {'0', '1', '2', '3', '4', '5', '6', '7', '8', '9', '5'});
    EXPECT_EQ(LoadCode(image, dtmf::IdCode), u"0123456789");
    for (const int other : Bytes{0xFF, 0x00, 0x2F, 0x3A, 'A', '*', '#', ' '}) {
        Put(image, 0x124, {other});
        EXPECT_EQ(LoadCode(image, dtmf::IdCode), u"0123") << other;
    }
}

TEST(DtmfFields, AStunCodeEndsBeforeTheFirstErasedByte) {
    DataImage image;
    EXPECT_EQ(LoadCode(image, dtmf::StunCode), u"");
    Put(image, 0x1F0, {'*', '1', 'A', 'D', '#', '0', '9', ' ', 'x', 0x80, '5'});
    EXPECT_EQ(LoadCode(image, dtmf::StunCode), u"*1AD#09 x\u20AC");
    Put(image, 0x1F3, {0xFF});
    EXPECT_EQ(LoadCode(image, dtmf::StunCode), u"*1A");
}

TEST(DtmfFields, ACodeIsStoredWithErasedBytesBehindIt) {
    for (const TextField& field : {dtmf::IdCode, dtmf::StunCode}) {
        DataImage image;
        image.Fill(0);
        StoreCode(image, field, u"12345");
        EXPECT_EQ(From(image, field.address, 10), (Bytes{'1', '2', '3', '4', '5', 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}));
        StoreCode(image, field, u"123");
        EXPECT_EQ(From(image, field.address, 5), (Bytes{'1', '2', '3', 0xFF, 0xFF}));
        StoreCode(image, field, u"12345678901");
        EXPECT_EQ(From(image, field.address, 10), (Bytes{'1', '2', '3', '4', '5', '6', '7', '8', '9', '0'}));
        StoreCode(image, field, u"");
        EXPECT_EQ(From(image, field.address, 10), Bytes(10, 0xFF));
        EXPECT_EQ(image.At(field.address - 1), 0);
        EXPECT_EQ(image.At(field.address + 10), 0);
    }
}

TEST(DtmfFields, ACodeHasThreeDigitsAtLeastAndOnlyTheStunCodeMayHaveNone) {
    for (int length = 1; length <= 10; ++length) {
        EXPECT_EQ(IsLegalLength(dtmf::IdCode, length), length >= 3) << length;
        EXPECT_EQ(IsLegalLength(dtmf::StunCode, length), length >= 3) << length;
    }
    EXPECT_FALSE(IsLegalLength(dtmf::IdCode, 0));
    EXPECT_TRUE(IsLegalLength(dtmf::StunCode, 0));
}

TEST(DtmfFields, EachAutodialMemoryHasSixteenBytesOfItsOwn) {
    const int addresses[] = {0x200, 0x210, 0x220, 0x230, 0x240, 0x250, 0x260, 0x270};
    for (int n = 1; n <= 8; ++n) {
        DataImage image;
        StoreCode(image, Memory(n), u"0123456789*#ABCD");
        const int first = addresses[n - 1];
        EXPECT_EQ(From(image, first, 16),
                  (Bytes{'0', '1', '2', '3', '4', '5', '6', '7', '8', '9', '*', '#', 'A', 'B', 'C', 'D'}));
        EXPECT_EQ(image.At(first - 1), 0xFF);
        EXPECT_EQ(image.At(first + 16), 0xFF);
        EXPECT_EQ(LoadCode(image, Memory(n)), u"0123456789*#ABCD");
    }
}

TEST(DtmfFields, AnAutodialMemoryIsPaddedWithSpacesThatDoNotShow) {
    DataImage image;
    StoreCode(image, Memory(2), u"12345");
    EXPECT_EQ(From(image, 0x210, 16),
              (Bytes{'1', '2', '3', '4', '5', 0x20, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20}));
    EXPECT_EQ(LoadCode(image, Memory(2)), u"12345");
    Put(image, 0x210, {' ', '7', ' ', ' ', '8', 0xFF});
    EXPECT_EQ(LoadCode(image, Memory(2)), u"78\u00FF");
}

TEST(DtmfFields, NoDigitsMakeAnUnusedMemoryWhichOnlyItsFirstByteTells) {
    DataImage image;
    StoreCode(image, Memory(8), u"5");
    StoreCode(image, Memory(8), u"");
    EXPECT_EQ(From(image, 0x270, 16), Bytes(16, 0xFF));
    Put(image, 0x271, {'1', '2'});
    EXPECT_EQ(LoadCode(image, Memory(8)), u"");
}

} // namespace
} // namespace zelvor
