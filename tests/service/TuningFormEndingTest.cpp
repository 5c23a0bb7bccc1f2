#include "service/ServiceWindows.h"

namespace zelvor {
namespace {

using TuningFormEndingTest = TuningFormTest;

const Commands SixPageCancel{"12 0D",    "12 20 64", "30 0D",    "30 20 5A", "33 0D",    "33 20 5F", "31 0D",
                             "31 20 69", "34 0D",    "34 20 6E", "32 0D",    "32 20 78", "32 0E"};
const Commands FourPageCancel{"1F 0D",    "1F 20 28", "35 0D",    "35 20 29", "36 0D",
                              "36 20 2A", "37 0D",    "37 20 2B", "37 0E"};
const Commands OneValueCancel{"1B 0D", "1B 20 3C"};
const Commands MeasuredCancel{"21 20 46", "21 0E"};

class TuningFormCancel : public TuningFormTest, public testing::WithParamInterface<std::string> {
protected:
    void CloseIt() {
        if (GetParam() == "button") {
            Click(*form, "CmdCancel");
        } else if (GetParam() == "Escape") {
            QTest::keyPress(form, Qt::Key_Escape);
        } else {
            CloseByFrame(*form);
        }
        LetLeave();
        ExpectGone();
    }
};

TEST_P(TuningFormCancel, SixPagesRestoreAllOldValuesAndStoreOnce) {
    OpenHighPower();
    Press(Slider(), Qt::Key_Right, 30);
    Settle();
    rig.TakeSent();
    CloseIt();
    EXPECT_EQ(rig.sent, SixPageCancel);
}

TEST_P(TuningFormCancel, FourPagesRestoreAllOldValuesAndStoreOnce) {
    OpenSensitivity();
    ClickPage(3);
    Settle();
    rig.TakeSent();
    CloseIt();
    EXPECT_EQ(rig.sent, FourPageCancel);
}

TEST_P(TuningFormCancel, OneValueIsRestored) {
    OpenOneValue();
    Press(Slider(), Qt::Key_Right, 5);
    Settle();
    rig.TakeSent();
    CloseIt();
    EXPECT_EQ(rig.sent, OneValueCancel);
}

TEST_P(TuningFormCancel, AMeasuringDialogRestoresAndStoresItsOldValue) {
    OpenMeasured();
    Click(*form, "CmdStart");
    rig.clock.Advance(300);
    rig.TakeSent();
    CloseIt();
    EXPECT_EQ(rig.sent, MeasuredCancel);
}

INSTANTIATE_TEST_SUITE_P(EveryWay, TuningFormCancel, testing::Values("button", "Escape", "frame"));

TEST_F(TuningFormEndingTest, OkStoresThePageInFrontOnly) {
    OpenHighPower();
    Press(Slider(), Qt::Key_Right, 30);
    ClickPage(4);
    Settle();
    rig.TakeSent();
    Click(*form, "CmdOK");
    LetLeave();
    EXPECT_EQ(rig.sent, Commands{"34 0E"});
    ExpectGone();
}

TEST_F(TuningFormEndingTest, OkOfEverySizeStores) {
    OpenHighPower();
    Click(*form, "CmdOK");
    LetLeave();
    ExpectGone();
    EXPECT_EQ(rig.TakeSent(), Commands{"12 0E"});
    OpenSensitivity();
    Press(In<QPushButton>(*form, "CmdOK"), Qt::Key_Return);
    LetLeave();
    ExpectGone();
    EXPECT_EQ(rig.TakeSent(), Commands{"1F 0E"});
    OpenOneValue();
    Click(*form, "CmdOK");
    LetLeave();
    ExpectGone();
    EXPECT_EQ(rig.TakeSent(), Commands{"1B 0E"});
    OpenMeasured();
    Click(*form, "CmdOK");
    LetLeave();
    ExpectGone();
    EXPECT_EQ(rig.TakeSent(), (Commands{"21 20 46", "21 0E"}));
}

TEST_F(TuningFormEndingTest, EnterInTheValueOnTheSliderOrOnThePagesStoresNothing) {
    OpenHighPower();
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
        for (QWidget* control : std::initializer_list<QWidget*>{&Box(), &Slider(), Pages().tabBar()}) {
            control->setFocus();
            QTest::keyClicks(control, "120");
            Press(*control, enter);
            rig.clock.Advance(500);
        }
    }
    EXPECT_EQ(unloaded->count(), 0);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Box().text(), "100");
    EXPECT_TRUE(rig.sent.empty());
}

