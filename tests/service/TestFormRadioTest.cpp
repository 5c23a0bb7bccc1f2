#include <QAccessible>

#include "service/ServiceWindows.h"

namespace zelvor {
namespace {

using TestFormRadioTest = TestFormTest;

TEST_F(TestFormRadioTest, OnLoadEverythingIsIdleAndWide) {
    Load();
    EXPECT_EQ(Lamps(), IdleLamps);
    EXPECT_EQ(WidthLamps(), "106 -");
    EXPECT_FALSE(rig.service.NarrowMode);
    EXPECT_TRUE(rig.sent.empty());
}

TEST_F(TestFormRadioTest, PressingPttTwiceKeysAndUnkeysTheRadio) {
    Open();
    Click(*form, "CmdPTT");
    EXPECT_EQ(Lamps(), IdleLamps); // until the radio acknowledges
    rig.clock.Advance(2);
    EXPECT_EQ(Lamps(), IdleLamps);
    rig.clock.Advance(2);
    EXPECT_EQ(Lamps(), TransmitLamps);
    Click(*form, "CmdPTT");
    EXPECT_EQ(Lamps(), TransmitLamps);
    rig.clock.Advance(50);
    EXPECT_EQ(Lamps(), IdleLamps);
    EXPECT_EQ(rig.sent, (Commands{"08 0D", "08 0E"}));
}

TEST_F(TestFormRadioTest, LampsArePicturesToAssistiveTechnology) {
    Open();
    for (const char* name : {"PicPtt", "PicWide", "PicChannelRx"}) {
        QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&In<QWidget>(*form, name));
        EXPECT_EQ(told->role(), QAccessible::Graphic) << name;
        EXPECT_FALSE(told->text(QAccessible::Name).isEmpty()) << name;
    }
}

TEST_F(TestFormRadioTest, LampsTellWhatTheyShow) {
    Open();
    const auto said = [this](const char* name) {
        const QWidget* lamp = &In<QWidget>(*form, name);
        return FromQString(lamp->accessibleName() + ": " + lamp->accessibleDescription());
    };
    EXPECT_EQ(said("PicChannelRx"), "Test Channel RX: On");
    EXPECT_EQ(said("PicSignalTx"), "Test Signalling TX: Off");
    EXPECT_EQ(said("PicPtt"), "PTT: RX");
    EXPECT_EQ(said("PicWide"), "Wide: On");
    EXPECT_EQ(said("PicNarrow"), "Narrow: Off");
    PressPtt();
    EXPECT_EQ(said("PicChannelRx"), "Test Channel RX: Off");
    EXPECT_EQ(said("PicSignalTx"), "Test Signalling TX: On");
    EXPECT_EQ(said("PicPtt"), "PTT: TX");
}

TEST_F(TestFormRadioTest, AChannelChosenWhileKeyedDropsTheTransmitterFirst) {
    Open();
    PressPtt();
    rig.TakeSent();
    Press(Channels(), Qt::Key_Down);
    rig.clock.Advance(52);
    EXPECT_EQ(Lamps(), IdleLamps);
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, (Commands{"08 0E", "10 02", "06"}));
    PressPtt();
    EXPECT_EQ(rig.sent.back(), "08 0D"); // keyed anew, not unkeyed
}

TEST_F(TestFormRadioTest, AChannelAndASignallingChosenAtOnceAreBothSent) {
    Open();
    Press(Channels(), Qt::Key_Down);
    Press(Signallings(), Qt::Key_Down);
    EXPECT_EQ(TextOf(*form, "LabRxFreq"), "136.05000MHz");
    rig.clock.Advance(200);
    EXPECT_EQ(rig.sent, (Commands{"10 02", "06", "11 02"}));
}

