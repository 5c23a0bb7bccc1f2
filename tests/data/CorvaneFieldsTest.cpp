#include "data/CorvaneFields.h"

#include <gtest/gtest.h>

#include "text/StringTable.h"

namespace zelvor {
namespace {

using namespace corvane;

DataImage With(int address, std::initializer_list<int> bytes) {
    DataImage image;
    for (const int byte : bytes) {
        image.Set(address++, static_cast<std::uint8_t>(byte));
    }
    return image;
}

NumberOnShow LoadedFrom(const NumberField& field, std::initializer_list<int> bytes,
                        Language language = Language::English) {
    return LoadNumber(With(field.address, bytes), field, language);
}

void ExpectNumber(const NumberField& field, std::string_view label, int address, int bytes, int last, int digits) {
    EXPECT_EQ(field.label.In(Language::English), label);
    EXPECT_EQ(field.address, address);
    EXPECT_EQ(field.bytes, bytes) << label;
    EXPECT_EQ(field.first, 0) << label;
    EXPECT_EQ(field.last, last) << label;
    EXPECT_EQ(field.increment, 1) << label;
    EXPECT_EQ(field.lengthLimit, digits) << label;
}

TEST(CorvaneFieldsTest, NumbersHaveTheirLabelsAddressesAndRanges) {
    ExpectNumber(OwnFleet, "Fleet(own)", 0x170, 1, 250, 3);
    ExpectNumber(OwnId, "ID(own)", 0x171, 2, 4000, 4);
    ExpectNumber(DelayTime, "Data TX Modulation Delay Timer [ms]", 0x173, 2, 6000, 4);
    ExpectNumber(MessageModeTimer, "Message Mode Timer [s]", 0x176, 2, 300, 3);
}

TEST(CorvaneFieldsTest, BaudRateIsAListOfTwoAndNoneIsStoredAsErased) {
    EXPECT_EQ(BaudRate.label.In(Language::English), "Corvane Baud Rate [bps]");
    EXPECT_EQ(BaudRate.address, 0x175);
    ASSERT_EQ(BaudRate.words.size(), 2U);
    for (const Language language : {Language::English, Language::Chinese}) {
        EXPECT_EQ(BaudRate.words[0].In(language), "1200");
        EXPECT_EQ(BaudRate.words[1].In(language), "2400");
    }
    EXPECT_EQ(EntryOf(BaudRate, 0), 0);
    EXPECT_EQ(EntryOf(BaudRate, 1), 1);
    for (int byte = 2; byte < 256; ++byte) {
        EXPECT_EQ(EntryOf(BaudRate, static_cast<std::uint8_t>(byte)), -1) << byte;
    }
    EXPECT_EQ(ByteOf(BaudRate, 0), 0);
    EXPECT_EQ(ByteOf(BaudRate, 1), 1);
    EXPECT_EQ(ByteOf(BaudRate, -1), 0xFF);
}

TEST(CorvaneFieldsTest, SideToneIsOnForAllBytesBetweenZeroAndErased) {
    EXPECT_EQ(SideTone.label.In(Language::English), "PTT ID Side Tone");
    EXPECT_EQ(SideTone.address, 0x178);
    EXPECT_FALSE(IsOn(SideTone, 0));
    EXPECT_FALSE(IsOn(SideTone, 0xFF));
    for (int byte = 1; byte < 255; ++byte) {
        EXPECT_TRUE(IsOn(SideTone, static_cast<std::uint8_t>(byte))) << byte;
    }
}

TEST(CorvaneFieldsTest, EveryByteOfTheFleetShowsTheByteAnd99AndAnErasedOneNothing) {
    for (int byte = 0; byte < 255; ++byte) {
        const NumberOnShow shown = LoadedFrom(OwnFleet, {byte});
        EXPECT_EQ(shown.value, byte);
        EXPECT_EQ(shown.text, std::to_string(byte + 99));
    }
    EXPECT_EQ(LoadedFrom(OwnFleet, {0xFF}).value, 0);
    EXPECT_EQ(LoadedFrom(OwnFleet, {0xFF}).text, "");
}

TEST(CorvaneFieldsTest, TheIdShowsTheNumberAnd999AndNothingForZeroAndAnErasedHighByte) {
    EXPECT_EQ(LoadedFrom(OwnId, {1, 0}).text, "1000");
    EXPECT_EQ(LoadedFrom(OwnId, {0xA0, 0x0F}).text, "4999");
    EXPECT_EQ(LoadedFrom(OwnId, {0xA0, 0x0F}).value, 4000);
    EXPECT_EQ(LoadedFrom(OwnId, {0xFF, 0x00}).text, "1254");
    EXPECT_EQ(LoadedFrom(OwnId, {0xFF, 0xFE}).text, "66278");
    EXPECT_EQ(LoadedFrom(OwnId, {0, 0}).text, "");
    EXPECT_EQ(LoadedFrom(OwnId, {0, 0}).value, 0);
    for (int low = 0; low < 256; ++low) {
        EXPECT_EQ(LoadedFrom(OwnId, {low, 0xFF}).text, "") << low;
        EXPECT_EQ(LoadedFrom(OwnId, {low, 0xFF}).value, 0) << low;
    }
}

TEST(CorvaneFieldsTest, ATimeWithAnErasedHighByteShowsItsOwnDefault) {
    for (const Language language : {Language::English, Language::Chinese}) {
        EXPECT_EQ(LoadedFrom(DelayTime, {7, 0xFF}, language).text, "400");
        EXPECT_EQ(LoadedFrom(DelayTime, {7, 0xFF}, language).value, 400);
        EXPECT_EQ(LoadedFrom(MessageModeTimer, {7, 0xFF}, language).text, "300");
        EXPECT_EQ(LoadedFrom(MessageModeTimer, {7, 0xFF}, language).value, 300);
    }
}

TEST(CorvaneFieldsTest, TimesShowTheirNumberAndNoMessageTimerIsOff) {
    EXPECT_EQ(LoadedFrom(DelayTime, {0, 0}).text, "0");
    EXPECT_EQ(LoadedFrom(DelayTime, {144, 1}).text, "400");
    EXPECT_EQ(LoadedFrom(DelayTime, {0x70, 0x17}).text, "6000");
    EXPECT_EQ(LoadedFrom(DelayTime, {0x71, 0x17}).text, "6001");
    EXPECT_EQ(LoadedFrom(MessageModeTimer, {0, 0}).text, "Off");
    EXPECT_EQ(LoadedFrom(MessageModeTimer, {0, 0}, Language::Chinese).text, "关");
    EXPECT_EQ(LoadedFrom(MessageModeTimer, {10, 0}).text, "10");
    EXPECT_EQ(LoadedFrom(MessageModeTimer, {0x2C, 0x01}).text, "300");
    EXPECT_EQ(LoadedFrom(MessageModeTimer, {0xFF, 0xFE}).text, "65279");
}

TEST(CorvaneFieldsTest, ATypedFleetIsKeptTo100To349) {
    EXPECT_EQ(OwnFleet.read(""), 0);
    for (int v = 0; v <= 100; ++v) {
        EXPECT_EQ(OwnFleet.read(std::to_string(v)), 1) << v;
    }
    for (int v = 101; v <= 348; ++v) {
        EXPECT_EQ(OwnFleet.read(std::to_string(v)), v - 99) << v;
    }
    for (int v = 349; v <= 999; ++v) {
        EXPECT_EQ(OwnFleet.read(std::to_string(v)), 250) << v;
    }
}

TEST(CorvaneFieldsTest, ATypedIdIsKeptTo1000To4999) {
    EXPECT_EQ(OwnId.read(""), 0);
    for (int v = 0; v <= 1000; ++v) {
        EXPECT_EQ(OwnId.read(std::to_string(v)), 1) << v;
    }
    for (int v = 1001; v <= 4998; ++v) {
        EXPECT_EQ(OwnId.read(std::to_string(v)), v - 999) << v;
    }
    for (const char* v : {"4999", "5000", "9999", "66278"}) {
        EXPECT_EQ(OwnId.read(v), 4000) << v;
    }
}

TEST(CorvaneFieldsTest, TypedTimesAreKeptToTheirLastValue) {
    EXPECT_EQ(DelayTime.read(""), 0);
    EXPECT_EQ(MessageModeTimer.read(""), 0);
    EXPECT_EQ(MessageModeTimer.read("Off"), 0);
    EXPECT_EQ(MessageModeTimer.read("关"), 0);
    for (int v = 0; v <= 9999; ++v) {
        EXPECT_EQ(DelayTime.read(std::to_string(v)), v > 6000 ? 6000 : v);
    }
    for (int v = 0; v <= 999; ++v) {
        EXPECT_EQ(MessageModeTimer.read(std::to_string(v)), v >= 300 ? 300 : v);
    }
}

TEST(CorvaneFieldsTest, NoFleetIsStoredErasedAndNoIdAsZero) {
    DataImage image;
    StoreNumber(image, OwnFleet, 250);
    StoreNumber(image, OwnId, 4000);
    EXPECT_EQ(image.At(0x170), 0xFA);
    EXPECT_EQ(image.At(0x171), 0xA0);
    EXPECT_EQ(image.At(0x172), 0x0F);
    StoreNumber(image, OwnFleet, 0);
    StoreNumber(image, OwnId, 0);
    EXPECT_EQ(image.At(0x170), 0xFF);
    EXPECT_EQ(image.At(0x171), 0x00);
    EXPECT_EQ(image.At(0x172), 0x00);
}

TEST(CorvaneFieldsTest, FleetListEntriesLieInTwoBlocksOfFour) {
    EXPECT_EQ(FleetListSize, 8);
    const int addresses[] = {0x1C0, 0x1C3, 0x1C6, 0x1C9, 0x1D0, 0x1D3, 0x1D6, 0x1D9};
    for (int n = 1; n <= 8; ++n) {
        EXPECT_EQ(EntryAddress(n), addresses[n - 1]);
        DataImage image;
        image.Fill(0x55);
        EraseEntry(image, n);
        for (int address = 0; address < 1024; ++address) {
            const bool inEntry = address >= addresses[n - 1] && address < addresses[n - 1] + 3;
            EXPECT_EQ(image.At(address), inEntry ? 0xFF : 0x55) << n << ", " << address;
        }
    }
}

TEST(CorvaneFieldsTest, TheFleetListHasItsWords) {
    EXPECT_EQ(TableText(Language::English, Text::FleetList), "Fleet List");
    EXPECT_EQ(TableText(Language::Chinese, Text::FleetList), "队列表");
    EXPECT_EQ(ListFleet.heading.In(Language::English), "Fleet");
    EXPECT_EQ(ListFleet.heading.In(Language::Chinese), "队列");
    EXPECT_EQ(ListId.heading.In(Language::English), "ID");
    EXPECT_EQ(ListId.heading.In(Language::Chinese), "ID");
    EXPECT_EQ(ListFleet.digits, 3);
    EXPECT_EQ(ListId.digits, 4);
}

TEST(CorvaneFieldsTest, EveryByteOfAListedFleetShowsAsItIs) {
    for (int byte = 0; byte < 256; ++byte) {
        const DataImage image = With(0x1C0, {byte, 0x12, 0x34});
        const std::string expected = byte == 0xFF ? "" : byte == 0 ? "All" : std::to_string(byte + 99);
        EXPECT_EQ(LoadListNumber(image, 1, ListFleet, Language::English), expected) << byte;
    }
    EXPECT_EQ(LoadListNumber(With(0x1C0, {0}), 1, ListFleet, Language::Chinese), "全部");
}

TEST(CorvaneFieldsTest, AListedIdIsNoneOrAllOnlyWhenBothBytesSaySo) {
    const auto shown = [](int low, int high) {
        return LoadListNumber(With(0x1DA, {low, high}), 8, ListId, Language::English);
    };
    EXPECT_EQ(shown(0xFF, 0xFF), "");
    EXPECT_EQ(shown(0x00, 0x00), "All");
    EXPECT_EQ(shown(0x01, 0x00), "1000");
    EXPECT_EQ(shown(0xA0, 0x0F), "4999");
    EXPECT_EQ(shown(0xFF, 0x00), "1254");
    EXPECT_EQ(shown(0x00, 0xFF), "66279");
    EXPECT_EQ(shown(0xFE, 0xFF), "66533");
    EXPECT_EQ(LoadListNumber(With(0x1DA, {0, 0}), 8, ListId, Language::Chinese), "全部");
}

TEST(CorvaneFieldsTest, EveryTypedListNumberIsAllOrKeptToItsRange) {
    for (const char* all : {"A", "All", "全部", "0", "000", "All5"}) {
        EXPECT_EQ(ReadListNumber(all, ListFleet), 0) << all;
        EXPECT_EQ(ReadListNumber(all, ListId), 0) << all;
    }
    for (int v = 1; v <= 999; ++v) {
        EXPECT_EQ(ReadListNumber(std::to_string(v), ListFleet), v < 100 ? 100 : v > 349 ? 349 : v);
    }
    for (int v = 1; v <= 9999; ++v) {
        EXPECT_EQ(ReadListNumber(std::to_string(v), ListId), v < 1000 ? 1000 : v > 4999 ? 4999 : v);
    }
}

TEST(CorvaneFieldsTest, EveryListedNumberComesBackFromItsBytes) {
    DataImage image;
    for (int fleet = 100; fleet <= 349; ++fleet) {
        StoreListNumber(image, 5, ListFleet, fleet);
        EXPECT_EQ(image.At(0x1D0), fleet - 99);
        EXPECT_EQ(LoadListNumber(image, 5, ListFleet, Language::English), std::to_string(fleet));
    }
    for (int id = 1000; id <= 4999; ++id) {
        StoreListNumber(image, 5, ListId, id);
        EXPECT_EQ(image.At(0x1D1) + 256 * image.At(0x1D2), id - 999);
        EXPECT_EQ(LoadListNumber(image, 5, ListId, Language::English), std::to_string(id));
    }
    StoreListNumber(image, 5, ListFleet, 0);
    StoreListNumber(image, 5, ListId, 0);
    EXPECT_EQ(image.At(0x1D0), 0);
    EXPECT_EQ(image.At(0x1D1), 0);
    EXPECT_EQ(image.At(0x1D2), 0);
    EXPECT_EQ(image.At(0x1D3), 0xFF);
}

} // namespace
} // namespace zelvor
