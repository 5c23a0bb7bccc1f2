#include "data/ScanFields.h"

#include <gtest/gtest.h>

namespace zelvor {
namespace {

TEST(ScanFields, LookBackTimesCountStepsOfFiveHundredthsFromHalfASecond) {
    for (const scan::TimeField& field : {scan::LookBackTimeA, scan::LookBackTimeB}) {
        EXPECT_EQ(scan::Show(field, 1), "0.50");
        EXPECT_EQ(scan::Show(field, 2), "0.55");
        EXPECT_EQ(scan::Show(field, 91), "5.00");
        EXPECT_EQ(scan::Show(field, 254), "13.15");
        EXPECT_EQ(scan::Read(field, "1.23"), 15);
        EXPECT_EQ(scan::Read(field, ""), 1);
        EXPECT_EQ(scan::Read(field, "99999999999"), 91);
    }
}

TEST(ScanFields, DelaysCountSeconds) {
    for (const scan::TimeField& field : {scan::DropoutDelayTime, scan::TxDwellTime}) {
        EXPECT_EQ(scan::Show(field, 0), "0");
        EXPECT_EQ(scan::Show(field, 300), "300");
        EXPECT_EQ(scan::Read(field, ""), 0);
        EXPECT_EQ(scan::Read(field, "999"), 300);
    }
}

TEST(ScanFields, AnErasedImageHoldsNoTime) {
    const DataImage erased;
    EXPECT_FALSE(scan::Load(erased, scan::LookBackTimeA).has_value());
    EXPECT_FALSE(scan::Load(erased, scan::LookBackTimeB).has_value());
    EXPECT_FALSE(scan::Load(erased, scan::DropoutDelayTime).has_value());
    EXPECT_FALSE(scan::Load(erased, scan::TxDwellTime).has_value());
}

TEST(ScanFields, TimesAreStoredAtTheirAddressesLowByteFirst) {
    DataImage image;
    scan::Store(image, scan::LookBackTimeA, 2);
    scan::Store(image, scan::LookBackTimeB, 91);
    scan::Store(image, scan::DropoutDelayTime, 300);
    scan::Store(image, scan::TxDwellTime, 255);
    EXPECT_EQ(image.At(0x162), 2);
    EXPECT_EQ(image.At(0x163), 91);
    EXPECT_EQ(image.At(0x165), 0x2C);
    EXPECT_EQ(image.At(0x166), 0x01);
    EXPECT_EQ(image.At(0x167), 0xFF);
    EXPECT_EQ(image.At(0x168), 0x00);
    EXPECT_EQ(scan::Load(image, scan::LookBackTimeA), 2);
    EXPECT_EQ(scan::Load(image, scan::LookBackTimeB), 91);
    EXPECT_EQ(scan::Load(image, scan::DropoutDelayTime), 300);
    EXPECT_EQ(scan::Load(image, scan::TxDwellTime), 255);
}

TEST(ScanFields, ALookBackByteOfZeroIsNoTime) {
    DataImage image;
    image.Set(0x162, 0);
    EXPECT_FALSE(scan::Load(image, scan::LookBackTimeA).has_value());
}

TEST(ScanFields, AModeThatWasNeverStoredReadsAsNone) {
    EXPECT_EQ(scan::EntryOf(scan::PriorityMode, 0), 0);
    EXPECT_EQ(scan::EntryOf(scan::PriorityMode, 2), 2);
    EXPECT_EQ(scan::EntryOf(scan::PriorityMode, 3), std::nullopt);
    EXPECT_EQ(scan::EntryOf(scan::PriorityMode, 0xFE), std::nullopt);
    EXPECT_EQ(scan::EntryOf(scan::PriorityMode, 0xFF), 0);
}

TEST(ScanFields, ARevertChannelThatWasNeverStoredReadsAsNothing) {
    EXPECT_EQ(scan::EntryOf(scan::RevertChannel, 3), 3);
    EXPECT_EQ(scan::EntryOf(scan::RevertChannel, 4), std::nullopt);
    EXPECT_EQ(scan::EntryOf(scan::RevertChannel, 0xFF), std::nullopt);
}

} // namespace
} // namespace zelvor
