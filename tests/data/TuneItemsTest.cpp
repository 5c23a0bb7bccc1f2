#include "data/TuneItems.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace zelvor {
namespace {

/// A record whose bytes all differ: byte k (from 1) is 100 + k.
std::vector<std::uint8_t> NumberedRecord() {
    std::vector<std::uint8_t> record;
    for (int k = 1; k <= 62; ++k) {
        record.push_back(static_cast<std::uint8_t>(100 + k));
    }
    return record;
}

/// Byte of the record (from 1) by image index.
const std::map<int, int> ByteOfIndex{
    {630, 2},  {614, 3},  {598, 4},  {582, 5},  {566, 7},  {550, 8},  {534, 9},  {518, 10}, {86, 12},  {70, 13},
    {54, 14},  {38, 15},  {22, 16},  {166, 18}, {150, 19}, {134, 20}, {118, 21}, {102, 22}, {294, 25}, {278, 26},
    {262, 27}, {246, 28}, {230, 30}, {214, 31}, {198, 32}, {182, 33}, {358, 35}, {342, 36}, {326, 37}, {310, 38},
    {422, 40}, {406, 41}, {390, 42}, {374, 43}, {454, 44}, {438, 45}, {502, 47}, {486, 48}, {470, 49}, {694, 51},
    {678, 52}, {662, 53}, {646, 54}, {710, 55}, {726, 56}, {742, 57}, {758, 58}};

TEST(StoreTuningData, EveryByteOfTheRecordGoesToItsPlaceInTheImageAndNothingElseChanges) {
    DataImage image;
    image.Fill(0x5A);
    TuneValues values;
    StoreTuningData(NumberedRecord(), image, values);
    for (int index = 0; index < 1024; ++index) {
        const auto found = ByteOfIndex.find(index);
        const int expected = found == ByteOfIndex.end() ? 0x5A : 100 + found->second;
        EXPECT_EQ(image.AtIndex(index), expected) << "image index " << index;
    }
}

TEST(StoreTuningData, TheTestValuesAreKeptBesideTheImage) {
    DataImage image;
    TuneValues values;
    values.TestPointCurrent = 7;
    StoreTuningData(NumberedRecord(), image, values);
    EXPECT_EQ(values.TestPointSquelchOpen, 101);
    EXPECT_EQ(values.TestPointSquelchTight, 106);
    EXPECT_EQ(values.TestPointHighPower, 111);
    EXPECT_EQ(values.TestPointLowPower, 117);
    EXPECT_EQ(values.TestPointMaxDeviation, 124);
    EXPECT_EQ(values.TestPointDqtBalance, 129);
    EXPECT_EQ(values.TestPointQtFine, 134);
    EXPECT_EQ(values.TestPointDqtFine, 139);
    EXPECT_EQ(values.TestPointSensitivity, 146);
    EXPECT_EQ(values.TestPointCurrent, 7);
}

TEST(StoreTuningData, AShortReplyStoresWhatItHolds) {
    DataImage image;
    image.Fill(0x5A);
    TuneValues values;
    values.TestPointSquelchTight = 9;
    StoreTuningData(std::vector<std::uint8_t>{1, 2, 3}, image, values);
    EXPECT_EQ(values.TestPointSquelchOpen, 1);
    EXPECT_EQ(image.AtIndex(630), 2);
    EXPECT_EQ(image.AtIndex(614), 3);
    EXPECT_EQ(image.AtIndex(598), 0x5A);
    EXPECT_EQ(values.TestPointSquelchTight, 9);
}

TEST(BuildTuningRecord, PutsEveryStoredByteBackInItsPlace) {
    DataImage image;
    TuneValues values;
    StoreTuningData(NumberedRecord(), image, values);
    const TuningRecord record = BuildTuningRecord(image, values);
    for (int k = 1; k <= 62; ++k) {
        const bool unknown = k == 23 || k == 50 || k >= 59;
        EXPECT_EQ(record[static_cast<std::size_t>(k - 1)], unknown ? 0 : 100 + k) << "byte " << k;
    }
}

struct CodeRow {
    int item;
    Text name;
    int code;
    std::vector<int> wide; // Test, then the points in rising order
    int narrow;            // of the item's narrow value; 0: it has none
};

class TuneItemCodes : public ::testing::TestWithParam<CodeRow> {};

TEST_P(TuneItemCodes, AreThoseOfTheRadio) {
    const CodeRow& row = GetParam();
    const TuneItemRow& item = TuneItemOf(row.item);
    EXPECT_EQ(item.name, row.name);
    EXPECT_EQ(item.code, row.code);
    std::vector<int> wide;
    for (const TunePoint point : {TunePoint::Test, TunePoint::Low, TunePoint::LowPrime, TunePoint::Center,
                                  TunePoint::HighPrime, TunePoint::High}) {
        if (item.Cell(point).Exists()) {
            wide.push_back(item.Cell(point).code);
        }
    }
    EXPECT_EQ(wide, row.wide);
    EXPECT_EQ(item.Cell(TunePoint::Narrow).code, row.narrow);
}

INSTANTIATE_TEST_SUITE_P(AllItems, TuneItemCodes,
                         ::testing::Values(CodeRow{1, Text::RfHighPower, 18, {18, 48, 51, 49, 52, 50}, 0},
                                           CodeRow{2, Text::RfLowPower, 20, {20, 96, 99, 97, 100, 98}, 0},
                                           CodeRow{3, Text::DqtBalance, 24, {24, 101, 102, 103}, 24},
                                           CodeRow{4, Text::MaxDeviation, 23, {23, 36, 37, 38}, 23},
                                           CodeRow{5, Text::QtFineDeviation, 25, {25, 106, 107, 108}, 25},
                                           CodeRow{6, Text::DqtFineDeviation, 26, {26, 111, 112, 113}, 26},
                                           CodeRow{7, Text::DtmfFineDeviation, 29, {29}, 29},
                                           CodeRow{8, Text::Sensitivity, 31, {31, 53, 54, 55}, 0},
                                           CodeRow{9, Text::SquelchTight, 13, {13, 117, 118, 119}, 13},
                                           CodeRow{10, Text::SquelchOpen, 12, {12, 114, 115, 116}, 12},
                                           CodeRow{11, Text::MskFineDeviation, 27, {27}, 27},
                                           CodeRow{12, Text::BatteryWarningLevel, 28, {28}, 0},
                                           CodeRow{13, Text::Vox1, 33, {33}, 0}, CodeRow{14, Text::Vox10, 35, {35}, 0},
                                           CodeRow{15, Text::Rssi, 34, {34}, 0}));

struct CellRow {
    int item;
    TunePoint point;
    int index; // of the image
};

class TuneItemCells : public ::testing::TestWithParam<CellRow> {};

TEST_P(TuneItemCells, HoldTheValueAtTheirImageIndex) {
    const CellRow& row = GetParam();
    DataImage image;
    image.Fill(0);
    image.SetIndex(row.index, 0xA7);
    EXPECT_EQ(TuneValueOf(TuneItemOf(row.item), row.point, image, {}), 0xA7);
}

INSTANTIATE_TEST_SUITE_P(
    AllCells, TuneItemCells,
    ::testing::Values(
        CellRow{1, TunePoint::Low, 86}, CellRow{1, TunePoint::LowPrime, 70}, CellRow{1, TunePoint::Center, 54},
        CellRow{1, TunePoint::HighPrime, 38}, CellRow{1, TunePoint::High, 22}, CellRow{2, TunePoint::Low, 166},
        CellRow{2, TunePoint::LowPrime, 150}, CellRow{2, TunePoint::Center, 134}, CellRow{2, TunePoint::HighPrime, 118},
        CellRow{2, TunePoint::High, 102}, CellRow{3, TunePoint::Low, 230}, CellRow{3, TunePoint::Center, 214},
        CellRow{3, TunePoint::High, 198}, CellRow{3, TunePoint::Narrow, 182}, CellRow{4, TunePoint::Low, 294},
        CellRow{4, TunePoint::Center, 278}, CellRow{4, TunePoint::High, 262}, CellRow{4, TunePoint::Narrow, 246},
        CellRow{5, TunePoint::Low, 358}, CellRow{5, TunePoint::Center, 342}, CellRow{5, TunePoint::High, 326},
        CellRow{5, TunePoint::Narrow, 310}, CellRow{6, TunePoint::Low, 422}, CellRow{6, TunePoint::Center, 406},
        CellRow{6, TunePoint::High, 390}, CellRow{6, TunePoint::Narrow, 374}, CellRow{7, TunePoint::Test, 454},
        CellRow{7, TunePoint::Narrow, 438}, CellRow{8, TunePoint::Low, 502}, CellRow{8, TunePoint::Center, 486},
        CellRow{8, TunePoint::High, 470}, CellRow{9, TunePoint::Low, 566}, CellRow{9, TunePoint::Center, 550},
        CellRow{9, TunePoint::High, 534}, CellRow{9, TunePoint::Narrow, 518}, CellRow{10, TunePoint::Low, 630},
        CellRow{10, TunePoint::Center, 614}, CellRow{10, TunePoint::High, 598}, CellRow{10, TunePoint::Narrow, 582},
        CellRow{11, TunePoint::Test, 678}, CellRow{11, TunePoint::Narrow, 646}, CellRow{12, TunePoint::Test, 710},
        CellRow{13, TunePoint::Test, 742}, CellRow{14, TunePoint::Test, 758}, CellRow{15, TunePoint::Test, 806}));

} // namespace
} // namespace zelvor
