#include <QContextMenuEvent>
#include <QStyle>
#include <QStyleOptionSlider>

#include "service/ServiceWindows.h"

namespace zelvor {
namespace {

using TuningFormEditingTest = TuningFormTest;

TEST_F(TuningFormEditingTest, TheSliderMovesItsPagesControlsAndTheRadio) {
    OpenOneValue();
    Press(Slider(), Qt::Key_Right);
    ExpectInStep(0, 61);
    EXPECT_TRUE(rig.sent.empty());
    rig.clock.Advance(1);
    EXPECT_EQ(rig.sent, Commands{"1B 20 3D"});
    Settle();
    Press(Slider(), Qt::Key_End);
    ExpectInStep(0, 255);
    Settle();
    Press(Slider(), Qt::Key_Home);
    ExpectInStep(0, 0);
    Settle();
    EXPECT_EQ(rig.sent, (Commands{"1B 20 3D", "1B 20 FF", "1B 20 00"}));
}

TEST_F(TuningFormEditingTest, TheSliderIsDraggedByTheMouse) {
    OpenOneValue();
    QSlider& slider = Slider();
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.orientation = Qt::Horizontal;
    option.minimum = 0;
    option.maximum = 255;
    option.sliderPosition = 60;
    option.sliderValue = 60;
    const QPoint handle =
        slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider).center();
    QTest::mousePress(&slider, Qt::LeftButton, {}, handle);
    QTest::mouseMove(&slider, {slider.width() + 50, handle.y()});
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, {slider.width() + 50, handle.y()});
    ExpectInStep(0, 255);
    Settle();
    EXPECT_EQ(rig.sent.back(), "1B 20 FF");
}

TEST_F(TuningFormEditingTest, TypingIntoTheTextChangesNothing) {
    OpenOneValue();
    Box().setFocus();
    for (const char typed : {'0', '1', '9', '5', 'a', '-', '.', ' '}) {
        QTest::keyClick(&Box(), typed);
    }
    Press(Box(), Qt::Key_Backspace);
    Press(Box(), Qt::Key_Delete);
    QTest::keySequence(&Box(), QKeySequence::Cut);
    QTest::keySequence(&Box(), QKeySequence::Paste);
    ExpectInStep(0, 60);
    Settle();
    EXPECT_TRUE(rig.sent.empty());
    EXPECT_EQ(unloaded->count(), 0);
}

TEST_F(TuningFormEditingTest, UpAndDownStepTheText) {
    OpenOneValue();
    Press(Box(), Qt::Key_Up);
    ExpectInStep(0, 61);
    Settle();
    Press(Box(), Qt::Key_Down, 3);
    ExpectInStep(0, 58);
    Settle();
    EXPECT_EQ(rig.sent, (Commands{"1B 20 3D", "1B 20 3A"}));
}

TEST_F(TuningFormEditingTest, SteppingTheTextEndsAtBothEnds) {
    Put(646, 254);
    Open(11, true);
    Press(Box(), Qt::Key_Up);
    ExpectInStep(0, 255);
    Settle();
    Press(Box(), Qt::Key_Up, 3);
    ExpectInStep(0, 255);
    Settle();
    EXPECT_EQ(rig.TakeSent(), Commands{"1B 20 FF"});
    delete form;
    Put(646, 1);
    Open(11, true);
    Press(Box(), Qt::Key_Down);
    ExpectInStep(0, 0);
    Settle();
    Press(Box(), Qt::Key_Down, 3);
    ExpectInStep(0, 0);
    Settle();
    EXPECT_EQ(rig.sent, Commands{"1B 20 00"});
}

TEST_F(TuningFormEditingTest, TheRightMouseButtonOpensNoMenu) {
    OpenOneValue();
    QTest::mouseClick(&Box(), Qt::RightButton);
    const QPoint place = Box().rect().center();
    QContextMenuEvent request(QContextMenuEvent::Mouse, place, Box().mapToGlobal(place));
    QApplication::sendEvent(&Box(), &request);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    ExpectInStep(0, 60);
}

