// Commands that come faster than the radio answers, or than they go out.
#include "service/EngineTests.h"

namespace zelvor {
namespace {

using TestModeOrder = TestEngineTest;
using TuningOrder = TuningEngineTest;

struct SupersededDrop {
    const char* name;
    void (*first)(TestEngine& engine);
    void (*second)(TestEngine& engine);
    Commands commands; // of both
};

void PrintTo(const SupersededDrop& value, std::ostream* out) {
    *out << value.name;
}

const SupersededDrop SupersededDrops[]{
    {"signalling 2, then 4",
     [](TestEngine& engine) { engine.ChooseSignalling(2); },
     [](TestEngine& engine) { engine.ChooseSignalling(4); },
     {"08 0E", "11 04"}},
    {"channel 2, then 5",
     [](TestEngine& engine) { engine.ChooseChannel(2); },
     [](TestEngine& engine) { engine.ChooseChannel(5); },
     {"08 0E", "10 05", "06"}},
    {"narrow, then wide",
     [](TestEngine& engine) { engine.ChooseWide(false); },
     [](TestEngine& engine) { engine.ChooseWide(true); },
     {"08 0E", "46"}},
    {"tuning, then a channel",
     [](TestEngine& engine) { engine.Tune(); },
     [](TestEngine& engine) { engine.ChooseChannel(3); },
     {"08 0E", "10 03", "06"}},
};

class SupersededDropTest : public TestEngineTest, public ::testing::WithParamInterface<SupersededDrop> {};

TEST_P(SupersededDropTest, LeavesARadioThatIsNotKeyedAndTheNextPressKeysIt) {
    Open();
    rig.replies["08 0E"] = ""; // answered by hand, late
    engine.PressPtt();
    rig.clock.Advance(50);
    rig.TakeSent();
    GetParam().first(engine);
    rig.clock.Advance(60);
    ASSERT_EQ(rig.sent, Commands{"08 0E"});
    GetParam().second(engine);
    rig.clock.Advance(60);
    ASSERT_EQ(rig.sent, Commands{"08 0E"}); // its reply is due
    rig.ports.Port("MSComm1")->Deliver(Bytes("06"));
    rig.clock.Advance(200);
    EXPECT_EQ(rig.TakeSent(), GetParam().commands);
    EXPECT_EQ(lamps.back(), "idle");
    EXPECT_FALSE(engine.IsPttOn());
    engine.PressPtt();
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, Commands{"08 0D"});
    EXPECT_EQ(lamps.back(), "transmit");
}

INSTANTIATE_TEST_SUITE_P(Pairs, SupersededDropTest, ::testing::ValuesIn(SupersededDrops));

TEST_F(TestModeOrder, APressOfPttBehindADropIsNotTakenBackByIt) {
    Open();
    engine.PressPtt();
    rig.clock.Advance(50);
    rig.TakeSent();
    engine.ChooseSignalling(2);
    rig.clock.Advance(2); // the drop was sent at 1, its answer comes at 3
    engine.PressPtt();
    engine.PressPtt();
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, (Commands{"08 0E", "11 02", "08 0D"}));
    EXPECT_TRUE(engine.IsPttOn());
}

TEST_F(TestModeOrder, AReleaseBehindADropUnkeysTheRadio) {
    Open();
    engine.PressPtt();
    rig.clock.Advance(50);
    rig.TakeSent();
    engine.ChooseSignalling(2);
    rig.clock.Advance(2);
    engine.PressPtt();
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, (Commands{"08 0E", "11 02", "08 0E"}));
    EXPECT_FALSE(engine.IsPttOn());
    EXPECT_EQ(lamps.back(), "idle");
}

TEST_F(TestModeOrder, AChannelAndThenASignallingBothGoOutInThatOrder) {
    Open();
    engine.ChooseChannel(2);
    rig.clock.Advance(20); // the channel goes out at 50
    engine.ChooseSignalling(3);
    rig.clock.Advance(200);
    EXPECT_EQ(rig.sent, (Commands{"10 02", "06", "11 03"}));
    EXPECT_EQ(rig.times[2] - rig.times[1], 3); // two for the reply
}

TEST_F(TestModeOrder, TheEarlierCommandKeepsItsTime) {
    Open();
    const std::int64_t chosen = rig.clock.TickCount();
    engine.ChooseChannel(2);
    rig.clock.Advance(20);
    engine.PressPtt();
    rig.clock.Advance(200);
    EXPECT_EQ(rig.sent, (Commands{"10 02", "06", "08 0D"}));
    EXPECT_EQ(rig.times[0] - chosen, 50);
}

