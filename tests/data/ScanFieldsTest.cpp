#include "data/ScanFields.h"

#include <gtest/gtest.h>

namespace zelvor {
namespace {

constexpr Language En = Language::English;

std::string TextIn(const DataImage& image, const NumberField& field) {
    return LoadNumber(image, field, En).text;
}

TEST(ScanFields, LookBackTimesCountStepsOfFiveHundredthsFromHalfASecond) {
    for (const NumberField& field : {scan::LookBackTimeA, scan::LookBackTimeB}) {
        EXPECT_EQ(field.show(1, En), "0.50");
        EXPECT_EQ(field.show(2, En), "0.55");
        EXPECT_EQ(field.show(91, En), "5.00");
        EXPECT_EQ(field.show(254, En), "13.15");
        EXPECT_EQ(field.read("1.23"), 15);
        EXPECT_EQ(field.read(""), 1);
        EXPECT_EQ(field.read("99999999999"), 91);
    }
}

TEST(ScanFields, DelaysCountSeconds) {
    for (const NumberField& field : {scan::DropoutDelayTime, scan::TxDwellTime}) {
        EXPECT_EQ(field.show(0, En), "0");
        EXPECT_EQ(field.show(300, En), "300");
        EXPECT_EQ(field.read(""), 0);
        EXPECT_EQ(field.read("999"), 300);
    }
}

TEST(ScanFields, AnErasedImageHoldsNoTime) {
    const DataImage erased;
    EXPECT_EQ(TextIn(erased, scan::LookBackTimeA), "");
    EXPECT_EQ(TextIn(erased, scan::LookBackTimeB), "");
    EXPECT_EQ(TextIn(erased, scan::DropoutDelayTime), "");
    EXPECT_EQ(TextIn(erased, scan::TxDwellTime), "");
}

TEST(ScanFields, TimesAreStoredAtTheirAddressesLowByteFirst) {
    DataImage image;
    StoreNumber(image, scan::LookBackTimeA, 2);
    StoreNumber(image, scan::LookBackTimeB, 91);
    StoreNumber(image, scan::DropoutDelayTime, 300);
    StoreNumber(image, scan::TxDwellTime, 255);
    EXPECT_EQ(image.At(0x162), 2);
    EXPECT_EQ(image.At(0x163), 91);
    EXPECT_EQ(image.At(0x165), 0x2C);
    EXPECT_EQ(image.At(0x166), 0x01);
    EXPECT_EQ(image.At(0x167), 0xFF);
    EXPECT_EQ(image.At(0x168), 0x00);
    EXPECT_EQ(TextIn(image, scan::LookBackTimeA), "0.55");
    EXPECT_EQ(TextIn(image, scan::LookBackTimeB), "5.00");
    EXPECT_EQ(TextIn(image, scan::DropoutDelayTime), "300");
    EXPECT_EQ(TextIn(image, scan::TxDwellTime), "255");
}

TEST(ScanFields, ALookBackByteOfZeroIsNoTime) {
    DataImage image;
    image.Set(0x162, 0);
    EXPECT_EQ(TextIn(image, scan::LookBackTimeA), "");
}

TEST(ScanFields, TypedTimesAreCutToTheirStepAndKeptToTheirRange) {
    for (const auto& [typed, steps] :
         {std::pair("", 1), std::pair("0.05", 1), std::pair("0.50", 1), std::pair("0.54", 1), std::pair("0.549", 1),
          std::pair("0.55", 2), std::pair("0.60", 3), std::pair("2", 31), std::pair("4.99", 90), std::pair("5.00", 91),
          std::pair("5.05", 91), std::pair("9999", 91)}) {
        EXPECT_EQ(scan::ReadLookBackTime(typed), steps) << typed;
    }
    for (const auto& [typed, seconds] :
         {std::pair("", 0), std::pair("0", 0), std::pair("1", 1), std::pair("30", 30), std::pair("299", 299),
          std::pair("300", 300), std::pair("301", 300), std::pair("999", 300)}) {
        EXPECT_EQ(scan::ReadDelay(typed), seconds) << typed;
    }
}

TEST(ScanFields, AModeThatWasNeverStoredReadsAsNone) {
    EXPECT_EQ(EntryOf(scan::PriorityMode, 0), 0);
    EXPECT_EQ(EntryOf(scan::PriorityMode, 2), 2);
    EXPECT_EQ(EntryOf(scan::PriorityMode, 3), ListField::NoEntry);
    EXPECT_EQ(EntryOf(scan::PriorityMode, 0xFE), ListField::NoEntry);
    EXPECT_EQ(EntryOf(scan::PriorityMode, 0xFF), 0);
}

TEST(ScanFields, ARevertChannelThatWasNeverStoredReadsAsNothing) {
    EXPECT_EQ(EntryOf(scan::RevertChannel, 3), 3);
    EXPECT_EQ(EntryOf(scan::RevertChannel, 4), ListField::NoEntry);
    EXPECT_EQ(EntryOf(scan::RevertChannel, 0xFF), ListField::NoEntry);
}

TEST(ScanFields, APriorityChannelIsItsNumberAndAnErasedByteIsNone) {
    DataImage image;
    EXPECT_EQ(TextIn(image, scan::PriorityChannel), "");
    image.Set(0x161, 16);
    EXPECT_EQ(TextIn(image, scan::PriorityChannel), "16");
    image.Set(0x161, 200);
    EXPECT_EQ(TextIn(image, scan::PriorityChannel), "200");
    StoreNumber(image, scan::PriorityChannel, 7);
    EXPECT_EQ(image.At(0x161), 7);
    StoreNumber(image, scan::PriorityChannel, 0);
    EXPECT_EQ(image.At(0x161), 0xFF);
}

} // namespace
} // namespace zelvor