TEST_F(TuningFormEditingTest, TheUpDownSteps) {
    OpenOneValue();
    ClickSpin(0, true);
    ExpectInStep(0, 61);
    Settle();
    ClickSpin(0, false);
    ClickSpin(0, false);
    ExpectInStep(0, 59);
    Settle();
    EXPECT_EQ(rig.sent, (Commands{"1B 20 3D", "1B 20 3B"}));
}

TEST_F(TuningFormEditingTest, TheUpDownEndsAtBothEnds) {
    Put(646, 255);
    Open(11, true);
    ClickSpin(0, true);
    ExpectInStep(0, 255);
    delete form;
    Put(646, 0);
    Open(11, true);
    ClickSpin(0, false);
    ExpectInStep(0, 0);
    Settle();
    EXPECT_TRUE(rig.sent.empty());
}

TEST_F(TuningFormEditingTest, TheTestValueMovesTheWholeCurve) {
    OpenHighPower();
    Press(Slider(), Qt::Key_Right, 30);
    EXPECT_EQ(Shown(), "130 120 125 135 140 150");
    for (int page = 0; page < 6; ++page) {
        const std::array<int, 6> expected{130, 120, 125, 135, 140, 150};
        ExpectInStep(page, expected[static_cast<std::size_t>(page)]);
    }
    Settle();
    EXPECT_EQ(rig.TakeSent(), Commands{"12 20 82"}); // of the page in front alone
    Press(Slider(), Qt::Key_Left, 50);
    EXPECT_EQ(Shown(), "80 70 75 85 90 100");
    Settle();
    EXPECT_EQ(rig.TakeSent(), Commands{"12 20 50"});
}

TEST_F(TuningFormEditingTest, BackAtTheOpeningValueThePointsStayWhereTheyAre) {
    OpenHighPower();
    Press(Slider(), Qt::Key_Right);
    EXPECT_EQ(Shown(), "101 91 96 106 111 121");
    Press(Slider(), Qt::Key_Left);
    EXPECT_EQ(Shown(), "100 91 96 106 111 121");
}

TEST_F(TuningFormEditingTest, AtTheUpperLimitTheCurveStops) {
    OpenHighPower();
    Press(Slider(), Qt::Key_Right, 134);
    EXPECT_EQ(Shown(), "234 224 229 239 244 254");
    Press(Slider(), Qt::Key_Right);
    EXPECT_EQ(Shown(), "235 225 230 240 245 255");
    Settle();
    rig.TakeSent();
    Press(Slider(), Qt::Key_Right, 3);
    Press(Slider(), Qt::Key_PageUp);
    Press(Slider(), Qt::Key_End);
    Press(Box(), Qt::Key_Up, 3);
    ClickSpin(0, true);
    EXPECT_EQ(Shown(), "235 225 230 240 245 255");
    ExpectInStep(0, 235);
    Settle();
    EXPECT_TRUE(rig.sent.empty());
    Press(Slider(), Qt::Key_Left);
    EXPECT_EQ(Shown(), "234 224 229 239 244 254");
    Settle();
    EXPECT_EQ(rig.sent, Commands{"12 20 EA"});
}

TEST_F(TuningFormEditingTest, AJumpBeyondTheUpperLimitEndsAtIt) {
    OpenHighPower();
    Press(Slider(), Qt::Key_End);
    EXPECT_EQ(Shown(), "235 225 230 240 245 255");
    ExpectInStep(0, 235);
    Settle();
    EXPECT_EQ(rig.sent, Commands{"12 20 EB"});
}

TEST_F(TuningFormEditingTest, AtTheLowerLimitTheCurveStops) {
    OpenHighPower();
    Press(Slider(), Qt::Key_Left, 89);
    EXPECT_EQ(Shown(), "11 1 6 16 21 31");
    Press(Slider(), Qt::Key_Left);
    EXPECT_EQ(Shown(), "10 0 5 15 20 30");
    Settle();
    rig.TakeSent();
    Press(Slider(), Qt::Key_Left, 3);
    Press(Slider(), Qt::Key_Home);
    Press(Box(), Qt::Key_Down, 3);
    ClickSpin(0, false);
    EXPECT_EQ(Shown(), "10 0 5 15 20 30");
    ExpectInStep(0, 10);
    Settle();
    EXPECT_TRUE(rig.sent.empty());
    Press(Box(), Qt::Key_Up);
    EXPECT_EQ(Shown(), "11 1 6 16 21 31");
    Settle();
    EXPECT_EQ(rig.sent, Commands{"12 20 0B"});
}