TEST_F(TestModeOrder, ThreeCommandsInOneTickGoOutOneByOne) {
    Open();
    engine.ChooseWide(false);
    engine.ChooseSignalling(8);
    engine.PressPtt();
    rig.clock.Advance(100);
    EXPECT_EQ(rig.sent, (Commands{"47", "11 08", "08 0D"}));
    EXPECT_TRUE(rig.service.NarrowMode);
    EXPECT_EQ(lamps, std::vector<std::string>{"transmit"});
}

TEST_F(TestModeOrder, ALaterCommandOfAKindReplacesTheOneThatWaits) {
    Open();
    engine.ChooseChannel(2);
    engine.ChooseSignalling(3);
    engine.ChooseChannel(5);
    engine.ChooseSignalling(4);
    engine.ChooseWide(false);
    engine.ChooseWide(true);
    rig.clock.Advance(300);
    EXPECT_EQ(rig.sent, (Commands{"10 05", "06", "11 04", "46"}));
}

TEST_F(TestModeOrder, PttAndThenAChannelKeysDropsAndSetsTheChannel) {
    Open();
    engine.PressPtt();
    engine.ChooseChannel(2);
    rig.clock.Advance(200);
    EXPECT_EQ(rig.sent, (Commands{"08 0D", "08 0E", "10 02", "06"}));
    EXPECT_FALSE(engine.IsPttOn());
    EXPECT_EQ(lamps.back(), "idle");
}

TEST_F(TestModeOrder, WhatIsChosenRightBehindTheLoadIsSentAndSoIsTheFirstSignalling) {
    rig.service.TestChannelNo = 3;
    engine.Load();
    engine.ChooseChannel(5);
    engine.PressPtt();
    rig.clock.Advance(300);
    EXPECT_EQ(rig.sent, (Commands{"11 01", "10 05", "06", "08 0D"}));
}

TEST_F(TestModeOrder, TuningComesBehindWhatWasChosenBefore) {
    Open();
    engine.ChooseChannel(2);
    engine.ChooseWide(false);
    rig.service.TuneItem = 9;
    engine.Tune();
    rig.clock.Advance(500);
    EXPECT_EQ(rig.sent, (Commands{"10 02", "06", "47", "05", "06", "0D 0D"}));
    EXPECT_EQ(events, std::vector<std::string>{"tune, port closed"});
}

TEST_F(TestModeOrder, TuningIsGivenUpForWhatIsAskedForNextAndNothingOpens) {
    Open();
    rig.service.TuneItem = 9;
    engine.Tune();
    rig.clock.Advance(2); // 05 was sent, its answer comes
    engine.ChooseWide(false);
    rig.clock.Advance(500);
    EXPECT_EQ(rig.sent, (Commands{"05", "47"}));
    EXPECT_TRUE(events.empty());
}

TEST_F(TestModeOrder, RetryRepeatsTheCommandThatFailedAndTheOthersFollow) {
    Open();
    rig.Spoil(rig.Replies() + 1, Fault::Drop);
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Retry);
    engine.ChooseWide(false);
    rig.clock.Advance(10);
    engine.ChooseSignalling(6);
    engine.PressPtt();
    rig.clock.Advance(500);
    EXPECT_EQ(rig.sent, (Commands{"47", "47", "11 06", "08 0D"}));
}

TEST_F(TestModeOrder, ReleasedWhileTheRadioIsSilentItIsNotKeyedAgainByRetry) {
    Open();
    rig.Spoil(rig.Replies() + 1, Fault::Drop);
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Retry);
    engine.PressPtt();
    rig.clock.Advance(10);
    engine.PressPtt();
    rig.clock.Advance(500);
    EXPECT_EQ(rig.sent, (Commands{"08 0D", "08 0E"}));
}

TEST_F(TestModeOrder, ARefusedPttThatIsReplacedLightsNoLamp) {
    Open();
    rig.replies["08 0D"] = "15";
    engine.PressPtt();
    rig.clock.Advance(2); // PTT on was sent at 1, its answer comes at 3
    engine.PressPtt();
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, (Commands{"08 0D", "08 0E"}));
    EXPECT_EQ(lamps, std::vector<std::string>{"idle"});
}

