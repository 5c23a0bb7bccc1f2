#include <algorithm>
#include <cstdio>

#include "channels/ScanFormFixture.h"

namespace zelvor {
namespace {

struct LookBack {
    const char* box;
    const char* upDown;
    int address;
};
constexpr LookBack LookBacks[] = {{"txtLookBackTimeA", "updLookBackTimeA", 0x162},
                                  {"txtLookBackTimeB", "updLookBackTimeB", 0x163}};

struct Delay {
    const char* box;
    const char* upDown;
    int low;
    int high;
};
constexpr Delay Delays[] = {{"txtDropoutDelayTime", "updDropoutDelayTime", 0x165, 0x166},
                            {"txtTXDwellTime", "updTXDwellTime", 0x167, 0x168}};

struct Typed {
    const char* text;
    const char* shown;
    int stored;
};

TEST_F(ScanFormTest, ALookBackTimeIsCutDownToTheStepAndKeptToItsRange) {
    const Typed entries[] = {
        {"", "0.50", 1},      {"0", "0.50", 1},     {"0.5", "0.50", 1},   {"0.50", "0.50", 1},  {"0.54", "0.50", 1},
        {"0.55", "0.55", 2},  {"1.23", "1.20", 15}, {"1.2", "1.20", 15},  {"1.25", "1.25", 16}, {".999", "0.95", 10},
        {"3", "3.00", 51},    {"4.94", "4.90", 89}, {"4.95", "4.95", 90}, {"4.99", "4.95", 90}, {"5", "5.00", 91},
        {"5.01", "5.00", 91}, {"9999", "5.00", 91}, {".", "0.50", 1},     {"1..5", "1.00", 11}, {"1.2.", "1.20", 15},
    };
    Show();
    for (const LookBack& field : LookBacks) {
        for (const Typed& entry : entries) {
            Enter(field.box, entry.text);
            EXPECT_EQ(Text(field.box), entry.shown) << entry.text;
            EXPECT_EQ(At(field.address), entry.stored) << entry.text;
            EXPECT_EQ(Spin(field.upDown), entry.stored) << entry.text;
        }
    }
}

TEST_F(ScanFormTest, EveryByteOfALookBackTimeShowsItsSecondsAndLegalOnesGoBackToThemselves) {
    for (const LookBack& field : LookBacks) {
        for (int byte = 0; byte <= 255; ++byte) {
            document.Image.Set(field.address, static_cast<std::uint8_t>(byte));
            Show();
            const bool empty = byte == 0 || byte == 255;
            char seconds[16];
            static_cast<void>(
                std::snprintf(seconds, sizeof seconds, "%d.%02d", (byte * 5 + 45) / 100, (byte * 5 + 45) % 100));
            EXPECT_EQ(Text(field.box), empty ? "" : seconds) << byte;
            EXPECT_EQ(Spin(field.upDown), empty ? 1 : std::min(byte, 91)) << byte;
            EXPECT_EQ(At(field.address), byte);
            Box(field.box).setFocus();
            Key(Qt::Key_Tab);
            EXPECT_EQ(At(field.address), empty ? 1 : std::min(byte, 91)) << byte;
        }
        document.Image.Set(field.address, 1);
    }
}

TEST_F(ScanFormTest, ALookBackTimeStepsByFiveHundredthsAndWraps) {
    Show();
    for (const LookBack& field : LookBacks) {
        Enter(field.box, "4.90");
        Box(field.box).setFocus();
        const char* upward[] = {"4.95", "5.00", "0.50", "0.55"};
        for (const char* text : upward) {
            Key(Qt::Key_Up);
            EXPECT_EQ(Text(field.box), text);
            EXPECT_EQ(Box(field.box).selectedText().toStdString(), text);
            EXPECT_EQ(Box(field.box).cursorPosition(), 0);
        }
        const char* downward[] = {"0.50", "5.00", "4.95"};
        for (const char* text : downward) {
            Key(Qt::Key_Down);
            EXPECT_EQ(Text(field.box), text);
        }
        EXPECT_EQ(At(field.address), 89); // stored on leaving
        Key(Qt::Key_Tab);
        EXPECT_EQ(At(field.address), 90);
    }
}

TEST_F(ScanFormTest, StepsStartFromWhatWasTyped) {
    Show();
    Box("txtLookBackTimeA").setFocus();
    Type("1.23");
    Key(Qt::Key_Up);
    EXPECT_EQ(Text("txtLookBackTimeA"), "1.25");
    Box("txtDropoutDelayTime").setFocus();
    Type("40");
    Key(Qt::Key_Down);
    EXPECT_EQ(Text("txtDropoutDelayTime"), "39");
}

TEST_F(ScanFormTest, StepsOfAnEmptyBoxStartFromTheUpDown) {
    document.Image.Fill(0xFF);
    document.Image.Set(0x160, 2);
    Show();
    Box("txtLookBackTimeA").setFocus();
    Key(Qt::Key_Up);
    EXPECT_EQ(Text("txtLookBackTimeA"), "0.55");
    Box("txtDropoutDelayTime").setFocus();
    Key(Qt::Key_Up);
    EXPECT_EQ(Text("txtDropoutDelayTime"), "1");
    Box("txtTXDwellTime").setFocus();
    Key(Qt::Key_Down);
    EXPECT_EQ(Text("txtTXDwellTime"), "300");
}

TEST_F(ScanFormTest, ALookBackBoxTakesFourDigitsAndPoints) {
    Show();
    for (const LookBack& field : LookBacks) {
        Box(field.box).setFocus();
        Type("a1.-2 345");
        EXPECT_EQ(Text(field.box), "1.23");
        Box(field.box).selectAll();
        Paste("2s.5!55");
        EXPECT_EQ(Text(field.box), "2.55");
    }
}

TEST_F(ScanFormTest, ADelayIsKeptTo300) {
    const Typed entries[] = {{"", "0", 0},        {"0", "0", 0},       {"007", "7", 7},     {"255", "255", 255},
                             {"256", "256", 256}, {"300", "300", 300}, {"301", "300", 300}, {"999", "300", 300}};
    Show();
    for (const Delay& field : Delays) {
        for (const Typed& entry : entries) {
            Enter(field.box, entry.text);
            EXPECT_EQ(Text(field.box), entry.shown) << entry.text;
            EXPECT_EQ(At(field.high) * 256 + At(field.low), entry.stored) << entry.text;
            EXPECT_EQ(Spin(field.upDown), entry.stored) << entry.text;
        }
    }
}

TEST_F(ScanFormTest, LowAndHighByteOfADelayLieLowFirst) {
    Show();
    for (const Delay& field : Delays) {
        Enter(field.box, "300");
        EXPECT_EQ(At(field.low), 0x2C);
        EXPECT_EQ(At(field.high), 0x01);
    }
}

TEST_F(ScanFormTest, EveryDelayOfTheRangeGoesBackToItself) {
    for (const Delay& field : Delays) {
        for (int seconds = 0; seconds <= 300; ++seconds) {
            document.Image.Set(field.low, static_cast<std::uint8_t>(seconds % 256));
            document.Image.Set(field.high, static_cast<std::uint8_t>(seconds / 256));
            Show();
            EXPECT_EQ(Text(field.box), std::to_string(seconds));
            EXPECT_EQ(Spin(field.upDown), seconds);
            Box(field.box).setFocus();
            Key(Qt::Key_Tab);
            EXPECT_EQ(At(field.high) * 256 + At(field.low), seconds);
        }
    }
}

TEST_F(ScanFormTest, EveryHighByteOfADelayShowsAsItIsAndIsKeptTo300OnLeaving) {
    for (const Delay& field : Delays) {
        for (int high = 0; high <= 255; ++high) {
            document.Image.Set(field.low, 0x30);
            document.Image.Set(field.high, static_cast<std::uint8_t>(high));
            Show();
            const int seconds = high * 256 + 48;
            EXPECT_EQ(Text(field.box), high == 255 ? "" : std::to_string(seconds));
            EXPECT_EQ(Spin(field.upDown), high == 255 ? 0 : std::min(seconds, 300));
            EXPECT_EQ(At(field.low), 0x30);
            EXPECT_EQ(At(field.high), high);
            Box(field.box).setFocus();
            Key(Qt::Key_Tab);
            EXPECT_EQ(At(field.high) * 256 + At(field.low), high == 255 ? 0 : std::min(seconds, 300)) << high;
        }
    }
}

TEST_F(ScanFormTest, ADelayStepsBySecondsAndWraps) {
    Show();
    for (const Delay& field : Delays) {
        Enter(field.box, "299");
        Box(field.box).setFocus();
        const char* upward[] = {"300", "0", "1"};
        for (const char* text : upward) {
            Key(Qt::Key_Up);
            EXPECT_EQ(Text(field.box), text);
        }
        const char* downward[] = {"0", "300", "299", "298"};
        for (const char* text : downward) {
            Key(Qt::Key_Down);
            EXPECT_EQ(Text(field.box), text);
        }
        EXPECT_EQ(At(field.high) * 256 + At(field.low), 299);
        Key(Qt::Key_Tab);
        EXPECT_EQ(At(field.high) * 256 + At(field.low), 298);
    }
}

TEST_F(ScanFormTest, ADelayBoxTakesThreeDigits) {
    Show();
    for (const Delay& field : Delays) {
        Box(field.box).setFocus();
        Type("1.a23-4");
        EXPECT_EQ(Text(field.box), "123");
        Box(field.box).selectAll();
        Paste("9.87654");
        EXPECT_EQ(Text(field.box), "987");
    }
}

} // namespace
} // namespace zelvor
