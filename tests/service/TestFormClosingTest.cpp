#include "service/ServiceWindows.h"

namespace zelvor {
namespace {

using TestFormClosingTest = TestFormTest;

TEST_F(TestFormClosingTest, EveryWayOfClosingTakesLeaveOfTheRadio) {
    const std::vector<std::pair<const char*, std::function<void()>>> ways{
        {"button", [this] { Click(*form, "cmdClose"); }},
        {"Escape", [this] { QTest::keyPress(form, Qt::Key_Escape); }},
        {"frame", [this] { CloseByFrame(*form); }},
    };
    for (const auto& [name, close] : ways) {
        SCOPED_TRACE(name);
        Open();
        close();
        LetLeave();
        EXPECT_EQ(rig.sent, (Commands{"11 01", "45"}));
        ExpectGone();
    }
}

TEST_F(TestFormClosingTest, TheLastSignallingIsSentAgain) {
    Open();
    Press(Signallings(), Qt::Key_Down, 4);
    rig.clock.Advance(50);
    rig.TakeSent();
    Click(*form, "cmdClose");
    LetLeave();
    EXPECT_EQ(rig.sent, (Commands{"11 05", "45"}));
}

TEST_F(TestFormClosingTest, AKeyedTransmitterIsDroppedFirst) {
    Open();
    PressPtt();
    rig.TakeSent();
    Click(*form, "cmdClose");
    LetLeave();
    EXPECT_EQ(rig.sent, (Commands{"08 0E", "11 01", "45"}));
    ExpectGone();
}

TEST_F(TestFormClosingTest, ClosingInTheMiddleOfACommandWaitsForItsAnswer) {
    Open();
    Click(*form, "CmdNarrow");
    rig.clock.Advance(2); // sent at 1, its answer comes at 3
    Click(*form, "cmdClose");
    LetLeave();
    EXPECT_EQ(rig.sent, (Commands{"47", "11 01", "45"}));
    ExpectGone();
}

TEST_F(TestFormClosingTest, ClosingRightBehindTheLoadWorks) {
    Load();
    Click(*form, "cmdClose");
    LetLeave();
    EXPECT_EQ(rig.sent, (Commands{"11 01", "45"}));
    ExpectGone();
}

TEST_F(TestFormClosingTest, ClosingAgainInTheMiddleOfTheLeaveChangesNothing) {
    Open();
    for (int moment = 1; moment <= 90; ++moment) {
        rig.clock.At(moment, [this] {
            form->close();
            CloseByFrame(*form);
            form->reject();
        });
    }
    Click(*form, "cmdClose");
    LetLeave();
    EXPECT_EQ(rig.sent, (Commands{"11 01", "45"}));
    ExpectGone();
}

TEST_F(TestFormClosingTest, NothingCanBePressedInTheMiddleOfTheLeave) {
    Open();
    rig.clock.At(2, [this] {
        Click(*form, "CmdPTT");
        Click(*form, "CmdNarrow");
    });
    Click(*form, "cmdClose");
    LetLeave();
    EXPECT_EQ(rig.sent, (Commands{"11 01", "45"}));
}

TEST_F(TestFormClosingTest, RetryAtThePromptOfTheLeaveTakesLeaveAgain) {
    Open();
    rig.replies["11 01"] = "";
    rig.messages.Expect(ConnectionPrompt(), [this] {
        rig.replies.clear();
        return MessageAnswer::Retry;
    });
    Click(*form, "cmdClose");
    LetLeave();
    EXPECT_EQ(rig.sent, (Commands{"11 01", "11 01", "45"}));
    ExpectGone();
}

TEST_F(TestFormClosingTest, CancelAtThePromptOfTheLeaveClosesAllTheSame) {
    Open();
    rig.replies["11 01"] = "";
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
    Click(*form, "cmdClose");
    LetLeave();
    EXPECT_EQ(rig.sent, Commands{"11 01"});
    ExpectGone();
}

TEST_F(TestFormClosingTest, TheWindowStaysDisabledUntilTheRadioIsTold) {
    Open();
    EXPECT_FALSE(form->close());
    rig.clock.Advance(1 + 2 + 1 + 79);
    EXPECT_EQ(rig.sent, Commands{"11 01"});
    EXPECT_TRUE(form->isVisible());
    EXPECT_FALSE(form->isEnabled());
    EXPECT_TRUE(rig.IsPortOpen());
    EXPECT_EQ(unloaded->count(), 0);
    rig.clock.Advance(1);
    EXPECT_EQ(rig.sent, (Commands{"11 01", "45"}));
    EXPECT_FALSE(form->isVisible());
    ExpectGone();
}

TEST_F(TestFormClosingTest, AByteInTheMiddleOfTheLeaveDoesNotHoldItUp) {
    Open();
    Click(*form, "cmdClose");
    rig.clock.At(20, [this] { rig.ports.Port("MSComm1")->Deliver({0x15}); });
    LetLeave();
    EXPECT_EQ(rig.sent, (Commands{"11 01", "45"}));
    EXPECT_EQ(rig.times[1] - rig.times[0], 2 + 1 + 80);
    ExpectGone();
}

TEST_F(TestFormClosingTest, APortThatIsGonePromptsAndCancelCloses) {
    Open();
    rig.ports.Missing(1);
    rig.ports.Port("MSComm1")->Vanish();
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
    Click(*form, "cmdClose");
    LetLeave();
    EXPECT_TRUE(rig.sent.empty());
    ExpectGone();
}

TEST_F(TestFormClosingTest, DeletingTheWindowInTheMiddleOfTheLeaveIsHarmless) {
    for (int moment = 0; moment <= 90; moment += 5) {
        Open();
        Click(*form, "cmdClose");
        rig.clock.Advance(moment);
        delete form;
        rig.clock.Advance(500);
        EXPECT_FALSE(rig.IsPortOpen());
    }
}

TEST_F(TestFormClosingTest, ASilentEndIsNotNoticed) {
    Open();
    rig.replies["45"] = "";
    Click(*form, "cmdClose");
    LetLeave();
    rig.clock.Advance(1000);
    ExpectGone();
}

TEST_F(TestFormClosingTest, DeletingTheWindowAtAnyMomentIsHarmless) {
    for (int moment = 0; moment <= 12; ++moment) {
        Load();
        rig.clock.Advance(moment);
        delete form;
        rig.clock.Advance(500);
        EXPECT_FALSE(rig.IsPortOpen());
    }
}

TEST_F(TestFormClosingTest, DeletingTheWindowUnderItsTuningDialogIsHarmless) {
    Open();
    ClickItem(1);
    Click(*form, "CmdTune");
    rig.clock.Advance(300);
    ASSERT_NE(Tuning(), nullptr);
    Click(*Tuning(), "CmdPTT");
    rig.clock.Advance(2);
    delete form;
    rig.clock.Advance(500);
    EXPECT_FALSE(rig.IsPortOpen());
}

} // namespace
} // namespace zelvor