TEST_F(TestFormRadioTest, SignallingAndWidthChosenWhileKeyedDropTheTransmitterFirst) {
    Open();
    PressPtt();
    rig.TakeSent();
    Press(Signallings(), Qt::Key_Down);
    rig.clock.Advance(50);
    EXPECT_EQ(rig.TakeSent(), (Commands{"08 0E", "11 02"}));
    EXPECT_EQ(Lamps(), IdleLamps);
    PressPtt();
    rig.TakeSent();
    Click(*form, "CmdNarrow");
    rig.clock.Advance(50);
    EXPECT_EQ(rig.TakeSent(), (Commands{"08 0E", "47"}));
    EXPECT_EQ(Lamps(), IdleLamps);
}

TEST_F(TestFormRadioTest, WidthLampsSwapAtTheClick) {
    Open();
    Click(*form, "CmdNarrow");
    EXPECT_EQ(WidthLamps(), "- 106");
    EXPECT_FALSE(rig.service.NarrowMode); // set when it is sent
    rig.clock.Advance(50);
    EXPECT_TRUE(rig.service.NarrowMode);
    Click(*form, "cmdWide");
    EXPECT_EQ(WidthLamps(), "106 -");
    rig.clock.Advance(50);
    EXPECT_FALSE(rig.service.NarrowMode);
    EXPECT_EQ(rig.sent, (Commands{"47", "46"}));
}

TEST_F(TestFormRadioTest, ButtonsArePressedByTheKeyboardToo) {
    Open();
    EXPECT_EQ(In<QPushButton>(*form, "cmdWide").shortcut(), QKeySequence("Alt+W"));
    EXPECT_EQ(In<QPushButton>(*form, "CmdNarrow").shortcut(), QKeySequence("Alt+N"));
    EXPECT_EQ(In<QPushButton>(*form, "CmdTune").shortcut(), QKeySequence("Alt+T"));
    Press(In<QPushButton>(*form, "CmdNarrow"), Qt::Key_Space);
    rig.clock.Advance(50);
    Press(In<QPushButton>(*form, "CmdPTT"), Qt::Key_Space);
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, (Commands{"47", "08 0D"}));
}

TEST_F(TestFormRadioTest, RetryRepeatsTheCommand) {
    Open();
    rig.replies["47"] = "15";
    rig.messages.Expect(ConnectionPrompt(), [this] {
        rig.replies.clear();
        return MessageAnswer::Retry;
    });
    Click(*form, "CmdNarrow");
    rig.clock.Advance(500);
    EXPECT_EQ(rig.sent, (Commands{"47", "47"}));
    EXPECT_TRUE(form->isEnabled());
    EXPECT_TRUE(form->isVisible());
}

TEST_F(TestFormRadioTest, CancelAtThePromptClosesTheWindowWithoutAWordToTheRadio) {
    const std::vector<std::pair<std::string, std::function<void()>>> commands{
        {"10 02", [this] { Press(Channels(), Qt::Key_Down); }},
        {"11 02", [this] { Press(Signallings(), Qt::Key_Down); }},
        {"08 0D", [this] { Click(*form, "CmdPTT"); }},
        {"47", [this] { Click(*form, "CmdNarrow"); }},
        {"46", [this] { Click(*form, "cmdWide"); }},
    };
    for (const auto& [command, start] : commands) {
        SCOPED_TRACE(command);
        Open();
        rig.replies[command] = "";
        rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
        start();
        rig.clock.Advance(1000);
        EXPECT_EQ(rig.sent, Commands{command});
        EXPECT_TRUE(rig.service.TestAborted);
        ExpectGone();
        rig.replies.clear();
    }
}

TEST_F(TestFormRadioTest, APortThatIsGonePromptsAndCancelCloses) {
    Open();
    rig.ports.Port("MSComm1")->Vanish();
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
    Click(*form, "CmdPTT");
    rig.clock.Advance(1000);
    EXPECT_TRUE(rig.sent.empty());
    ExpectGone();
}

} // namespace
} // namespace zelvor
