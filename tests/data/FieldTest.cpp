#include "data/Field.h"

#include <gtest/gtest.h>

#include "data/CorvaneFields.h"
#include "data/DtmfFields.h"
#include "data/EmbeddedMessage.h"
#include "data/KeyFields.h"
#include "data/OptionalFields.h"
#include "data/ScanFields.h"
#include "data/TestFrequencies.h"
#include "data/TestImages.h"

namespace zelvor {
namespace {

constexpr Language En = Language::English;
constexpr Language Zh = Language::Chinese;
using Words = std::vector<std::string>;

struct Parsed {
    const char* text;
    const char* bytes; // hexadecimal, of the field from its first byte on
};

/// The rest of the image stays as it was.
void ExpectParses(const Field& field, std::initializer_list<Parsed> rows) {
    for (const Parsed& row : rows) {
        DataImage image;
        image.Fill(0x5A);
        DataImage expected = image;
        testing::StoreHex(expected, field.Address(), row.bytes);
        EXPECT_TRUE(field.Parse(row.text, image)) << field.Key() << ": " << row.text;
        EXPECT_TRUE(image == expected) << field.Key() << ": " << row.text;
    }
}

void ExpectRefuses(const Field& field, std::initializer_list<const char*> texts) {
    for (const char* text : texts) {
        DataImage image;
        image.Fill(0x5A);
        const DataImage before = image;
        EXPECT_FALSE(field.Parse(text, image)) << field.Key() << ": " << text;
        EXPECT_TRUE(image == before) << field.Key() << ": " << text;
    }
}

std::string Shown(const Field& field, std::string_view bytes, Language language = En) {
    DataImage image;
    testing::StoreHex(image, field.Address(), bytes);
    return field.Show(image, language);
}

TEST(Field, ANumberIsParsedAsItIsShownAndNeverCorrected) {
    const Field timer(optional_features::TimeOutTimer);
    ExpectParses(timer, {{"15", "01"}, {"60", "04"}, {" 600 ", "28"}});
    ExpectRefuses(timer, {"", "0", "16", "615", "60 s", "060", "60.0", "-15", "Off"});
    EXPECT_EQ(Shown(timer, "28"), "600");
    EXPECT_EQ(Shown(timer, "29"), "615"); // illegal, and shown all the same
    EXPECT_EQ(timer.Legal(En), (LegalValues{.range = LegalValues::Range{"15", "600", "15"}}));
}

TEST(Field, ANumberMayHaveAWordForNone) {
    const Field gain(optional_features::VoxGainLevel);
    ExpectParses(gain, {{"Off", "00"}, {"关", "00"}, {"1", "01"}, {"10", "0A"}});
    ExpectRefuses(gain, {"", "0", "11", "off"});
    EXPECT_EQ(gain.Legal(En), (LegalValues{.words = {"Off"}, .range = LegalValues::Range{"1", "10", "1"}}));
    EXPECT_EQ(gain.Legal(Zh), (LegalValues{.words = {"关"}, .range = LegalValues::Range{"1", "10", "1"}}));
}

TEST(Field, ANumberMayBeAPlaceAmongTexts) {
    const Field speed(dtmf::Speed);
    ExpectParses(speed, {{"6", "00"}, {"15", "03"}});
    ExpectRefuses(speed, {"7", "16", ""});
    EXPECT_EQ(speed.Legal(En), (LegalValues{.words = {"6", "8", "10", "15"}}));
    const Field dCode(dtmf::DCodeAssignment);
    ExpectParses(dCode, {{"D Code", "00"}, {"D 码", "00"}, {"16s", "10"}});
    ExpectRefuses(dCode, {"16", "17s", "D"});
}

/// A number of one byte that is shown as it is.
constexpr NumberField NumberFrom(int first, int last) {
    return {.key = "number",
            .label = "Number",
            .address = 0x130,
            .first = first,
            .last = last,
            .lengthLimit = 2,
            .show = ShowNumber,
            .read = LeadingNumber};
}

TEST(Field, ThreeNumbersThatGoUpEvenlyAreARangeAndTwoAreWords) {
    constexpr NumberField three = NumberFrom(4, 6);
    constexpr NumberField two = NumberFrom(4, 5);
    EXPECT_EQ(Field(three).Legal(En), (LegalValues{.range = LegalValues::Range{"4", "6", "1"}}));
    EXPECT_EQ(Field(two).Legal(En), (LegalValues{.words = {"4", "5"}}));
}

TEST(Field, AnErasedNumberIsLegalWhereItShowsALegalOne) {
    for (const auto& [erased, isLegal] :
         {std::pair(3, false), std::pair(4, true), std::pair(9, true), std::pair(10, false)}) {
        NumberField field = NumberFrom(4, 9);
        field.erased = erased;
        field.showsErased = true;
        EXPECT_EQ(Field(field).HoldsLegal(DataImage()), isLegal) << erased;
    }
}

TEST(Field, ANumberOfTwoBytesHasItsLowByteFirst) {
    const Field delay(corvane::DelayTime);
    ExpectParses(delay, {{"0", "0000"}, {"400", "9001"}, {"6000", "7017"}});
    ExpectRefuses(delay, {"6001", ""});
    EXPECT_EQ(Shown(delay, "FFFF"), "400");
    EXPECT_EQ(delay.Legal(En), (LegalValues{.range = LegalValues::Range{"0", "6000", "1"}}));
}

TEST(Field, ANumberMayBeLeftOut) {
    ExpectParses(corvane::OwnFleet, {{"", "FF"}, {"100", "01"}, {"349", "FA"}});
    ExpectRefuses(corvane::OwnFleet, {"99", "350", "0"});
    ExpectParses(corvane::OwnId, {{"", "0000"}, {"1000", "0100"}, {"4999", "A00F"}});
    ExpectParses(scan::PriorityChannel, {{"", "FF"}, {"1", "01"}, {"16", "10"}});
    ExpectRefuses(scan::PriorityChannel, {"0", "17"});
    EXPECT_EQ(Field(scan::PriorityChannel).Legal(En),
              (LegalValues{.mayBeEmpty = true, .range = LegalValues::Range{"1", "16", "1"}}));
}

TEST(Field, ALookBackTimeGoesUpByFiveHundredths) {
    const Field time(scan::LookBackTimeA);
    ExpectParses(time, {{"0.50", "01"}, {"2.00", "1F"}, {"5.00", "5B"}});
    ExpectRefuses(time, {"", "0.45", "0.5", "0.52", "5.05", "2"});
    EXPECT_EQ(time.Legal(En), (LegalValues{.range = LegalValues::Range{"0.50", "5.00", "0.05"}}));
}

TEST(Field, AListIsParsedByItsWordsInEitherLanguage) {
    const Field voice(optional_features::VoiceAnnunciation);
    ExpectParses(voice, {{"Off", "00"}, {"English", "02"}, {"中文", "01"}});
    ExpectRefuses(voice, {"", "french", "english", "1"});
    EXPECT_EQ(Shown(voice, "02", Zh), "英文");
    EXPECT_EQ(Shown(voice, "03"), "");
    EXPECT_EQ(voice.Legal(Zh), (LegalValues{.words = {"关", "英文", "中文"}}));
    ExpectParses(key_assignment::Keys[1], {{"None", "FF"}, {"Scan+Temporary Delete", "07"}});
}

TEST(Field, ABlankAtTheEndOfAWordNeedNotBeTyped) {
    const Field revert(scan::RevertChannel);
    ExpectParses(revert, {{"Priority + Talk Back", "03"}, {"Priority + Talk Back ", "03"}, {"Priority", "02"}});
    EXPECT_EQ(Shown(revert, "03"), "Priority + Talk Back ");
    EXPECT_EQ(revert.Legal(En),
              (LegalValues{.words = {"Selected", "Selected + Talk Back", "Priority", "Priority + Talk Back"}}));
}

TEST(Field, ACheckIsOnOrOff) {
    const Field beep(optional_features::Beep);
    ExpectParses(beep, {{"On", "01"}, {"Off", "00"}, {"开", "01"}, {"关", "00"}});
    ExpectRefuses(beep, {"", "1", "on", "Yes"});
    EXPECT_EQ(Shown(beep, "07", Zh), "开");
    EXPECT_EQ(Shown(dtmf::ClearToTranspond, "FF"), "Off");
    EXPECT_EQ(beep.Legal(En), (LegalValues{.words = {"Off", "On"}}));
}

TEST(Field, ACodeHasItsCharactersAndItsLength) {
    ExpectParses(dtmf::IdCode, {{"123", "313233FFFFFFFFFFFFFF"}, {"0123456789", "30313233343536373839"}});
    ExpectRefuses(dtmf::IdCode, {"", "12", "12345678901", "12A4"});
    ExpectParses(dtmf::StunCode, {{"", "FFFFFFFFFFFFFFFFFFFF"}, {"1A*#", "31412A23FFFFFFFFFFFF"}});
    ExpectRefuses(dtmf::StunCode, {"12", "12E", "1a*#", "关关关"});
    using Characters = LegalValues::Characters;
    EXPECT_EQ(Field(dtmf::IdCode).Legal(En),
              (LegalValues{.characters = Characters{TextField::Characters::Digits, 3, 10}}));
    EXPECT_EQ(Field(dtmf::StunCode).Legal(En),
              (LegalValues{.mayBeEmpty = true, .characters = Characters{TextField::Characters::Dtmf, 3, 10}}));
}

TEST(Field, AParsedPttIdCodeLeavesNoTailOfALongerOne) {
    DataImage image;
    testing::StoreHex(image, 0x140, "3132333435");
    ASSERT_TRUE(Field(optional_features::PttCodes[0]).Parse("98", image));
    EXPECT_EQ(Field(optional_features::PttCodes[0]).Show(image, En), "98");
    ExpectParses(optional_features::PttCodes[1], {{"", "FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF"}});
}

TEST(Field, AnAutodialMemoryIsFilledUpWithBlanks) {
    ExpectParses(dtmf::Autodials[7],
                 {{"5", "35202020202020202020202020202020"}, {"", "FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF"}});
    EXPECT_EQ(Field(dtmf::Autodials[7]).Address(), 0x270);
    ExpectRefuses(dtmf::Autodials[0], {"12345678901234567", "1 2"});
}

TEST(Field, AMessageLineTakesWhatTheCodePageHas) {
    DataImage image;
    ASSERT_TRUE(Field(embedded_message::Lines[1]).Parse("10 €", image));
    EXPECT_EQ(image.At(0x320), '1');
    EXPECT_EQ(image.At(0x323), 0x80);
    EXPECT_EQ(image.At(0x324), 0xFF);
    EXPECT_EQ(Field(embedded_message::Lines[1]).Show(image, En), "10 €");
    ExpectRefuses(embedded_message::Lines[0], {"信", "ÿ", "123456789012345678901234567890123"});
}

TEST(Field, AFleetListEntryIsANumberAllOrNone) {
    const Field fleet(corvane::FleetList[0]);
    ExpectParses(fleet, {{"All", "00"}, {"全部", "00"}, {"100", "01"}, {"349", "FA"}, {"", "FF"}});
    ExpectRefuses(fleet, {"0", "99", "350", "A", "0100"});
    const Field id(corvane::FleetList[9]); // of entry 5, in the second block
    EXPECT_EQ(id.Address(), 0x1D1);
    ExpectParses(id, {{"All", "0000"}, {"1000", "0100"}, {"4999", "A00F"}, {"", "FFFF"}});
    EXPECT_EQ(id.Legal(En),
              (LegalValues{.mayBeEmpty = true, .words = {"All"}, .range = LegalValues::Range{"1000", "4999", "1"}}));
}

TEST(Field, ATestFrequencyLiesOnTheRasterAndTheFirstOfAChannelBecomesBoth) {
    const Field receive(TestFrequencyFields[4]);
    const Field transmit(TestFrequencyFields[5]);
    EXPECT_EQ(receive.Address(), 0x290);
    EXPECT_EQ(transmit.Address(), 0x294);
    DataImage image;
    image.Set(0x1BE, 0xF8);
    ASSERT_TRUE(receive.Parse("155.05000", image));
    EXPECT_EQ(receive.Show(image, En), "155.05000");
    EXPECT_EQ(transmit.Show(image, En), "155.05000");
    ASSERT_TRUE(transmit.Parse("155.10000", image));
    EXPECT_EQ(receive.Show(image, En), "155.05000");
    EXPECT_EQ(transmit.Show(image, En), "155.10000");
    for (const char* text :
         {"155.05001", "155.050000001", "+155.05", "155.05 MHz", "99.00000", "551.00000", "0", "None"}) {
        const DataImage before = image;
        EXPECT_FALSE(receive.Parse(text, image)) << text;
        EXPECT_TRUE(image == before) << text;
    }
    ASSERT_TRUE(receive.Parse(" 155.125 ", image));
    EXPECT_EQ(receive.Show(image, En), "155.12500");
    ASSERT_TRUE(receive.Parse("400", image));
    EXPECT_EQ(receive.Show(image, En), "400.00000");
    image.Set(0x1BE, 0xFF); // without a model the limits are 136 to 174 MHz
    EXPECT_FALSE(receive.Parse("401", image));
    EXPECT_TRUE(receive.Parse("400", image)); // which it shows
    ASSERT_TRUE(transmit.Parse("", image));
    EXPECT_EQ(receive.Show(image, En), "");
}

} // namespace
} // namespace zelvor
