#include <QContextMenuEvent>
#include <algorithm>

#include "OptionalFormFixture.h"

namespace zelvor {
namespace {

struct CheckRow {
    const char* name;
    int address;
};
constexpr CheckRow Checks[] = {{"chkScramblerAct", 0x12C}, {"chkScramblerBackup", 0x12D}, {"chkBattSave", 0x135},
                               {"chkBeep", 0x136},         {"chkCancel", 0x137},          {"chkVOXInhibit", 0x138},
                               {"chkVOXFunc", 0x139},      {"chkVOXProceedTone", 0x13C},  {"chkCloneMode", 0x13E}};

struct ListRow {
    const char* name;
    int address;
    std::vector<int> entries; // of the bytes 0, 1, ...
    int otherwise;            // entry of the bytes behind, but 0xFF
    int none;                 // stored for 0xFF, which selects nothing
};
const std::vector<ListRow> Lists{{"cboMICSens", 0x13D, {0, 1}, -1, 0xFF},
                                 {"cboVoiceAnnu", 0x12F, {0, 2, 1}, -1, 0xFF},
                                 {"cboPTTIDType", 0x133, {0, 1}, -1, 0xFF},
                                 {"cboPTTID", 0x132, {0, 1, 2}, -1, 0xFF},
                                 {"cboVOXDelayTime", 0x13B, {0, 1, 2, 3, 4, 5}, 0, 0xFF}};

struct SpinRow {
    const char* box;
    const char* upDown;
    int address;
    int first;
    int last;
};
constexpr SpinRow TimeOut{"txtTOT", "updTOT", 0x130, 1, 40};
constexpr SpinRow Squelch{"txtSQLevel", "updSQLevel", 0x134, 0, 9};
constexpr SpinRow WithOff[] = {{"txtTOTPreAlert", "updTOTPreAlert", 0x131, 0, 10},
                               {"txtVOXGainLevel", "updVOXGainLevel", 0x13A, 0, 10}};

TEST_F(OptionalFormTest, EveryByteOfEveryFieldShowsAsTold) {
    for (int byte = 0; byte <= 255; ++byte) {
        for (int address = 0x12C; address <= 0x13E; ++address) {
            document.Image.Set(address, static_cast<std::uint8_t>(byte));
        }
        Load();
        for (const CheckRow& row : Checks) {
            EXPECT_EQ(Check(row.name).isChecked(), byte != 0) << row.name << ' ' << byte;
        }
        for (const ListRow& row : Lists) {
            const auto place = static_cast<std::size_t>(byte);
            const int entry = place < row.entries.size() ? row.entries[place] : row.otherwise;
            EXPECT_EQ(Chosen(row.name), byte == 255 ? -1 : entry) << row.name << ' ' << byte;
        }
        EXPECT_EQ(Text("txtTOT"), std::to_string(byte * 15));
        EXPECT_EQ(Spin("updTOT"), byte <= 40 ? byte : 0) << byte;
        EXPECT_EQ(Text("txtSQLevel"), byte == 255 ? "0" : std::to_string(byte));
        EXPECT_EQ(Spin("updSQLevel"), byte == 255 ? 0 : std::min(byte, 9)) << byte;
        for (const SpinRow& row : WithOff) {
            EXPECT_EQ(Text(row.box), byte == 0 ? "Off" : byte == 255 ? "" : std::to_string(byte));
            EXPECT_EQ(Spin(row.upDown), byte == 255 ? 0 : std::min(byte, 10)) << byte;
        }
    }
}

TEST_F(OptionalFormTest, EveryListStoresItsEntryWhenItIsLeft) {
    Put(0x139, {1}); // VOX
    for (const ListRow& row : Lists) {
        for (int byte = 0; byte < static_cast<int>(row.entries.size()); ++byte) {
            document.Image.Set(row.address, static_cast<std::uint8_t>(byte));
            Show();
            PassThrough(row.name);
            EXPECT_EQ(At(row.address), byte) << row.name;
        }
        // Chosen by key, and stored only when left.
        for (int byte = 0; byte < static_cast<int>(row.entries.size()); ++byte) {
            const int before = At(row.address);
            Choose(row.name, row.entries[static_cast<std::size_t>(byte)]);
            EXPECT_TRUE(At(row.address) == before || std::string(row.name) == "cboPTTIDType") << row.name;
            Key(Qt::Key_Tab);
            EXPECT_EQ(At(row.address), byte) << row.name;
        }
    }
}

TEST_F(OptionalFormTest, AListThatShowsNothingStoresThatButForTheVoice) {
    Put(0x139, {1});
    for (const ListRow& row : Lists) {
        const int unknown = 77;
        document.Image.Set(row.address, unknown);
        Show();
        EXPECT_EQ(At(row.address), unknown);
        PassThrough(row.name);
        const bool stays = std::string(row.name) == "cboVoiceAnnu";
        EXPECT_EQ(At(row.address), stays ? unknown : row.otherwise == 0 ? 0 : 255) << row.name;
        document.Image.Set(row.address, 255);
        Show();
        PassThrough(row.name);
        EXPECT_EQ(At(row.address), 255) << row.name;
    }
}

TEST_F(OptionalFormTest, TheVoicesAreNotInTheOrderOfTheirCodes) {
    Put(0x12F, {2});
    Show();
    EXPECT_EQ(List("cboVoiceAnnu").currentText(), "English");
    Put(0x12F, {1});
    Show();
    EXPECT_EQ(List("cboVoiceAnnu").currentText(), "Chinese");
}

TEST_F(OptionalFormTest, AnUnknownVoxDelayShowsTheShortestAndIsStoredOnlyWhenLeft) {
    Put(0x139, {1});
    Put(0x13B, {7});
    Show();
    EXPECT_EQ(List("cboVOXDelayTime").currentText(), "0.3");
    EXPECT_EQ(At(0x13B), 7);
    PassThrough("cboVOXDelayTime");
    EXPECT_EQ(At(0x13B), 0);
}

TEST_F(OptionalFormTest, EveryCheckBoxStoresZeroOrOneWhenItIsLeft) {
    Put(0x139, {1}); // what VOX has is enabled, and so is the scrambler's backup
    for (const CheckRow& row : Checks) {
        const int before = At(row.address);
        for (const int byte : {0, 1, 2, 254, 255}) {
            document.Image.Set(row.address, static_cast<std::uint8_t>(byte));
            Show();
            PassThrough(row.name);
            EXPECT_EQ(At(row.address), byte == 0 ? 0 : 1) << row.name << ' ' << byte;
        }
        document.Image.Set(row.address, static_cast<std::uint8_t>(before));
        Show();
        Check(row.name).setFocus();
        Key(Qt::Key_Space);
        EXPECT_EQ(At(row.address), before) << row.name;
        Key(Qt::Key_Return);
        EXPECT_FALSE(Check(row.name).hasFocus()) << row.name;
        EXPECT_EQ(At(row.address), 1 - before) << row.name;
        document.Image.Set(row.address, static_cast<std::uint8_t>(before));
    }
}

TEST_F(OptionalFormTest, EveryLegalNumberGoesBackToItself) {
    Put(0x139, {1});
    for (const SpinRow& row : {TimeOut, Squelch, WithOff[0], WithOff[1]}) {
        for (int byte = row.first; byte <= row.last; ++byte) {
            document.Image.Set(row.address, static_cast<std::uint8_t>(byte));
            Show();
            const std::string text = Text(row.box);
            PassThrough(row.box);
            EXPECT_EQ(At(row.address), byte) << row.box;
            EXPECT_EQ(Text(row.box), text);
            EXPECT_EQ(Spin(row.upDown), byte) << row.box;
        }
    }
}

TEST_F(OptionalFormTest, AnIllegalNumberIsCorrectedWhenItsBoxIsLeft) {
    Put(0x139, {1});
    const struct {
        SpinRow row;
        int byte;
        const char* text;
        int stored;
    } cases[] = {{TimeOut, 0, "15", 1},      {TimeOut, 41, "600", 40},    {TimeOut, 255, "600", 40},
                 {Squelch, 10, "10", 10},    {Squelch, 254, "254", 254},  {Squelch, 255, "0", 0},
                 {WithOff[0], 11, "10", 10}, {WithOff[0], 254, "10", 10}, {WithOff[0], 255, "Off", 0},
                 {WithOff[1], 11, "10", 10}, {WithOff[1], 254, "10", 10}, {WithOff[1], 255, "Off", 0}};
    for (const auto& c : cases) {
        document.Image.Set(c.row.address, static_cast<std::uint8_t>(c.byte));
        Show();
        EXPECT_EQ(At(c.row.address), c.byte);
        PassThrough(c.row.box);
        EXPECT_EQ(Text(c.row.box), c.text) << c.byte;
        EXPECT_EQ(At(c.row.address), c.stored) << c.row.box << ' ' << c.byte;
    }
}

struct Typed {
    const char* text;
    const char* shown;
    int stored;
};

TEST_F(OptionalFormTest, ATimeOutIsRoundedUpToAStep) {
    Show();
    const Typed entries[] = {{"16", "30", 2},    {"15", "15", 1},    {"599", "600", 40}, {"0", "15", 1},
                             {"", "15", 1},      {"999", "600", 40}, {"1", "15", 1},     {"30", "30", 2},
                             {"31", "45", 3},    {"585", "585", 39}, {"586", "600", 40}, {"600", "600", 40},
                             {"601", "600", 40}, {"007", "15", 1}};
    for (const Typed& entry : entries) {
        Enter("txtTOT", entry.text);
        EXPECT_EQ(Text("txtTOT"), entry.shown) << entry.text;
        EXPECT_EQ(At(0x130), entry.stored) << entry.text;
        EXPECT_EQ(Spin("updTOT"), entry.stored) << entry.text;
    }
}

TEST_F(OptionalFormTest, PreAlertAndGainLevelAreBroughtToOffOrTen) {
    Put(0x139, {1});
    const Typed entries[] = {{"0", "Off", 0}, {"25", "10", 10}, {"", "Off", 0},   {"00", "Off", 0}, {"1", "1", 1},
                             {"9", "9", 9},   {"10", "10", 10}, {"11", "10", 10}, {"99", "10", 10}, {"07", "7", 7}};
    for (const Language language : {Language::English, Language::Chinese}) {
        Show(language);
        for (const SpinRow& row : WithOff) {
            for (const Typed& entry : entries) {
                Enter(row.box, entry.text);
                const bool off = entry.stored == 0 && language == Language::Chinese;
                EXPECT_EQ(Text(row.box), off ? "关" : entry.shown) << entry.text;
                EXPECT_EQ(At(row.address), entry.stored) << entry.text;
                EXPECT_EQ(Spin(row.upDown), entry.stored) << entry.text;
            }
        }
    }
}

TEST_F(OptionalFormTest, AnEmptySquelchLevelBecomesZero) {
    Show();
    const Typed entries[] = {{"", "0", 0}, {"0", "0", 0}, {"7", "7", 7}, {"9", "9", 9}, {"12", "1", 1}};
    for (const Typed& entry : entries) {
        Enter("txtSQLevel", entry.text);
        EXPECT_EQ(Text("txtSQLevel"), entry.shown) << entry.text;
        EXPECT_EQ(At(0x134), entry.stored) << entry.text;
        EXPECT_EQ(Spin("updSQLevel"), entry.stored) << entry.text;
    }
}

TEST_F(OptionalFormTest, NumbersWrapBothWaysByKeyAndByButton) {
    Put(0x139, {1});
    const struct {
        SpinRow row;
        int start;
        std::vector<const char*> upward;
        std::vector<const char*> downward;
    } cases[] = {{TimeOut, 39, {"600", "15", "30"}, {"15", "600", "585"}},
                 {Squelch, 8, {"9", "0", "1"}, {"0", "9", "8"}},
                 {WithOff[0], 9, {"10", "Off", "1"}, {"Off", "10", "9"}},
                 {WithOff[1], 9, {"10", "Off", "1"}, {"Off", "10", "9"}}};
    for (const auto& c : cases) {
        for (const bool byKey : {true, false}) {
            document.Image.Set(c.row.address, static_cast<std::uint8_t>(c.start));
            Show();
            if (byKey) {
                Box(c.row.box).setFocus();
            }
            for (const char* text : c.upward) {
                byKey ? Key(Qt::Key_Up) : Step(c.row.upDown, true);
                EXPECT_EQ(Text(c.row.box), text);
                EXPECT_EQ(Box(c.row.box).selectedText().toStdString(), text);
                EXPECT_TRUE(Box(c.row.box).hasFocus());
            }
            for (const char* text : c.downward) {
                byKey ? Key(Qt::Key_Down) : Step(c.row.upDown, false);
                EXPECT_EQ(Text(c.row.box), text);
            }
            EXPECT_EQ(At(c.row.address), c.start);
            Key(Qt::Key_Tab);
            EXPECT_EQ(At(c.row.address), c.start) << c.row.box; // nine steps up and back in all
            EXPECT_EQ(Text(c.row.box), c.downward.back());
        }
    }
}

TEST_F(OptionalFormTest, ATimeOutWithoutANumberOfStepsIsSteppedFromTheShortest) {
    Put(0x130, {200});
    Show();
    EXPECT_EQ(Text("txtTOT"), "3000");
    Box("txtTOT").setFocus();
    Key(Qt::Key_Up);
    EXPECT_EQ(Text("txtTOT"), "15");
}

TEST_F(OptionalFormTest, NumbersTakeDigitsUpToTheirLength) {
    Put(0x139, {1});
    const std::pair<const char*, const char*> limits[] = {
        {"txtTOT", "123"}, {"txtTOTPreAlert", "12"}, {"txtSQLevel", "1"}, {"txtVOXGainLevel", "12"}};
    for (const auto& [name, text] : limits) {
        Show();
        Box(name).setFocus();
        Type("a1-B.2 *3#4");
        EXPECT_EQ(Text(name), text);
        Box(name).selectAll();
        Paste("x1,2;3456");
        EXPECT_EQ(Text(name), text);
        Key(Qt::Key_Backspace);
        EXPECT_EQ(Text(name).size(), std::string(text).size() - 1);
    }
}

TEST_F(OptionalFormTest, NoBoxOpensAContextMenu) {
    Show();
    for (const char* name : {"txtTOT", "txtTOTPreAlert", "txtSQLevel", "txtPTTCode(0)"}) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3), Box(name).mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(&Box(name), &event);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << name;
    }
}