TEST_F(TuningFormEndingTest, NoSizeHasADefaultButton) {
    const std::vector<std::function<void()>> sizes{[this] { OpenHighPower(); }, [this] { OpenSensitivity(); },
                                                   [this] { OpenOneValue(); }, [this] { OpenMeasured(); }};
    for (const auto& open : sizes) {
        open();
        for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
            for (QWidget* control : form->findChildren<QWidget*>()) {
                if (qobject_cast<QPushButton*>(control) == nullptr && control->isVisible() &&
                    control->focusPolicy() != Qt::NoFocus) {
                    Press(*control, enter);
                    rig.clock.Advance(500);
                }
            }
            QTest::keyClick(form, enter);
        }
        EXPECT_EQ(unloaded->count(), 0) << FromQString(form->objectName());
        EXPECT_TRUE(rig.sent.empty());
        delete form;
    }
}

TEST_F(TuningFormEndingTest, EnterPressesTheButtonThatHasTheFocus) {
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
        OpenOneValue();
        Press(In<QPushButton>(*form, "CmdPTT"), enter);
        Settle();
        EXPECT_EQ(rig.TakeSent(), Commands{"08 0D"});
        Press(In<QPushButton>(*form, "CmdPTT"), enter);
        Settle();
        EXPECT_EQ(rig.TakeSent(), Commands{"08 0E"});
        In<QPushButton>(*form, "CmdCancel").setFocus();
        QTest::keyPress(&In<QPushButton>(*form, "CmdCancel"), enter);
        LetLeave();
        EXPECT_EQ(rig.TakeSent(), OneValueCancel);
        ExpectGone();
    }
    OpenMeasured();
    Press(In<QPushButton>(*form, "CmdStart"), Qt::Key_Return);
    rig.clock.Advance(50);
    EXPECT_EQ(rig.TakeSent(), (Commands{"21 0A", "06"}));
}

TEST_F(TuningFormEndingTest, AKeyedTransmitterIsDroppedBeforeOkAndBeforeCancel) {
    OpenHighPower();
    Click(*form, "CmdPTT");
    Settle();
    rig.TakeSent();
    Click(*form, "CmdOK");
    LetLeave();
    ExpectGone();
    EXPECT_EQ(rig.TakeSent(), (Commands{"08 0E", "12 0E"}));
    OpenOneValue();
    Click(*form, "CmdPTT");
    Settle();
    rig.TakeSent();
    Click(*form, "CmdCancel");
    LetLeave();
    ExpectGone();
    EXPECT_EQ(rig.TakeSent(), (Commands{"08 0E", "1B 0D", "1B 20 3C"}));
}

TEST_F(TuningFormEndingTest, ClosingPausesThirtyMilliseconds) {
    OpenOneValue();
    Click(*form, "CmdOK");
    LetLeave();
    EXPECT_EQ(rig.clock.Sleeps(), std::vector<int>{30});
}

TEST_F(TuningFormEndingTest, ClosingInTheMiddleOfACommandWaitsForItsAnswer) {
    OpenHighPower();
    Press(Slider(), Qt::Key_Right);
    rig.clock.Advance(2); // sent at 1, its answer comes at 3
    Click(*form, "CmdOK");
    LetLeave();
    EXPECT_EQ(rig.sent, (Commands{"12 20 65", "12 0E"}));
    ExpectGone();
}

TEST_F(TuningFormEndingTest, OkRightBehindAStepStoresWhatIsShown) {
    OpenOneValue();
    Press(Box(), Qt::Key_Up);
    Click(*form, "CmdOK");
    LetLeave();
    EXPECT_EQ(rig.sent, (Commands{"1B 20 3D", "1B 0E"}));
    ExpectGone();
}