TEST_F(TuningFormEditingTest, ThePointAtTheTestFrequencyIsTheTestValue) {
    OpenHighPower(); // 155.10000 MHz, as Center
    ClickPage(3);
    Settle();
    rig.TakeSent();
    Press(Slider(3), Qt::Key_Right, 5);
    EXPECT_EQ(Shown(), "110 90 95 110 110 120");
    ExpectInStep(0, 110);
    Settle();
    EXPECT_EQ(rig.sent, Commands{"31 20 6E"});
}

TEST_F(TuningFormEditingTest, BetweenTwoPointsTheTestValueLiesOnTheirLine) {
    rig.service.TestFrequencyText[0].transmit = "150.35000"; // half-way between Low' and Center
    OpenHighPower();
    ClickPage(2);
    Settle();
    Press(Box(2), Qt::Key_Up);
    EXPECT_EQ(Shown(), "100 90 96 105 110 120"); // 100.5
    Press(Box(2), Qt::Key_Up);
    EXPECT_EQ(Shown(), "101 90 97 105 110 120");
    Press(Box(2), Qt::Key_Up);
    EXPECT_EQ(Shown(), "102 90 98 105 110 120"); // 101.5
    ClickSpin(2, false);
    EXPECT_EQ(Shown(), "101 90 97 105 110 120");
    Settle();
    EXPECT_EQ(rig.sent.back(), "33 20 61");
}

TEST_F(TuningFormEditingTest, AValueThatChangesBehindItsPageIsShownWhenThePageComes) {
    OpenSensitivity();
    Press(Slider(), Qt::Key_Right, 10);
    Settle();
    ClickPage(2);
    Settle();
    ExpectInStep(2, 52);
    Press(Slider(2), Qt::Key_Right);
    Settle();
    EXPECT_EQ(rig.sent, (Commands{"1F 20 32", "36 0D", "07", "06", "36 20 35"}));
}

TEST_F(TuningFormEditingTest, PttKeysAndUnkeysTheRadio) {
    OpenHighPower();
    Click(*form, "CmdPTT");
    EXPECT_EQ(LampOf(*form, "PicPtt"), "101");
    Settle();
    EXPECT_EQ(LampOf(*form, "PicPtt"), "102");
    Press(Slider(), Qt::Key_Right);
    Settle();
    EXPECT_EQ(LampOf(*form, "PicPtt"), "102");
    Click(*form, "CmdPTT");
    Settle();
    EXPECT_EQ(LampOf(*form, "PicPtt"), "101");
    EXPECT_EQ(rig.sent, (Commands{"08 0D", "12 20 65", "08 0E"}));
}

TEST_F(TuningFormEditingTest, AStepAndPttAtOnceBothGetToTheRadio) {
    OpenHighPower();
    Press(Box(), Qt::Key_Up);
    Click(*form, "CmdPTT");
    Settle();
    EXPECT_EQ(rig.sent, (Commands{"12 20 65", "08 0D"}));
    EXPECT_EQ(LampOf(*form, "PicPtt"), "102");
}

TEST_F(TuningFormEditingTest, APageChangeWhileKeyedDropsTheTransmitterFirst) {
    OpenHighPower();
    Click(*form, "CmdPTT");
    Settle();
    rig.TakeSent();
    ClickPage(1);
    Settle();
    EXPECT_EQ(rig.sent, (Commands{"08 0E", "30 0D", "07", "06"}));
    EXPECT_EQ(LampOf(*form, "PicPtt"), "101");
}

TEST_F(TuningFormEditingTest, AMoveInTheMiddleOfAPageChangeGetsToTheRadioBehindIt) {
    OpenHighPower();
    ClickPage(1);
    rig.clock.Advance(4);
    Press(Slider(1), Qt::Key_Right);
    Settle();
    EXPECT_EQ(rig.sent, (Commands{"30 0D", "07", "06", "30 20 5B"}));
    ExpectInStep(1, 91);
}

} // namespace
} // namespace zelvor
