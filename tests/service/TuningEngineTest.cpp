#include "service/EngineTests.h"

namespace zelvor {
namespace {

TEST_F(TuningEngineTest, NothingIsSentOnLoad) {
    OpenSixPages();
    rig.clock.Advance(1000);
    EXPECT_TRUE(rig.sent.empty());
    EXPECT_FALSE(rig.IsPortOpen());
}

TEST_F(TuningEngineTest, APageChangeSelectsReadsAndConfirmsThePoint) {
    OpenSixPages();
    engine->ChangePage(2);
    rig.clock.Advance(200);
    EXPECT_EQ(rig.sent, (Commands{"33 0D", "07", "06"}));
    EXPECT_EQ(rig.times, (std::vector<std::int64_t>{3, 3 + 2 + 3, 8 + 2 + 5}));
    EXPECT_EQ(dialog.events, std::vector<std::string>{"point 2"});
}

TEST_F(TuningEngineTest, AValueIsSentWithTheCodeOfThePageInFront) {
    OpenSixPages();
    engine->SliderMoved();
    rig.clock.Advance(50);
    engine->ChangePage(5);
    rig.clock.Advance(50);
    rig.TakeSent();
    engine->TextChanged();
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, Commands{"32 20 3C"}); // 50, 60
}

TEST_F(TuningEngineTest, TheTestValueIsSentWithTheCodeOfTheItem) {
    OpenSixPages();
    engine->SliderMoved();
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, Commands{"12 20 0A"});
}

TEST_F(TuningEngineTest, OfManyMovesTheLatestValueGetsToTheRadio) {
    OpenSixPages();
    for (int value = 11; value <= 90; ++value) {
        dialog.values[0] = value;
        engine->SliderMoved();
        if (value % 10 == 0) {
            rig.clock.Advance(1);
        }
    }
    rig.clock.Advance(100);
    EXPECT_EQ(rig.sent.back(), "12 20 5A");
    EXPECT_LT(rig.sent.size(), 9U);
}

TEST_F(TuningEngineTest, AValueWaitsForThePageChangeThatIsUnderWay) {
    OpenSixPages();
    engine->ChangePage(1);
    rig.clock.Advance(4);
    engine->SliderMoved();
    rig.clock.Advance(200);
    EXPECT_EQ(rig.sent, (Commands{"30 0D", "07", "06", "30 20 14"}));
}

TEST_F(TuningEngineTest, AReleaseThatTheRadioMissedGoesOutAgainBeforeStore) {
    OpenOneValue();
    engine->PressPtt();
    rig.clock.Advance(50);
    rig.TakeSent();
    rig.Spoil(rig.Replies() + 1, Fault::Drop);
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Retry);
    engine->PressPtt();
    rig.clock.Advance(20);
    Close(TuningEngine::Ending::Ok);
    EXPECT_EQ(rig.sent, (Commands{"08 0E", "08 0E", "1D 0E"}));
    EXPECT_EQ(dialog.events.back(), "idle");
}

TEST_F(TuningEngineTest, PttKeysAndUnkeysTheRadio) {
    OpenSixPages();
    engine->PressPtt();
    rig.clock.Advance(50);
    engine->PressPtt();
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, (Commands{"08 0D", "08 0E"}));
    EXPECT_EQ(dialog.events, (std::vector<std::string>{"transmit", "idle"}));
}

TEST_F(TuningEngineTest, TheLampFollowsARadioThatIsUnkeyedWhileAPageChangeWaits) {
    OpenSixPages();
    engine->PressPtt();
    rig.clock.Advance(50);
    engine->PressPtt();
    rig.clock.Advance(2);
    engine->ChangePage(1);
    rig.clock.Advance(200);
    EXPECT_EQ(rig.sent, (Commands{"08 0D", "08 0E", "30 0D", "07", "06"}));
    EXPECT_EQ(dialog.events, (std::vector<std::string>{"transmit", "idle", "point 1"}));
}

