#include "CorvaneFormFixture.h"

namespace zelvor {
namespace {

TEST_F(CorvaneFormTest, ATypedFleetIsLimitedAndStoredWhenTheBoxIsLeft) {
    struct {
        const char* typed;
        const char* shown;
        int byte;
    } const entries[] = {{"50", "100", 1},    {"0", "100", 1},     {"100", "100", 1},   {"101", "101", 2},
                         {"200", "200", 101}, {"348", "348", 249}, {"349", "349", 250}, {"350", "349", 250},
                         {"900", "349", 250}, {"1", "100", 1}};
    for (const auto& entry : entries) {
        Show();
        Focus("txtFleet");
        Type(entry.typed);
        EXPECT_EQ(Own(), (Bytes{50, 0xDC, 0x05})) << entry.typed;
        Key(Qt::Key_Tab);
        EXPECT_EQ(Text("txtFleet"), entry.shown) << entry.typed;
        EXPECT_EQ(Spin("updFleet"), entry.byte) << entry.typed;
        EXPECT_EQ(Own(), (Bytes{entry.byte, 0xDC, 0x05})) << entry.typed;
        EXPECT_EQ(Text("txtID"), "2499");
        SetUp();
    }
}

TEST_F(CorvaneFormTest, ATypedIdIsLimitedAndStoredWhenTheBoxIsLeft) {
    struct {
        const char* typed;
        const char* shown;
        int step;
    } const entries[] = {{"999", "1000", 1},     {"0", "1000", 1},       {"1000", "1000", 1},    {"1001", "1001", 2},
                         {"1255", "1255", 256},  {"4998", "4998", 3999}, {"4999", "4999", 4000}, {"5000", "4999", 4000},
                         {"9999", "4999", 4000}, {"7", "1000", 1}};
    for (const auto& entry : entries) {
        Show();
        Focus("txtID");
        Type(entry.typed);
        EXPECT_EQ(Own(), (Bytes{50, 0xDC, 0x05})) << entry.typed;
        Key(Qt::Key_Tab);
        EXPECT_EQ(Text("txtID"), entry.shown) << entry.typed;
        EXPECT_EQ(Spin("updID"), entry.step) << entry.typed;
        EXPECT_EQ(Own(), (Bytes{50, entry.step % 256, entry.step / 256})) << entry.typed;
        EXPECT_EQ(Text("txtFleet"), "149");
        SetUp();
    }
}

TEST_F(CorvaneFormTest, EmptyingEitherOwnNumberEmptiesAndErasesBoth) {
    for (const char* name : {"txtFleet", "txtID"}) {
        SetUp();
        Show();
        Focus(name);
        Key(Qt::Key_Backspace);
        EXPECT_EQ(Own(), (Bytes{50, 0xDC, 0x05})) << name;
        Key(Qt::Key_Tab);
        EXPECT_EQ(Text("txtFleet"), "") << name;
        EXPECT_EQ(Spin("updFleet"), 0) << name;
        EXPECT_EQ(Text("txtID"), "") << name;
        EXPECT_EQ(Spin("updID"), 0) << name;
        EXPECT_EQ(Own(), (Bytes{0xFF, 0, 0})) << name;
    }
}

TEST_F(CorvaneFormTest, AStepInAnEmptyFleetFillsTheIdAndStoresThatAtOnce) {
    for (const bool up : {true, false}) {
        for (const bool byKey : {true, false}) {
            Put(0x170, {0xFF, 0, 0});
            Show();
            Focus("txtFleet");
            if (byKey) {
                Key(up ? Qt::Key_Up : Qt::Key_Down);
            } else {
                Step("updFleet", up);
            }
            EXPECT_EQ(Text("txtFleet"), "100");
            EXPECT_EQ(Box("txtFleet").selectedText(), "100");
            EXPECT_TRUE(Box("txtFleet").hasFocus());
            EXPECT_EQ(Spin("updFleet"), 1);
            EXPECT_EQ(Text("txtID"), "1000");
            EXPECT_EQ(Spin("updID"), 1);
            EXPECT_EQ(Own(), (Bytes{0xFF, 1, 0}));
            Key(Qt::Key_Tab);
            EXPECT_EQ(Own(), (Bytes{1, 1, 0}));
        }
    }
}

TEST_F(CorvaneFormTest, AStepInAnEmptyIdShowsAFleetToo) {
    for (const bool up : {true, false}) {
        for (const bool byKey : {true, false}) {
            Put(0x170, {0xFF, 0, 0});
            Show();
            Focus("txtID");
            ASSERT_EQ(Own(), (Bytes{0xFF, 0, 0}));
            if (byKey) {
                Key(up ? Qt::Key_Up : Qt::Key_Down);
            } else {
                Step("updID", up);
            }
            EXPECT_EQ(Text("txtID"), "1000");
            EXPECT_TRUE(Box("txtID").hasFocus());
            EXPECT_EQ(Spin("updID"), 1);
            EXPECT_EQ(Text("txtFleet"), "100");
            EXPECT_EQ(Spin("updFleet"), 1);
            EXPECT_EQ(Own(), (Bytes{0xFF, 0, 0}));
            Key(Qt::Key_Tab);
            EXPECT_EQ(Own(), (Bytes{0xFF, 1, 0}));
            Focus("txtFleet");
            Key(Qt::Key_Tab);
            EXPECT_EQ(Own(), (Bytes{1, 1, 0}));
        }
    }
}

TEST_F(CorvaneFormTest, EveryFleetByteShowsAndCommitsAsTold) {
    for (int byte = 0; byte < 256; ++byte) {
        Put(0x170, {byte, 0xDC, 0x05});
        Show();
        EXPECT_EQ(Text("txtFleet"), byte == 0xFF ? "" : std::to_string(byte + 99)) << byte;
        EXPECT_EQ(Spin("updFleet"), byte == 0xFF ? 0 : byte > 250 ? 250 : byte) << byte;
        Key(Qt::Key_Tab);
        const int stored = byte == 0xFF ? 0xFF : byte == 0 ? 1 : byte > 250 ? 250 : byte;
        const bool erased = byte == 0xFF;
        EXPECT_EQ(Own(), (Bytes{stored, erased ? 0 : 0xDC, erased ? 0 : 0x05})) << byte;
    }
}

TEST_F(CorvaneFormTest, EveryHighByteOfTheIdShowsAndCommitsAsTold) {
    for (int high = 0; high < 256; ++high) {
        Put(0x170, {50, 0x10, high});
        Show();
        const int value = 16 + 256 * high;
        EXPECT_EQ(Text("txtID"), high == 0xFF ? "" : std::to_string(value + 999)) << high;
        EXPECT_EQ(Spin("updID"), high == 0xFF ? 0 : value > 4000 ? 4000 : value) << high;
        Focus("txtID");
        Key(Qt::Key_Tab);
        if (high == 0xFF) {
            EXPECT_EQ(Own(), (Bytes{0xFF, 0, 0}));
        } else if (value > 4000) {
            EXPECT_EQ(Own(), (Bytes{50, 0xA0, 0x0F})) << high;
        } else {
            EXPECT_EQ(Own(), (Bytes{50, 0x10, high})) << high;
        }
    }
}

TEST_F(CorvaneFormTest, AnEnteredOwnNumberEndsTheComplaintOverIt) {
    for (const char* name : {"txtFleet", "txtID"}) {
        SetUp();
        Put(0x170, {0xFF, 0, 0});
        document.Flags.OwnIdError = true;
        Show();
        Focus(name);
        Key(Qt::Key_Tab);
        EXPECT_TRUE(document.Flags.OwnIdError) << name;
        Enter(name, "1500");
        EXPECT_FALSE(document.Flags.OwnIdError) << name;
    }
}

} // namespace
} // namespace zelvor