TEST_F(TuningFormEndingTest, ClosingAgainInTheMiddleOfTheRestoringChangesNothing) {
    OpenHighPower();
    for (int moment = 1; moment <= 60; ++moment) {
        rig.clock.At(moment, [this] {
            if (form && form->isVisible()) {
                form->close();
                CloseByFrame(*form);
                form->reject();
                Click(*form, "CmdOK");
            }
        });
    }
    Click(*form, "CmdCancel");
    LetLeave();
    EXPECT_EQ(rig.sent, SixPageCancel);
    ExpectGone();
    rig.clock.Advance(100);
    EXPECT_EQ(rig.sent, SixPageCancel);
}

TEST_F(TuningFormEndingTest, TheDialogStaysDisabledUntilTheRadioHasTheOldValues) {
    OpenOneValue();
    EXPECT_FALSE(form->close());
    rig.clock.Advance(5 + 2 + 1 + 1);
    EXPECT_EQ(rig.sent, OneValueCancel);
    EXPECT_TRUE(form->isVisible());
    EXPECT_FALSE(form->isEnabled());
    EXPECT_EQ(unloaded->count(), 0);
    rig.clock.Advance(1);
    EXPECT_FALSE(form->isVisible());
    ExpectGone();
}

TEST_F(TuningFormEndingTest, DeletingTheDialogInTheMiddleOfTheRestoringIsHarmless) {
    for (int moment = 0; moment <= 50; moment += 3) {
        OpenHighPower();
        Click(*form, "CmdCancel");
        rig.clock.Advance(moment);
        delete form;
        rig.clock.Advance(500);
        EXPECT_FALSE(rig.IsPortOpen());
    }
}

TEST_F(TuningFormEndingTest, ThePromptRepeatsTheCommandOnRetry) {
    OpenHighPower();
    rig.replies["12 20 65"] = "";
    rig.messages.Expect(ConnectionPrompt(), [this] {
        rig.replies.clear();
        return MessageAnswer::Retry;
    });
    Press(Slider(), Qt::Key_Right);
    rig.clock.Advance(500);
    EXPECT_EQ(rig.sent, (Commands{"12 20 65", "12 20 65"}));
    EXPECT_TRUE(form->isEnabled());
    Click(*form, "CmdOK");
    LetLeave();
    ExpectGone();
}

TEST_F(TuningFormEndingTest, CancelAtThePromptClosesTheDialogWithoutAWordToTheRadio) {
    const std::vector<std::pair<std::string, std::function<void()>>> commands{
        {"12 20 65", [this] { Press(Slider(), Qt::Key_Right); }},
        {"12 20 63", [this] { Press(Box(), Qt::Key_Down); }},
        {"08 0D", [this] { Click(*form, "CmdPTT"); }},
        {"30 0D", [this] { ClickPage(1); }},
    };
    for (const auto& [command, start] : commands) {
        SCOPED_TRACE(command);
        OpenHighPower();
        rig.replies[command] = "";
        rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
        start();
        rig.clock.Advance(1000);
        EXPECT_EQ(rig.TakeSent(), Commands{command});
        ExpectGone();
        rig.replies.clear();
    }
}

TEST_F(TuningFormEndingTest, RetryInTheMiddleOfTheRestoringRestoresAllAnew) {
    OpenHighPower();
    rig.replies["33 0D"] = "";
    rig.messages.Expect(ConnectionPrompt(), [this] {
        rig.replies.clear();
        return MessageAnswer::Retry;
    });
    Click(*form, "CmdCancel");
    LetLeave();
    Commands expected{"12 0D", "12 20 64", "30 0D", "30 20 5A", "33 0D"};
    expected.insert(expected.end(), SixPageCancel.begin(), SixPageCancel.end());
    EXPECT_EQ(rig.sent, expected);
    ExpectGone();
}

