#include "CorvaneFormFixture.h"

#include <QCheckBox>

namespace zelvor {
namespace {

struct Wrap {
    const char* box;
    const char* upDown;
    const char* last;
    const char* first;
    int lastStep;
    int firstStep;
    const char* belowLast;
    const char* aboveFirst;
};
constexpr Wrap Wraps[] = {
    {"txtFleet", "updFleet", "349", "100", 250, 1, "348", "101"},
    {"txtID", "updID", "4999", "1000", 4000, 1, "4998", "1001"},
    {"txtDelayTime", "updDelayTime", "6000", "0", 6000, 0, "5999", "1"},
    {"txtMsgModeTimer", "updMsgModeTimer", "300", "Off", 300, 0, "299", "1"},
};

TEST_F(CorvaneFormTest, EveryNumberWrapsInBothDirectionsByKeyAndByButton) {
    Put(0x170, {250, 0xA0, 0x0F, 0x70, 0x17, 0, 0x2C, 0x01});
    for (const Wrap& wrap : Wraps) {
        for (const bool byKey : {true, false}) {
            const DataImage before = document.Image;
            Show();
            Focus(wrap.box);
            const auto step = [&](bool up) {
                if (byKey) {
                    Key(up ? Qt::Key_Up : Qt::Key_Down);
                } else {
                    Step(wrap.upDown, up);
                }
                EXPECT_EQ(Box(wrap.box).selectedText(), Box(wrap.box).text());
            };
            EXPECT_EQ(Text(wrap.box), wrap.last);
            step(true);
            EXPECT_EQ(Text(wrap.box), wrap.first);
            EXPECT_EQ(Spin(wrap.upDown), wrap.firstStep);
            step(false);
            EXPECT_EQ(Text(wrap.box), wrap.last);
            EXPECT_EQ(Spin(wrap.upDown), wrap.lastStep);
            step(false);
            EXPECT_EQ(Text(wrap.box), wrap.belowLast);
            step(true);
            step(true);
            step(true);
            EXPECT_EQ(Text(wrap.box), wrap.aboveFirst);
            EXPECT_EQ(document.Image, before);
            form.reset();
        }
    }
}

TEST_F(CorvaneFormTest, TheWordOffWrapsInChineseToo) {
    Put(0x176, {0x2C, 0x01});
    Show(Language::Chinese);
    Focus("txtMsgModeTimer");
    Key(Qt::Key_Up);
    EXPECT_EQ(Text("txtMsgModeTimer"), "关");
    Key(Qt::Key_Down);
    EXPECT_EQ(Text("txtMsgModeTimer"), "300");
}

TEST_F(CorvaneFormTest, StepsFromBytesBeyondTheRangeComeBackIntoIt) {
    Put(0x170, {0, 0xA1, 0x0F}); // shown as 99 and 5000
    Show();
    EXPECT_EQ(Text("txtFleet"), "99");
    EXPECT_EQ(Text("txtID"), "5000");
    Focus("txtFleet");
    Key(Qt::Key_Down);
    EXPECT_EQ(Text("txtFleet"), "100");
    EXPECT_EQ(Text("txtID"), "5000");
    Focus("txtID");
    Key(Qt::Key_Up);
    EXPECT_EQ(Text("txtID"), "4999");
}

TEST_F(CorvaneFormTest, TypedTimesAreLimitedAndStoredLowByteFirst) {
    struct {
        const char* box;
        const char* typed;
        const char* shown;
        int address;
        int low;
        int high;
    } const entries[] = {
        {"txtDelayTime", "6001", "6000", 0x173, 0x70, 0x17}, {"txtDelayTime", "9999", "6000", 0x173, 0x70, 0x17},
        {"txtDelayTime", "6000", "6000", 0x173, 0x70, 0x17}, {"txtDelayTime", "256", "256", 0x173, 0, 1},
        {"txtDelayTime", "007", "7", 0x173, 7, 0},           {"txtDelayTime", "", "0", 0x173, 0, 0},
        {"txtMsgModeTimer", "0", "Off", 0x176, 0, 0},        {"txtMsgModeTimer", "", "Off", 0x176, 0, 0},
        {"txtMsgModeTimer", "999", "300", 0x176, 0x2C, 1},   {"txtMsgModeTimer", "300", "300", 0x176, 0x2C, 1},
        {"txtMsgModeTimer", "299", "299", 0x176, 0x2B, 1},   {"txtMsgModeTimer", "1", "1", 0x176, 1, 0},
    };
    Show();
    for (const auto& entry : entries) {
        Enter(entry.box, entry.typed);
        EXPECT_EQ(Text(entry.box), entry.shown) << entry.box << " " << entry.typed;
        EXPECT_EQ(From(entry.address, 2), (Bytes{entry.low, entry.high})) << entry.box << " " << entry.typed;
    }
}

TEST_F(CorvaneFormTest, LeavingABoxThatShowsOffKeepsItOff) {
    for (const Language language : {Language::English, Language::Chinese}) {
        Put(0x176, {0, 0});
        Show(language);
        Focus("txtMsgModeTimer");
        Key(Qt::Key_Tab);
        EXPECT_EQ(Text("txtMsgModeTimer"), language == Language::English ? "Off" : "关");
        EXPECT_EQ(From(0x176, 2), (Bytes{0, 0}));
    }
}

TEST_F(CorvaneFormTest, BoxesTakeDigitsUpToTheirLengthAlsoByPasting) {
    struct {
        const char* box;
        const char* pasted;
        const char* taken;
    } const entries[] = {{"txtFleet", "2x7-68", "276"},
                         {"txtID", "a1b2c3d4e5", "1234"},
                         {"txtDelayTime", "12 345", "1234"},
                         {"txtMsgModeTimer", "+1.25.9", "125"}};
    for (const auto& entry : entries) {
        Show();
        Focus(entry.box);
        Type("x-A.");
        EXPECT_EQ(Box(entry.box).selectedText(), Box(entry.box).text()) << entry.box;
        Paste(entry.pasted);
        EXPECT_EQ(Text(entry.box), entry.taken);
        Type("9");
        EXPECT_EQ(Text(entry.box), entry.taken);
        Key(Qt::Key_Backspace);
        Type("9");
        EXPECT_EQ(Text(entry.box), QString(entry.taken).chopped(1).append('9').toStdString());
    }
}

TEST_F(CorvaneFormTest, TheBaudRateIsStoredWhenTheListIsLeft) {
    for (const int entry : {1, 0}) {
        Show();
        Choose("cboBaudRate", entry);
        Key(Qt::Key_Return);
        EXPECT_EQ(At(0x175), entry);
    }
}

TEST_F(CorvaneFormTest, EveryByteOfTheBaudRateShowsAndCommitsAsTold) {
    for (int byte = 0; byte < 256; ++byte) {
        Put(0x175, {byte});
        Show();
        EXPECT_EQ(List("cboBaudRate").currentIndex(), byte <= 1 ? byte : -1) << byte;
        List("cboBaudRate").setFocus();
        Key(Qt::Key_Tab);
        EXPECT_EQ(At(0x175), byte <= 1 ? byte : 0xFF) << byte;
    }
}

TEST_F(CorvaneFormTest, EveryByteOfTheSideToneShowsAndCommitsAsTold) {
    for (int byte = 0; byte < 256; ++byte) {
        Put(0x178, {byte});
        Show();
        const bool on = byte != 0 && byte != 0xFF;
        EXPECT_EQ(Find<QCheckBox>("chkSideTone").isChecked(), on) << byte;
        Find<QCheckBox>("chkSideTone").setFocus();
        Key(Qt::Key_Tab);
        EXPECT_EQ(At(0x178), on ? 1 : 0) << byte;
    }
}

TEST_F(CorvaneFormTest, TheSideToneIsStoredWhenItsBoxIsLeft) {
    Show();
    Find<QCheckBox>("chkSideTone").setFocus();
    Key(Qt::Key_Space);
    EXPECT_EQ(At(0x178), 1);
    Key(Qt::Key_Return);
    EXPECT_EQ(At(0x178), 0);
}

TEST_F(CorvaneFormTest, EveryHighByteOfTheTimesShowsAndCommitsAsTold) {
    for (int high = 0; high < 256; ++high) {
        Put(0x173, {0x11, high});
        Put(0x176, {0x12, high});
        Show();
        const int delay = high == 0xFF ? 400 : 17 + 256 * high;
        const int timer = high == 0xFF ? 300 : 18 + 256 * high;
        EXPECT_EQ(Text("txtDelayTime"), std::to_string(delay));
        EXPECT_EQ(Text("txtMsgModeTimer"), std::to_string(timer));
        Focus("txtDelayTime");
        Focus("txtMsgModeTimer");
        Key(Qt::Key_Tab);
        const int storedDelay = delay > 6000 ? 6000 : delay;
        const int storedTimer = timer > 300 ? 300 : timer;
        EXPECT_EQ(From(0x173, 2), (Bytes{storedDelay % 256, storedDelay / 256})) << high;
        EXPECT_EQ(From(0x176, 2), (Bytes{storedTimer % 256, storedTimer / 256})) << high;
    }
}

} // namespace
} // namespace zelvor