TEST_F(TuningEngineTest, AValueGoesOutOneMillisecondAfterItsMoveAndAPageInThreeThreeAndFive) {
    OpenSixPages();
    const std::int64_t moved = rig.clock.TickCount();
    engine->SliderMoved();
    rig.clock.Advance(50);
    ASSERT_EQ(rig.sent, Commands{"12 20 0A"});
    EXPECT_EQ(rig.times[0] - moved, 1);
    rig.TakeSent();
    const std::int64_t changed = rig.clock.TickCount();
    engine->ChangePage(1);
    rig.clock.Advance(50);
    ASSERT_EQ(rig.sent, (Commands{"30 0D", "07", "06"}));
    EXPECT_EQ(rig.times[0] - changed, 3);
    EXPECT_EQ(rig.times[1] - rig.times[0], 2 + 3); // two for the reply
    EXPECT_EQ(rig.times[2] - rig.times[1], 2 + 5);
}

TEST_F(TuningEngineTest, AnEndingGoesOutFiveMillisecondsAfterItsPress) {
    for (const auto ending : {TuningEngine::Ending::Ok, TuningEngine::Ending::Cancel}) {
        engine.reset();
        OpenSixPages();
        dialog.closed = 0;
        const std::int64_t pressed = rig.clock.TickCount();
        Close(ending);
        EXPECT_EQ(rig.times[0] - pressed, 5);
        rig.TakeSent();
    }
}

TEST_F(TuningEngineTest, ValuesAreSetWithTheTransmitterKeyed) {
    OpenSixPages();
    engine->PressPtt();
    rig.clock.Advance(50);
    engine->SliderMoved();
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, (Commands{"08 0D", "12 20 0A"}));
}

TEST_F(TuningEngineTest, APageChangeDropsAKeyedTransmitterFirst) {
    OpenSixPages();
    engine->PressPtt();
    rig.clock.Advance(50);
    rig.TakeSent();
    engine->ChangePage(1);
    rig.clock.Advance(200);
    EXPECT_EQ(rig.sent, (Commands{"08 0E", "30 0D", "07", "06"}));
    EXPECT_EQ(rig.times[1] - rig.times[0], 2 + 7);
    EXPECT_EQ(dialog.events, (std::vector<std::string>{"transmit", "idle", "point 1"}));
}

TEST_F(TuningEngineTest, OkSendsOneStoreForThePageInFront) {
    OpenSixPages();
    engine->ChangePage(3);
    rig.clock.Advance(100);
    rig.TakeSent();
    Close(TuningEngine::Ending::Ok);
    EXPECT_EQ(rig.sent, Commands{"31 0E"});
    EXPECT_FALSE(rig.IsPortOpen());
}

TEST_F(TuningEngineTest, OkWhileKeyedDropsTheTransmitterFirst) {
    OpenSixPages();
    engine->PressPtt();
    rig.clock.Advance(50);
    rig.TakeSent();
    Close(TuningEngine::Ending::Ok);
    EXPECT_EQ(rig.sent, (Commands{"08 0E", "12 0E"}));
    EXPECT_EQ(rig.times[1] - rig.times[0], 2 + 5);
}

const Commands SixPageCancel{"12 0D",    "12 20 6E", "30 0D",    "30 20 78", "33 0D",    "33 20 82", "31 0D",
                             "31 20 8C", "34 0D",    "34 20 96", "32 0D",    "32 20 A0", "32 0E"};

TEST_F(TuningEngineTest, CancelSetsAllSixOldValuesAndStoresOnce) {
    OpenSixPages();
    Close(TuningEngine::Ending::Cancel);
    EXPECT_EQ(rig.sent, SixPageCancel);
    EXPECT_FALSE(rig.IsPortOpen());
}

TEST_F(TuningEngineTest, CancelOfFourPagesSetsAllFourOldValuesAndStoresOnce) {
    Open({TuningKind::Points, 24, {24, 101, 102, 103}});
    Close(TuningEngine::Ending::Cancel);
    EXPECT_EQ(rig.sent,
              (Commands{"18 0D", "18 20 6E", "65 0D", "65 20 78", "66 0D", "66 20 82", "67 0D", "67 20 8C", "67 0E"}));
}

