#include "service/EngineTests.h"

namespace zelvor {
namespace {

TEST_F(TestEngineTest, OnLoadTheRadioGetsTheChannelAndThenTheFirstSignalling) {
    rig.service.TestChannelNo = 3;
    rig.service.NarrowMode = true;
    rig.service.TestAborted = true;
    engine.Load();
    EXPECT_FALSE(rig.service.NarrowMode);
    EXPECT_FALSE(rig.service.TestAborted);
    EXPECT_FALSE(rig.IsPortOpen());
    rig.clock.Advance(200);
    EXPECT_EQ(rig.sent, (Commands{"10 03", "06", "11 01"}));
    EXPECT_EQ(rig.times.front(), 5);
    EXPECT_TRUE(rig.IsPortOpen());
    EXPECT_FALSE(rig.IsRunning("ctrTimer"));
    EXPECT_FALSE(rig.IsRunning("tmrOverTime"));
}

TEST_F(TestEngineTest, AChosenChannelIsNotFollowedByASignalling) {
    Open();
    engine.ChooseChannel(7);
    rig.clock.Advance(200);
    EXPECT_EQ(rig.sent, (Commands{"10 07", "06"}));
    EXPECT_EQ(rig.service.TestChannelNo, 7);
}

TEST_F(TestEngineTest, AChannelGoesOutFiftyMillisecondsAfterTheChoice) {
    Open();
    const std::int64_t chosen = rig.clock.TickCount();
    engine.ChooseChannel(2);
    rig.clock.Advance(200);
    EXPECT_EQ(rig.times.front() - chosen, 50);
}

TEST_F(TestEngineTest, SetChannelAnsweredByOneByteIsAccepted) {
    rig.replies["10 01"] = "06";
    engine.Load();
    rig.clock.Advance(400);
    EXPECT_EQ(rig.sent, (Commands{"10 01", "06", "11 01"}));
}

TEST_F(TestEngineTest, EverySignallingIsSentByItsNumber) {
    Open();
    for (int number = 1; number <= 9; ++number) {
        engine.ChooseSignalling(number);
        rig.clock.Advance(50);
    }
    EXPECT_EQ(rig.sent, (Commands{"11 01", "11 02", "11 03", "11 04", "11 05", "11 06", "11 07", "11 08", "11 09"}));
}

TEST_F(TestEngineTest, PressingPttTwiceSendsPttOnAndPttOff) {
    Open();
    engine.PressPtt();
    rig.clock.Advance(50);
    EXPECT_EQ(lamps.back(), "transmit");
    engine.PressPtt();
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, (Commands{"08 0D", "08 0E"}));
    EXPECT_EQ(lamps, (std::vector<std::string>{"transmit", "idle"}));
}

TEST_F(TestEngineTest, PressingPttAgainBeforeTheRadioHasAnsweredStillUnkeysIt) {
    Open();
    engine.PressPtt();
    rig.clock.Advance(2); // sent at 1, its answer comes at 3
    engine.PressPtt();
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, (Commands{"08 0D", "08 0E"}));
    EXPECT_FALSE(engine.IsPttOn());
}

TEST_F(TestEngineTest, TheLampsFollowARadioThatIsUnkeyedWhileAnotherCommandWaits) {
    Open();
    engine.PressPtt();
    rig.clock.Advance(50);
    engine.PressPtt();
    rig.clock.Advance(2); // sent at 1, its answer comes at 3
    engine.ChooseWide(false);
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, (Commands{"08 0D", "08 0E", "47"}));
    EXPECT_EQ(lamps, (std::vector<std::string>{"transmit", "idle"}));
}

TEST_F(TestEngineTest, AReleaseThatAnotherCommandOvertakesIsStillSent) {
    Open();
    engine.PressPtt();
    rig.clock.Advance(2); // sent at 1, its answer comes at 3
    engine.PressPtt();
    engine.ChooseWide(true);
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, (Commands{"08 0D", "08 0E", "46"}));
    EXPECT_EQ(lamps.back(), "idle");
}

TEST_F(TestEngineTest, AReleaseThatTheRadioMissedGoesOutAgainBeforeTheNextCommand) {
    Open();
    engine.PressPtt();
    rig.clock.Advance(50);
    rig.TakeSent();
    rig.Spoil(rig.Replies() + 1, Fault::Drop);
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Retry);
    engine.PressPtt();
    rig.clock.Advance(50);
    Close();
    EXPECT_EQ(rig.sent, (Commands{"08 0E", "08 0E", "11 01", "45"}));
}

TEST_F(TestEngineTest, AnItemChosenWhileTheRadioSelectsAnotherIsNotTheOneThatIsTuned) {
    Open();
    rig.service.TuneItem = 9;
    engine.Tune();
    rig.clock.Advance(2);
    rig.service.TuneItem = 4;
    rig.clock.Advance(300);
    EXPECT_EQ(rig.sent, (Commands{"05", "06", "0D 0D"}));
    EXPECT_EQ(rig.service.TuneItem, 9);
}

