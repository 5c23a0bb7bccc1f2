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
    EXPECT_EQ(rig.sent, (Commands{"11 05", "45"}));
}

TEST_F(TestFormClosingTest, AKeyedTransmitterIsDroppedFirst) {
    Open();
    PressPtt();
    rig.TakeSent();
    Click(*form, "cmdClose");
    EXPECT_EQ(rig.sent, (Commands{"08 0E", "11 01", "45"}));
    ExpectGone();
}

TEST_F(TestFormClosingTest, ClosingInTheMiddleOfACommandWaitsForItsAnswer) {
    Open();
    Click(*form, "CmdNarrow");
    rig.clock.Advance(2); // sent at 1, its answer comes at 3
    Click(*form, "cmdClose");
    EXPECT_EQ(rig.sent, (Commands{"47", "11 01", "45"}));
    ExpectGone();
}

TEST_F(TestFormClosingTest, ClosingRightBehindTheLoadWorks) {
    Load();
    Click(*form, "cmdClose");
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
    EXPECT_EQ(rig.sent, (Commands{"11 01", "11 01", "45"}));
    ExpectGone();
}

TEST_F(TestFormClosingTest, CancelAtThePromptOfTheLeaveClosesAllTheSame) {
    Open();
    rig.replies["11 01"] = "";
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
    Click(*form, "cmdClose");
    EXPECT_EQ(rig.sent, Commands{"11 01"});
    ExpectGone();
}

TEST_F(TestFormClosingTest, ASilentEndIsNotNoticed) {
    Open();
    rig.replies["45"] = "";
    Click(*form, "cmdClose");
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