// --- What is enabled -------------------------------------------------------------------------------------------------

TEST_F(OptionalFormTest, TheScramblersBackupIsOfferedOnlyWhileItIsNotActivated) {
    Show();
    EXPECT_TRUE(IsEnabled("chkScramblerBackup"));
    QTest::mouseClick(&Check("chkScramblerAct"), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_TRUE(Check("chkScramblerAct").isChecked());
    EXPECT_FALSE(IsEnabled("chkScramblerBackup"));
    Check("chkScramblerAct").setFocus();
    Key(Qt::Key_Space);
    EXPECT_TRUE(IsEnabled("chkScramblerBackup"));
    for (const int byte : {1, 255}) {
        Put(0x12C, {byte});
        Show();
        EXPECT_FALSE(IsEnabled("chkScramblerBackup")) << byte;
    }
}

TEST_F(OptionalFormTest, WhatVoxHasIsOfferedWithTheVoxFunction) {
    const char* parts[] = {"lblVOXGainLevel", "txtVOXGainLevel", "updVOXGainLevel",   "lblVOXDelayTime",
                           "cboVOXDelayTime", "chkCancel",       "chkVOXProceedTone", "chkVOXInhibit"};
    const auto expect = [&](bool enabled) {
        EXPECT_TRUE(IsEnabled("chkVOXFunc"));
        for (const char* name : parts) {
            EXPECT_EQ(IsEnabled(name), enabled) << name;
        }
    };
    Show();
    expect(false);
    Check("chkVOXFunc").setFocus();
    Key(Qt::Key_Space);
    expect(true);
    Key(Qt::Key_Space);
    expect(false);
    Put(0x139, {255});
    Show();
    expect(true);
}

} // namespace
} // namespace zelvor
