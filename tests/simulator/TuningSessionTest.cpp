// What tuning does to the radio: values that are set, stored, dropped, and read again.

#include <vector>

#include <gtest/gtest.h>

#include "ServiceMemory.h"
#include "simulator/RadioResponder.h"

namespace zelvor::test {
namespace {

class TuningSessionTest : public ::testing::Test {
protected:
    TuningSessionTest() { EnterTuning(); }

    void EnterTuning() { ASSERT_EQ(Feed(radio, Text("TUNING ")), Acknowledged); }
    void Set(std::uint8_t code, std::uint8_t value) { ASSERT_EQ(Feed(radio, {code, 0x20, value}), Acknowledged); }
    void Store(std::uint8_t code) { ASSERT_EQ(Feed(radio, {code, 0x0E}), Acknowledged); }
    void End() { ASSERT_EQ(Feed(radio, {0x45}), Acknowledged); }
    [[nodiscard]] Bytes Record() { return Feed(radio, {0x05}); }

    /// The value that the radio works with.
    [[nodiscard]] int Working(std::uint8_t code) {
        EXPECT_EQ(Feed(radio, {code, 0x0D}), Acknowledged);
        const Bytes point = Feed(radio, {0x07});
        return point.size() == 6 ? point[1] : -1;
    }