TEST_F(TuningFormEndingTest, CancelInTheMiddleOfTheRestoringClosesAllTheSame) {
    OpenHighPower();
    rig.replies["33 0D"] = "";
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
    Click(*form, "CmdCancel");
    LetLeave();
    EXPECT_EQ(rig.sent, (Commands{"12 0D", "12 20 64", "30 0D", "30 20 5A", "33 0D"}));
    ExpectGone();
}

TEST_F(TuningFormEndingTest, CancelAtThePromptOfOkClosesAllTheSame) {
    OpenHighPower();
    rig.replies["12 0E"] = "15";
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
    Click(*form, "CmdOK");
    LetLeave();
    EXPECT_EQ(rig.sent, Commands{"12 0E"});
    ExpectGone();
}

TEST_F(TuningFormEndingTest, APortThatIsGonePromptsAndCancelCloses) {
    rig.ports.Missing(1);
    OpenHighPower();
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
    Press(Slider(), Qt::Key_Right);
    rig.clock.Advance(500);
    EXPECT_TRUE(rig.sent.empty());
    ExpectGone();
}

TEST_F(TuningFormEndingTest, StartMeasuresUntilItIsPressedAgain) {
    OpenMeasured();
    EXPECT_EQ(TextOf(*form, "txtTuneValue"), "70");
    Click(*form, "CmdStart");
    EXPECT_EQ(LampOf(*form, "PicStart"), "107");
    rig.clock.Advance(50);
    EXPECT_EQ(TextOf(*form, "txtTuneValue"), "77");
    EXPECT_EQ(In<QProgressBar>(*form, "PrgValue").value(), 77);
    rig.measured = 255;
    rig.clock.Advance(600);
    EXPECT_EQ(TextOf(*form, "txtTuneValue"), "255");
    EXPECT_EQ(In<QProgressBar>(*form, "PrgValue").value(), 255);
    EXPECT_EQ(rig.TakeSent(), (Commands{"21 0A", "06", "21 0A", "06"}));
    Click(*form, "CmdStart");
    EXPECT_EQ(LampOf(*form, "PicStart"), "-");
    rig.clock.Advance(3000);
    EXPECT_TRUE(rig.sent.empty());
    Click(*form, "CmdStart");
    rig.measured = 0;
    rig.clock.Advance(50);
    EXPECT_EQ(TextOf(*form, "txtTuneValue"), "0");
    Click(*form, "CmdOK");
    LetLeave();
    EXPECT_EQ(rig.sent, (Commands{"21 0A", "06", "21 20 00", "21 0E"}));
    ExpectGone();
}

TEST_F(TuningFormEndingTest, TypingAndStepsDoNotChangeAMeasuredValue) {
    OpenMeasured();
    auto& box = In<QLineEdit>(*form, "txtTuneValue");
    Press(box, Qt::Key_1);
    Press(box, Qt::Key_Up);
    EXPECT_EQ(box.text(), "70");
    rig.clock.Advance(100);
    EXPECT_TRUE(rig.sent.empty());
}

TEST_F(TuningFormEndingTest, ASilentRadioPromptsInTheMiddleOfTheMeasuring) {
    OpenMeasured();
    Click(*form, "CmdStart");
    rig.clock.Advance(50);
    rig.replies["21 0A"] = "";
    rig.messages.Expect(ConnectionPrompt(), [this] {
        rig.replies.clear();
        rig.measured = 90;
        return MessageAnswer::Retry;
    });
    rig.clock.Advance(800);
    EXPECT_EQ(TextOf(*form, "txtTuneValue"), "90");
    rig.replies["21 0A"] = "";
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
    rig.clock.Advance(1000);
    ExpectGone();
}

TEST_F(TuningFormEndingTest, DeletingTheDialogAtAnyMomentIsHarmless) {
    for (int moment = 0; moment <= 20; ++moment) {
        OpenHighPower();
        ClickPage(1);
        rig.clock.Advance(moment);
        delete form;
        rig.clock.Advance(500);
        EXPECT_FALSE(rig.IsPortOpen());
    }
}

} // namespace
} // namespace zelvor