TEST_F(TestModeOrder, TheAnswerToAReplacedSignallingSaysNothingOfTheTransmitter) {
    Open();
    engine.PressPtt();
    rig.clock.Advance(50);
    engine.PressPtt();
    rig.clock.Advance(50);
    rig.TakeSent();
    lamps.clear();
    engine.ChooseSignalling(2);
    rig.clock.Advance(2); // sent at 1, its answer comes at 3
    engine.ChooseSignalling(4);
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, (Commands{"11 02", "11 04"}));
    EXPECT_TRUE(lamps.empty());
}

TEST_F(TestModeOrder, GivingUpForgetsWhatWaited) {
    Open();
    rig.Spoil(rig.Replies() + 1, Fault::Drop);
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
    engine.ChooseWide(false);
    engine.ChooseSignalling(6);
    rig.clock.Advance(1000);
    EXPECT_EQ(rig.sent, Commands{"47"});
    EXPECT_EQ(events, std::vector<std::string>{"unload"});
}

TEST_F(TuningOrder, AValueAndThenPttBothGoOut) {
    OpenSixPages();
    engine->TextChanged();
    engine->PressPtt();
    rig.clock.Advance(100);
    EXPECT_EQ(rig.sent, (Commands{"12 20 0A", "08 0D"}));
    EXPECT_EQ(rig.times[1] - rig.times[0], 2 + 1);
}

TEST_F(TuningOrder, AValueIsSetBeforeThePageChangesAndWithItsOwnCode) {
    OpenSixPages();
    engine->SliderMoved();
    engine->ChangePage(1);
    engine->SliderMoved();
    rig.clock.Advance(100);
    EXPECT_EQ(rig.sent, (Commands{"12 20 0A", "30 0D", "07", "06", "30 20 14"}));
}

TEST_F(TuningOrder, OkStoresBehindTheValueThatIsShown) {
    OpenOneValue();
    engine->SliderMoved();
    Close(TuningEngine::Ending::Ok);
    EXPECT_EQ(rig.sent, (Commands{"1D 20 0A", "1D 0E"}));
}

TEST_F(TuningOrder, OkStoresBehindThePageChangeThatIsUnderWay) {
    OpenSixPages();
    engine->ChangePage(2);
    rig.clock.Advance(4);
    Close(TuningEngine::Ending::Ok);
    EXPECT_EQ(rig.sent, (Commands{"33 0D", "07", "06", "33 0E"}));
}

TEST_F(TuningOrder, CancelDoesNotWaitForAValue) {
    OpenOneValue();
    engine->SliderMoved();
    Close(TuningEngine::Ending::Cancel);
    EXPECT_EQ(rig.sent, (Commands{"1D 0D", "1D 20 6E"}));
}

TEST_F(TuningOrder, PttBehindAPageChangeGoesOutWhenThePageIsRead) {
    OpenSixPages();
    engine->ChangePage(1);
    engine->PressPtt();
    rig.clock.Advance(100);
    EXPECT_EQ(rig.sent, (Commands{"30 0D", "07", "06", "08 0D"}));
    EXPECT_EQ(dialog.events, (std::vector<std::string>{"point 1", "transmit"}));
}

TEST_F(TuningOrder, OfTwoPageChangesWhileKeyedTheLatestGoesOutAndTheNextPressKeys) {
    OpenSixPages();
    engine->PressPtt();
    rig.clock.Advance(50);
    rig.TakeSent();
    engine->ChangePage(1);
    rig.clock.Advance(4); // the drop was sent at 3, its answer comes at 5
    engine->ChangePage(2);
    rig.clock.Advance(100);
    EXPECT_EQ(rig.TakeSent(), (Commands{"08 0E", "33 0D", "07", "06"}));
    EXPECT_FALSE(engine->IsPttOn());
    engine->PressPtt();
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, Commands{"08 0D"});
    EXPECT_EQ(dialog.events, (std::vector<std::string>{"transmit", "idle", "point 2", "transmit"}));
}

TEST_F(TuningOrder, APageWhoseValueWaitsIsStillGoneTo) {
    OpenSixPages();
    engine->ChangePage(1);
    engine->SliderMoved();
    engine->ChangePage(2);
    rig.clock.Advance(200);
    EXPECT_EQ(rig.sent, (Commands{"30 0D", "07", "06", "30 20 14", "33 0D", "07", "06"}));
}

} // namespace
} // namespace zelvor