    DataImage memory = ServiceMemory();
    RadioResponder radio{memory};
};

struct Point {
    bool narrow;
    std::uint8_t code;
    int imageIndex;
};

const std::vector<Point> PointsOfMemory{
    {false, 48, 86},   {false, 51, 70},   {false, 49, 54},   {false, 52, 38},   {false, 50, 22},   {false, 96, 166},
    {false, 99, 150},  {false, 97, 134},  {false, 100, 118}, {false, 98, 102},  {false, 101, 230}, {false, 102, 214},
    {false, 103, 198}, {false, 36, 294},  {false, 37, 278},  {false, 38, 262},  {false, 106, 358}, {false, 107, 342},
    {false, 108, 326}, {false, 111, 422}, {false, 112, 406}, {false, 113, 390}, {false, 29, 454},  {false, 53, 502},
    {false, 54, 486},  {false, 55, 470},  {false, 117, 566}, {false, 118, 550}, {false, 119, 534}, {false, 114, 630},
    {false, 115, 614}, {false, 116, 598}, {false, 27, 678},  {false, 28, 710},  {false, 33, 742},  {false, 35, 758},
    {false, 34, 806},  {true, 24, 182},   {true, 23, 246},   {true, 25, 310},   {true, 26, 374},   {true, 29, 438},
    {true, 13, 518},   {true, 12, 582},   {true, 27, 646},   {true, 48, 86},    {true, 98, 102},   {true, 53, 502},
    {true, 28, 710},   {true, 34, 806},
};

TEST_F(TuningSessionTest, EachPointIsStoredAtItsPlaceInTheMemoryAndNowhereElse) {
    for (const Point& point : PointsOfMemory) {
        memory = ServiceMemory();
        EnterTuning();
        ASSERT_EQ(Feed(radio, {static_cast<std::uint8_t>(point.narrow ? 'G' : 'F')}), Acknowledged);
        Set(point.code, 0xE7);
        Store(point.code);
        DataImage expected = ServiceMemory();
        expected.SetIndex(point.imageIndex, 0xE7);
        EXPECT_EQ(memory, expected) << "code " << int(point.code) << (point.narrow ? " narrow" : " wide");
    }
}

struct TestValue {
    std::uint8_t code;
    std::size_t recordByte; // from 1
};

const std::vector<TestValue> TestValues{{18, 11}, {20, 17}, {24, 29}, {23, 24}, {25, 34},
                                        {26, 39}, {31, 46}, {13, 6},  {12, 1}};

TEST_F(TuningSessionTest, ValuesAtTheTestFrequencyAreStoredBesideTheMemory) {
    Bytes expected = ServiceTuningRecord();
    for (const TestValue& value : TestValues) {
        Set(value.code, static_cast<std::uint8_t>(0x80 + value.code));
        Store(value.code);
        expected[value.recordByte - 1] = static_cast<std::uint8_t>(0x80 + value.code);
        EXPECT_EQ(Record(), expected) << "code " << int(value.code);
    }
    EXPECT_EQ(memory, ServiceMemory());
}

TEST_F(TuningSessionTest, AValueThatIsSetCountsAtOnceAndIsReadOnlyWhenStored) {
    Set(48, 0xE7);
    EXPECT_EQ(Working(48), 0xE7);
    EXPECT_EQ(Record(), ServiceTuningRecord());
    EXPECT_EQ(memory, ServiceMemory());
    Store(48);
    Bytes expected = ServiceTuningRecord();
    expected[11] = 0xE7;
    EXPECT_EQ(Record(), expected);
}

TEST_F(TuningSessionTest, OneStoreMakesAllValuesOfItsItemTheRadios) {
    Set(18, 1);
    Set(48, 2);
    Set(51, 3);
    Set(49, 4);
    Set(52, 5);
    Set(50, 6);
    Store(50);
    Bytes expected = ServiceTuningRecord();
    for (std::uint8_t i = 0; i < 6; ++i) {
        expected[10U + i] = static_cast<std::uint8_t>(i + 1);
    }
    EXPECT_EQ(Record(), expected);
}

TEST_F(TuningSessionTest, AStoreLeavesOtherItemsAlone) {
    Set(48, 0xE7);
    Set(96, 0xE8);
    Store(96);
    EXPECT_EQ(memory.AtIndex(86), 0x45);
    EXPECT_EQ(memory.AtIndex(166), 0xE8);
    EXPECT_EQ(Working(48), 0xE7);
}

TEST_F(TuningSessionTest, TheItemsCodeIsTheTestValueInWideAndTheNarrowValueInNarrowMode) {
    Set(24, 0x91);
    EXPECT_EQ(Feed(radio, {'G'}), Acknowledged);
    EXPECT_EQ(Working(24), 0x4B);
    Set(24, 0x92);
    EXPECT_EQ(Working(24), 0x92);
    EXPECT_EQ(Feed(radio, {'F'}), Acknowledged);
    EXPECT_EQ(Working(24), 0x91);
    Store(24);
    Bytes expected = ServiceTuningRecord();
    expected[28] = 0x91;
    expected[32] = 0x92;
    EXPECT_EQ(Record(), expected);
}

TEST_F(TuningSessionTest, NarrowModeHasNoPointsWhereTheItemHasANarrowValue) {
    EXPECT_EQ(Feed(radio, {'G'}), Acknowledged);
    for (const std::uint8_t code : {101, 36, 106, 111, 117, 114}) {
        EXPECT_EQ(Feed(radio, {code, 0x0D}), Bytes{}) << int(code);
        EXPECT_EQ(Feed(radio, {code, 0x20, 0x46}), Bytes{}) << int(code);
        EXPECT_EQ(Feed(radio, {code, 0x0E}), Bytes{}) << int(code);
    }
    EXPECT_EQ(Feed(radio, {24, 0x0D, 0x07}), (Bytes{0x06, 24, 0x4B, 0, 0, 0, 0})) << "the radio is still narrow";
}

TEST_F(TuningSessionTest, EndDropsWhatWasNotStored) {
    Set(48, 0xE7);
    Set(96, 0xE8);
    Store(96);
    End();
    EnterTuning();
    EXPECT_EQ(Working(48), 0x45);
    EXPECT_EQ(Working(96), 0xE8);
}

TEST_F(TuningSessionTest, AnotherEntryDropsWhatWasNotStoredAndIsWide) {
    Set(18, 0xE7);
    EXPECT_EQ(Feed(radio, {'G'}), Acknowledged);
    EnterTuning();
    EXPECT_EQ(Working(18), 0x43);
    EXPECT_EQ(Working(24), 0x4D);
    EXPECT_EQ(Feed(radio, {101, 0x0D}), Acknowledged);
}

TEST_F(TuningSessionTest, ARestartKeepsWhatWasStoredAndDropsTheRest) {
    Set(18, 0xE7);
    Store(18);
    Set(20, 0xE8);
    radio.Restart();
    EnterTuning();
    EXPECT_EQ(Working(18), 0xE7);
    EXPECT_EQ(Working(20), 0x48);
}

TEST_F(TuningSessionTest, ALaterCloneReadShowsWhatWasStoredAndNotWhatWasSet) {
    Set(48, 0xE7);
    Store(48);
    Set(51, 0xE8);
    End();
    Enter(radio);
    EXPECT_EQ(Feed(radio, {0x52, 0x01, 0x84, 0x02}), (Bytes{0x57, 0x01, 0x84, 0x02, 0x44, 0xE7}));
}

TEST_F(TuningSessionTest, TuningStartsFromWhatACloneWriteHasLeft) {
    End();
    Enter(radio);
    ASSERT_EQ(Feed(radio, {0x57, 0x01, 0x85, 0x01, 0x33}), Acknowledged);
    EnterTuning();
    EXPECT_EQ(Working(48), 0x33);
}

TEST_F(TuningSessionTest, GivingUpTuningStepByStepBringsTheOldValuesBack) {
    const std::vector<std::uint8_t> codes{18, 48, 51, 49, 52, 50};
    const std::vector<std::uint8_t> old{0x43, 0x45, 0x44, 0x43, 0x42, 0x41};
    for (const std::uint8_t code : codes) {
        Set(code, 0xE7);
    }
    Store(18);
    for (std::size_t page = 0; page < 6; ++page) {
        ASSERT_EQ(Feed(radio, {codes[page], 0x0D}), Acknowledged);
        Set(codes[page], old[page]);
    }
    Store(50);
    EXPECT_EQ(Record(), ServiceTuningRecord());
}

} // namespace
} // namespace zelvor::test