TEST_F(TuningEngineTest, CancelWhileKeyedDropsTheTransmitterFirst) {
    OpenSixPages();
    engine->PressPtt();
    rig.clock.Advance(50);
    rig.TakeSent();
    Close(TuningEngine::Ending::Cancel);
    Commands expected{"08 0E"};
    expected.insert(expected.end(), SixPageCancel.begin(), SixPageCancel.end());
    EXPECT_EQ(rig.sent, expected);
}

TEST_F(TuningEngineTest, ClosingInTheMiddleOfAValueWaitsForItsAnswer) {
    OpenSixPages();
    engine->SliderMoved();
    rig.clock.Advance(2);
    Close(TuningEngine::Ending::Ok);
    EXPECT_EQ(rig.sent, (Commands{"12 20 0A", "12 0E"}));
}

TEST_F(TuningEngineTest, OneValueIsSetStoredAndCancelled) {
    OpenOneValue();
    engine->SliderMoved();
    rig.clock.Advance(50);
    EXPECT_EQ(rig.TakeSent(), Commands{"1D 20 0A"});
    Close(TuningEngine::Ending::Ok);
    EXPECT_EQ(rig.sent, Commands{"1D 0E"});
}

TEST_F(TuningEngineTest, CancelOfOneValueSelectsAndSetsTheOldOneAndStoresNothing) {
    OpenOneValue();
    Close(TuningEngine::Ending::Cancel);
    EXPECT_EQ(rig.sent, (Commands{"1D 0D", "1D 20 6E"}));
}

TEST_F(TuningEngineTest, MeasuringReadsAndConfirmsAgainAndAgain) {
    OpenMeasured();
    engine->ToggleMeasuring();
    rig.clock.Advance(600);
    rig.measured = 78;
    rig.clock.Advance(600);
    EXPECT_EQ(rig.sent, (Commands{"22 0A", "06", "22 0A", "06", "22 0A", "06"}));
    EXPECT_EQ(rig.times[2] - rig.times[1], 2 + 550 + 10);
    EXPECT_EQ(dialog.events, (std::vector<std::string>{"measured 77", "measured 77", "measured 78"}));
}

TEST_F(TuningEngineTest, TheSecondPressEndsTheMeasuring) {
    OpenMeasured();
    engine->ToggleMeasuring();
    rig.clock.Advance(300);
    engine->ToggleMeasuring();
    EXPECT_FALSE(engine->IsMeasuring());
    rig.TakeSent();
    rig.clock.Advance(3000);
    EXPECT_TRUE(rig.sent.empty());
}

TEST_F(TuningEngineTest, EndedBetweenValueAndConfirmationTheMeasurementIsStillConfirmed) {
    OpenMeasured();
    engine->ToggleMeasuring();
    rig.clock.Advance(2); // sent at 1, its answer comes at 3
    engine->ToggleMeasuring();
    rig.clock.Advance(3000);
    EXPECT_EQ(rig.sent, (Commands{"22 0A", "06"}));
}

TEST_F(TuningEngineTest, OkOfAMeasuringDialogSetsAndStoresTheMeasuredValue) {
    OpenMeasured();
    engine->ToggleMeasuring();
    rig.clock.Advance(300);
    rig.TakeSent();
    Close(TuningEngine::Ending::Ok);
    EXPECT_EQ(rig.sent, (Commands{"22 20 4D", "22 0E"}));
}

TEST_F(TuningEngineTest, CancelOfAMeasuringDialogSetsAndStoresTheOldValue) {
    OpenMeasured();
    engine->ToggleMeasuring();
    rig.clock.Advance(300);
    rig.TakeSent();
    Close(TuningEngine::Ending::Cancel);
    EXPECT_EQ(rig.sent, (Commands{"22 20 6E", "22 0E"}));
}

struct OperationCase {
    const char* name;
    const TuningPlan* plan;
    void (*start)(TuningEngine& engine);
    Commands commands;
};

const TuningPlan FourPages{TuningKind::Points, 24, {24, 101, 102, 103}};
const TuningPlan OneValue{TuningKind::Single, 29, {29}};
const TuningPlan Measured{TuningKind::Measured, 34, {34}};