TEST_F(TestEngineTest, WideAndNarrowAreSentAndRemembered) {
    Open();
    engine.ChooseWide(false);
    EXPECT_FALSE(rig.service.NarrowMode); // not before it is sent
    rig.clock.Advance(50);
    EXPECT_TRUE(rig.service.NarrowMode);
    engine.ChooseWide(true);
    rig.clock.Advance(50);
    EXPECT_FALSE(rig.service.NarrowMode);
    EXPECT_EQ(rig.sent, (Commands{"47", "46"}));
}

TEST_F(TestEngineTest, AKeyedTransmitterIsDroppedBeforeEveryOtherCommand) {
    const std::vector<std::pair<std::function<void()>, Commands>> commands{
        {[this] { engine.ChooseChannel(2); }, {"08 0E", "10 02", "06"}},
        {[this] { engine.ChooseSignalling(4); }, {"08 0E", "11 04"}},
        {[this] { engine.ChooseWide(true); }, {"08 0E", "46"}},
        {[this] { engine.ChooseWide(false); }, {"08 0E", "47"}},
    };
    Open();
    for (const auto& [choose, expected] : commands) {
        engine.PressPtt();
        rig.clock.Advance(50);
        EXPECT_EQ(lamps.back(), "transmit");
        rig.TakeSent();
        choose();
        rig.clock.Advance(200);
        EXPECT_EQ(rig.sent, expected);
        EXPECT_EQ(lamps.back(), "idle");
        EXPECT_FALSE(engine.IsPttOn());
    }
}

TEST_F(TestEngineTest, TuneReadsTheTuningDataSelectsTheItemAndClosesThePort) {
    Open();
    rig.service.TuneItem = 9;
    engine.Tune();
    rig.clock.Advance(300);
    EXPECT_EQ(rig.sent, (Commands{"05", "06", "0D 0D"}));
    EXPECT_EQ(events, std::vector<std::string>{"tune, port closed"});
    EXPECT_EQ(rig.service.Values.TestPointSquelchOpen, 101);
    EXPECT_EQ(rig.clock.Sleeps(), (std::vector{30, 30}));
}

TEST_F(TestEngineTest, AfterTuningTheNextCommandOpensThePortAgain) {
    Open();
    engine.Tune();
    rig.clock.Advance(300);
    rig.TakeSent();
    engine.PressPtt();
    rig.clock.Advance(50);
    EXPECT_EQ(rig.sent, Commands{"08 0D"});
}

TEST_F(TestEngineTest, ClosingSendsTheSignallingAndEndAndClosesThePort) {
    Open();
    engine.ChooseSignalling(5);
    rig.clock.Advance(50);
    rig.TakeSent();
    Close();
    EXPECT_EQ(rig.sent, (Commands{"11 05", "45"}));
    EXPECT_EQ(rig.times[1] - rig.times[0], 2 + 1 + 80);
    EXPECT_FALSE(rig.IsPortOpen());
    rig.clock.Advance(1000);
    EXPECT_EQ(rig.sent.size(), 2U);
    EXPECT_TRUE(rig.messages.Shown().empty());
}

TEST_F(TestEngineTest, ClosingWhileKeyedDropsTheTransmitterFirst) {
    Open();
    engine.PressPtt();
    rig.clock.Advance(50);
    rig.TakeSent();
    Close();
    EXPECT_EQ(rig.sent, (Commands{"08 0E", "11 01", "45"}));
}

TEST_F(TestEngineTest, ClosingDuringACommandWaitsForItsAnswer) {
    Open();
    engine.ChooseWide(false);
    rig.clock.Advance(2);
    Close();
    EXPECT_EQ(rig.sent, (Commands{"47", "11 01", "45"}));
}

TEST_F(TestEngineTest, ASilentCloseEndsWithThePromptAndCancel) {
    Open();
    rig.replies["11 01"] = "";
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Retry);
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
    Close();
    EXPECT_EQ(rig.sent, (Commands{"11 01", "11 01"}));
    EXPECT_EQ(events, std::vector<std::string>{"unload"});
    EXPECT_TRUE(rig.service.TestAborted);
    EXPECT_FALSE(rig.IsPortOpen());
}

TEST_F(TestEngineTest, AWrongAnswerToTheClosingSignallingPromptsAndRetryEndsIt) {
    Open();
    rig.Spoil(rig.Replies() + 1, Fault::Corrupt);
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Retry);
    Close();
    EXPECT_EQ(rig.sent, (Commands{"11 01", "11 01", "45"}));
}