const std::vector<OperationCase> Operations{
    {"page", &FourPages, [](TuningEngine& engine) { engine.ChangePage(1); }, {"65 0D", "07", "06"}},
    {"value", &OneValue, [](TuningEngine& engine) { engine.SliderMoved(); }, {"1D 20 0A"}},
    {"ptt", &OneValue, [](TuningEngine& engine) { engine.PressPtt(); }, {"08 0D"}},
    {"ok", &OneValue, [](TuningEngine& engine) { engine.Close(TuningEngine::Ending::Ok); }, {"1D 0E"}},
    {"cancel",
     &OneValue,
     [](TuningEngine& engine) { engine.Close(TuningEngine::Ending::Cancel); },
     {"1D 0D", "1D 20 6E"}},
    {"measured ok",
     &Measured,
     [](TuningEngine& engine) { engine.Close(TuningEngine::Ending::Ok); },
     {"22 20 0A", "22 0E"}},
};

struct FaultCase {
    const OperationCase* operation;
    int reply;
    Fault fault;
};

void PrintTo(const FaultCase& value, std::ostream* out) {
    *out << value.operation->name << ", reply " << value.reply << ", fault " << static_cast<int>(value.fault);
}

std::vector<FaultCase> AllFaults() {
    std::vector<FaultCase> cases;
    for (const OperationCase& operation : Operations) {
        for (int reply = 1; reply <= static_cast<int>(operation.commands.size()); ++reply) {
            for (const Fault fault : {Fault::Drop, Fault::Cut, Fault::Corrupt, Fault::Late, Fault::Vanish}) {
                const bool isPoint = operation.commands[static_cast<std::size_t>(reply - 1)] == "07";
                if (fault != Fault::Corrupt || !isPoint) { // a point's six bytes are only counted
                    cases.push_back({&operation, reply, fault});
                }
            }
        }
    }
    return cases;
}

class TuningFaults : public TuningEngineTest, public ::testing::WithParamInterface<FaultCase> {
protected:
    void Run(MessageAnswer answer) {
        Open(*GetParam().operation->plan);
        rig.Spoil(GetParam().reply, GetParam().fault);
        rig.messages.Expect(ConnectionPrompt(), [this, answer] {
            rig.ports.Present(1);
            return answer;
        });
        GetParam().operation->start(*engine);
        rig.clock.Advance(2000);
        EXPECT_EQ(rig.FaultsFired(), 1);
        EXPECT_EQ(rig.messages.Pending(), 0);
    }
};

TEST_P(TuningFaults, PromptAndRetryRepeatsTheOperation) {
    Run(MessageAnswer::Retry);
    const Commands& commands = GetParam().operation->commands;
    Commands expected(commands.begin(), commands.begin() + GetParam().reply);
    expected.insert(expected.end(), commands.begin(), commands.end());
    EXPECT_EQ(rig.sent, expected);
}

TEST_P(TuningFaults, CancelClosesTheDialogAndSendsNothingMore) {
    Run(MessageAnswer::Cancel);
    EXPECT_EQ(dialog.events.back(), "unload");
    EXPECT_TRUE(rig.service.TestAborted);
    EXPECT_EQ(static_cast<int>(rig.sent.size()), GetParam().reply);
    EXPECT_FALSE(rig.IsPortOpen());
}

INSTANTIATE_TEST_SUITE_P(EveryReply, TuningFaults, ::testing::ValuesIn(AllFaults()));

TEST_F(TuningEngineTest, ThePromptMayTakeTheDialogAwayThatItCameFrom) {
    OpenSixPages();
    rig.Spoil(1, Fault::Drop);
    rig.messages.Expect(ConnectionPrompt(), [this] {
        engine.reset();
        return MessageAnswer::Cancel;
    });
    engine->SliderMoved();
    rig.clock.Advance(1000);
    EXPECT_EQ(dialog.events, std::vector<std::string>{});
    EXPECT_EQ(rig.messages.Pending(), 0);
}

TEST_F(TuningEngineTest, ASilentRadioPromptsAHundredMillisecondsBehindTheCommand) {
    OpenOneValue();
    rig.replies["1D 20 0A"] = "";
    const std::int64_t prompted = rig.TimeOfPrompt([&] { engine->SliderMoved(); });
    EXPECT_EQ(prompted - rig.times.front(), 100);
}

} // namespace
} // namespace zelvor