TEST_F(TestEngineTest, ACommandThatIsAskedForWhileThePromptIsUpWaitsForTheAnswer) {
    Open();
    rig.replies["46"] = "15";
    rig.messages.Expect(ConnectionPrompt(), [this] {
        rig.TakeSent();
        engine.ChooseWide(false);
        engine.ChooseSignalling(3);
        rig.clock.Advance(1000);
        EXPECT_EQ(rig.sent, Commands{});
        return MessageAnswer::Retry;
    });
    engine.ChooseWide(true);
    rig.clock.Advance(3000);
    EXPECT_EQ(rig.sent, (Commands{"47", "11 03"}));
}

TEST_F(TestEngineTest, ACommandThatIsAskedForWhileThePromptOfAMissingPortIsUpWaitsForTheAnswer) {
    Open();
    rig.ports.Port("MSComm1")->Vanish();
    rig.messages.Expect(ConnectionPrompt(), [this] {
        engine.ChooseSignalling(4);
        rig.clock.Advance(1000);
        return MessageAnswer::Cancel;
    });
    engine.ChooseSignalling(3);
    rig.clock.Advance(1000);
    EXPECT_EQ(events, std::vector<std::string>{"unload"});
    EXPECT_EQ(closed, 1);
}

struct CommandCase {
    const char* name;
    void (*start)(TestEngine& engine);
    Commands commands;
};

struct FaultCase {
    const CommandCase* command;
    int reply; // of the command, from 1
    Fault fault;
};

void PrintTo(const FaultCase& value, std::ostream* out) {
    *out << value.command->name << ", reply " << value.reply << ", fault " << static_cast<int>(value.fault);
}

const CommandCase Cases[]{
    {"channel", [](TestEngine& engine) { engine.ChooseChannel(2); }, {"10 02", "06"}},
    {"signalling", [](TestEngine& engine) { engine.ChooseSignalling(3); }, {"11 03"}},
    {"ptt", [](TestEngine& engine) { engine.PressPtt(); }, {"08 0D"}},
    {"tune", [](TestEngine& engine) { engine.Tune(); }, {"05", "06", "12 0D"}},
    {"wide", [](TestEngine& engine) { engine.ChooseWide(true); }, {"46"}},
    {"narrow", [](TestEngine& engine) { engine.ChooseWide(false); }, {"47"}},
};

std::vector<FaultCase> AllFaults() {
    std::vector<FaultCase> cases;
    for (const CommandCase& command : Cases) {
        const int replies = static_cast<int>(command.commands.size());
        for (int reply = 1; reply <= replies; ++reply) {
            for (const Fault fault : {Fault::Drop, Fault::Cut, Fault::Late, Fault::Vanish}) {
                cases.push_back({&command, reply, fault});
            }
            // A record may hold any byte, and any byte acknowledges it: only lone acknowledgements can be wrong.
            if (replies == 1 || reply == 3) {
                cases.push_back({&command, reply, Fault::Corrupt});
            }
        }
    }
    return cases;
}

class TestCommandFaults : public TestEngineTest, public ::testing::WithParamInterface<FaultCase> {
protected:
    void Run(MessageAnswer answer) {
        Open();
        rig.Spoil(rig.Replies() + GetParam().reply, GetParam().fault);
        rig.messages.Expect(ConnectionPrompt(), [this, answer] {
            rig.ports.Present(1);
            return answer;
        });
        GetParam().command->start(engine);
        rig.clock.Advance(2000);
        EXPECT_EQ(rig.FaultsFired(), 1);
        EXPECT_EQ(rig.messages.Pending(), 0);
    }
};

TEST_P(TestCommandFaults, PromptAndRetryRepeatsTheCommandAndNotTheSession) {
    Run(MessageAnswer::Retry);
    const Commands& commands = GetParam().command->commands;
    Commands expected(commands.begin(), commands.begin() + GetParam().reply);
    expected.insert(expected.end(), commands.begin(), commands.end());
    EXPECT_EQ(rig.sent, expected);
}

TEST_P(TestCommandFaults, CancelClosesTheDialogWithoutAnEnd) {
    Run(MessageAnswer::Cancel);
    EXPECT_EQ(events.back(), "unload");
    EXPECT_TRUE(rig.service.TestAborted);
    EXPECT_EQ(static_cast<int>(rig.sent.size()), GetParam().reply);
    EXPECT_FALSE(rig.IsPortOpen());
}

INSTANTIATE_TEST_SUITE_P(EveryReply, TestCommandFaults, ::testing::ValuesIn(AllFaults()));

TEST_F(TestEngineTest, ASilentRadioPromptsTwoHundredMillisecondsBehindTheCommand) {
    Open();
    rig.replies["46"] = "";
    const std::int64_t prompted = rig.TimeOfPrompt([&] { engine.ChooseWide(true); });
    EXPECT_EQ(prompted - rig.times.front(), 200);
}

} // namespace
} // namespace zelvor
