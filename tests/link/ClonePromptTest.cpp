// The connection prompt: when it comes, Retry, Cancel.

#include <algorithm>
#include <gtest/gtest.h>

#include "link/EngineRig.h"

namespace zelvor {
namespace {

struct SilentPlace {
    int direction;
    void (EngineRig::*reach)();
    const char* name;
};

class SilentRadio : public testing::TestWithParam<SilentPlace> {};

INSTANTIATE_TEST_SUITE_P(States, SilentRadio,
                         testing::Values(SilentPlace{Read, &EngineRig::ToEntry, "ReadEntry"},
                                         SilentPlace{Read, &EngineRig::ToIdentity, "ReadIdentity"},
                                         SilentPlace{Read, &EngineRig::ToConfirmation, "ReadConfirmation"},
                                         SilentPlace{Read, &EngineRig::ToData, "ReadBlock"},
                                         SilentPlace{Write, &EngineRig::ToEntry, "WriteEntry"},
                                         SilentPlace{Write, &EngineRig::ToIdentity, "WriteIdentity"},
                                         SilentPlace{Write, &EngineRig::ToConfirmation, "WriteConfirmation"},
                                         SilentPlace{Write, &EngineRig::ToData, "WritePacket"}),
                         [](const auto& test) { return test.param.name; });

TEST_P(SilentRadio, PromptsAtTheTimeoutAndAHundredMillisecondsOfPause) {
    EngineRig rig(GetParam().direction);
    (rig.*GetParam().reach)();
    const std::int64_t sent = rig.clock.TickCount();
    const int timeout = GetParam().direction == Read ? 500 : 200;
    rig.clock.Advance(timeout - 1);
    EXPECT_TRUE(rig.messages.Shown().empty());
    EXPECT_TRUE(rig.clock.Sleeps().empty());
    const PromptWatch watch(rig, MessageAnswer::Cancel);
    rig.clock.Advance(1);
    EXPECT_EQ(watch.time, sent + timeout + 100);
    EXPECT_EQ(watch.timers, "off off");
    EXPECT_EQ(rig.clock.Sleeps(), std::vector<int>{100});
}

TEST_P(SilentRadio, TheStateTellsThePromptWhileItIsUpAndThePauseBehindARetry) {
    EngineRig rig(GetParam().direction);
    (rig.*GetParam().reach)();
    std::vector<std::string> told;
    rig.WhenStandingStill = [&] {
        const auto& state = rig.engine->State();
        told.push_back(std::string(state.Prompting ? "prompting" : "") + (state.Pausing ? "pausing" : ""));
    };
    rig.messages.Expect(ConnectionPrompt(), [&] {
        EXPECT_TRUE(rig.engine->State().Prompting);
        return MessageAnswer::Retry;
    });
    rig.clock.Advance(500);
    EXPECT_EQ(told, (std::vector<std::string>{"prompting", "pausing"}));
    EXPECT_FALSE(rig.engine->State().Prompting);
    EXPECT_FALSE(rig.engine->State().Pausing);
}

TEST_P(SilentRadio, RetryStartsAgainFromEntryWithNoEndFirst) {
    EngineRig rig(GetParam().direction);
    (rig.*GetParam().reach)();
    rig.TakeSent();
    rig.Port().ClearLog();
    const PromptWatch watch(rig, MessageAnswer::Retry);
    rig.clock.Advance(500);
    const std::vector<std::string> expected{"clear input", "clear output"};
    EXPECT_EQ(rig.Port().Log(), expected);
    EXPECT_EQ(rig.clock.Sleeps(), (std::vector<int>{100, 1700}));
    rig.clock.Advance(static_cast<int>(watch.time + 1700 + 9 - rig.clock.TickCount()));
    EXPECT_EQ(rig.TakeSent(), "");
    rig.clock.Advance(1);
    EXPECT_EQ(rig.TakeSent(), "50 52 4F 47 52 41 4D");
    EXPECT_EQ(rig.Link().StepCount, 1);
    EXPECT_EQ(rig.Link().AddrHigh, 0);
    EXPECT_EQ(rig.Link().AddrLow, 0);
    EXPECT_EQ(rig.engine->Progress(), 0);
    EXPECT_FALSE(rig.engine->MayUnload());
}

TEST_P(SilentRadio, CancelSendsEndAndTheCurrentCommandOnceMore) {
    EngineRig rig(GetParam().direction);
    (rig.*GetParam().reach)();
    const std::string command = Hex(rig.Link().TxBuffer);
    rig.TakeSent();
    const PromptWatch watch(rig, MessageAnswer::Cancel);
    rig.clock.Advance(500);
    EXPECT_EQ(rig.TakeSent(), "45 " + command);
    EXPECT_EQ(rig.clock.Waits(), std::vector<int>{30});
    EXPECT_EQ(rig.events[rig.events.size() - 2], "buttons on");
    EXPECT_EQ(rig.events.back(), "unload");
    EXPECT_FALSE(rig.Port().IsOpen());
    EXPECT_EQ(rig.TimerState("ctrTimer") + " " + rig.TimerState("messageTimer"), "off off");
    rig.clock.Advance(10000);
    EXPECT_EQ(rig.Count("unload"), 1);
}

TEST_P(SilentRadio, CancelSendsTheCommandAMillisecondBehindEnd) {
    EngineRig rig(GetParam().direction);
    (rig.*GetParam().reach)();
    std::vector<std::int64_t> sends;
    rig.Port().OnSend = [&](std::span<const std::uint8_t>) { sends.push_back(rig.clock.TickCount()); };
    const PromptWatch watch(rig, MessageAnswer::Cancel);
    rig.clock.Advance(500);
    EXPECT_EQ(sends, (std::vector<std::int64_t>{watch.time, watch.time + 1}));
}

TEST_P(SilentRadio, MayNotBeClosedBeforeTheAnswer) {
    EngineRig rig(GetParam().direction);
    (rig.*GetParam().reach)();
    rig.messages.Expect(ConnectionPrompt(), [&rig] {
        EXPECT_FALSE(rig.engine->MayUnload());
        rig.engine->Cancel();
        EXPECT_EQ(rig.Count("unload"), 0);
        return MessageAnswer::Cancel;
    });
    rig.clock.Advance(500);
    EXPECT_TRUE(rig.engine->MayUnload());
    EXPECT_FALSE(rig.engine->State().CancelPressed);
}

TEST(ConnectionPromptText, IsChineseWhereTheLanguageIs) {
    EngineRig rig(Read);
    rig.UseLanguage(Language::Chinese);
    rig.messages.Expect({"错误", "检查所有连接及通信端口设置。", MessageIcon::Critical, MessageButtons::RetryCancel,
                         MessageAnswer::Retry},
                        MessageAnswer::Cancel);
    rig.ToEntry();
    rig.clock.Advance(500);
    EXPECT_EQ(rig.messages.Pending(), 0);
}

TEST(FastFailure, PromptsThreeMillisecondsAfterABadBlock) {
    EngineRig rig(Read);
    rig.ToData();
    rig.Port().Deliver(Bytes(68, 0x00));
    const std::int64_t failed = rig.clock.TickCount();
    const PromptWatch watch(rig, MessageAnswer::Cancel);
    rig.clock.Advance(2);
    EXPECT_EQ(watch.time, -1);
    rig.clock.Advance(1);
    EXPECT_EQ(watch.time, failed + 3 + 100);
}

TEST(FastFailure, PromptsThreeMillisecondsAfterABadAcknowledgementOfABlock) {
    EngineRig rig(Read);
    rig.ToData();
    rig.Answer(BlockReply(1));
    rig.Port().Deliver({0x07});
    const std::int64_t failed = rig.clock.TickCount();
    const PromptWatch watch(rig, MessageAnswer::Cancel);
    rig.clock.Advance(3);
    EXPECT_EQ(watch.time, failed + 3 + 100);
}

TEST(FastFailure, PromptsThreeMillisecondsAfterABadAcknowledgementOfAPacket) {
    EngineRig rig(Write);
    rig.ToData();
    rig.Port().Deliver({0x07});
    const std::int64_t failed = rig.clock.TickCount();
    const PromptWatch watch(rig, MessageAnswer::Cancel);
    rig.clock.Advance(3);
    EXPECT_EQ(watch.time, failed + 3 + 100);
}

TEST(CancelAfterABadAcknowledgement, RepeatsTheCommandOfTheStepMovedOnTo) {
    EngineRig rig(Write);
    rig.ToData();
    rig.Port().Deliver({0x07});
    rig.TakeSent();
    const PromptWatch watch(rig, MessageAnswer::Cancel);
    rig.clock.Advance(3);
    EXPECT_EQ(rig.TakeSent().substr(0, 14), "45 57 00 10 10");
}

TEST(CancelAfterABadAcknowledgement, OfTheLastPacketRepeatsAHeadAndZeros) {
    EngineRig rig(Write);
    rig.ToData();
    rig.AnswerUntilStep(49);
    rig.Port().Deliver({0x07});
    rig.TakeSent();
    const PromptWatch watch(rig, MessageAnswer::Cancel);
    rig.clock.Advance(3);
    EXPECT_EQ(rig.TakeSent(), "45 57 03 40 10 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
    EXPECT_EQ(rig.Count("write completed"), 0);
}

TEST(CancelAtThePrompt, FollowsUpNoReplyToTheRepeatedCommand) {
    EngineRig rig(Write);
    rig.radio.Spoil(1, Fault::Drop);
    rig.ConnectRadio();
    const PromptWatch watch(rig, MessageAnswer::Cancel);
    rig.engine->Start();
    rig.clock.Advance(1000);
    EXPECT_EQ(rig.radio.FaultsFired(), 1);
    EXPECT_EQ(rig.radio.Replies(), 2); // the repeated Entry was answered
    const std::vector<std::string> expected{"50 52 4F 47 52 41 4D", "45", "50 52 4F 47 52 41 4D"};
    EXPECT_EQ(rig.radio.Commands(), expected);
    EXPECT_EQ(rig.Count("unload"), 1);
}

TEST(BytesBehindThePrompt, AreNotLookedAtAndAreGoneAfterRetry) {
    EngineRig rig(Read);
    rig.ToEntry();
    rig.messages.Expect(ConnectionPrompt(), [&rig] {
        rig.Port().Deliver({0x06});
        rig.clock.Advance(5000);
        EXPECT_EQ(rig.Link().CommState, 1);
        return MessageAnswer::Retry;
    });
    rig.clock.Advance(500);
    EXPECT_EQ(rig.Port().WaitingBytes(), 0);
    rig.TakeSent();
    rig.clock.Advance(300);
    EXPECT_EQ(rig.TakeSent(), "50 52 4F 47 52 41 4D");
    EXPECT_EQ(rig.Link().CommState, 1);
}

TEST(RetryDuringAWrite, RebuildsPacketOne) {
    EngineRig rig(Write);
    rig.UsePattern();
    rig.radio.Spoil(3 + 20, Fault::Corrupt);
    rig.ConnectRadio();
    rig.messages.Expect(ConnectionPrompt(), [&rig] {
        EXPECT_EQ(rig.Link().StepCount, 21);
        rig.radio.ClearCommands();
        rig.Port().ClearLog();
        return MessageAnswer::Retry;
    });
    rig.messages.Expect(WritingCompleted(), MessageAnswer::Ok);
    rig.engine->Start();
    rig.clock.Advance(5000);
    EXPECT_EQ(rig.radio.FaultsFired(), 1);
    ASSERT_EQ(rig.radio.Commands().size(), 53U);
    EXPECT_EQ(rig.radio.Commands()[0], "50 52 4F 47 52 41 4D");
    EXPECT_EQ(rig.radio.Commands()[3], "57 00 00 10 FF FF FF FF FF FF FF FF FF FF FF 00 FF FF 03 FF");
    EXPECT_EQ(std::count(rig.Port().Log().begin(), rig.Port().Log().end(), "open"), 0) << "the port stays open";
    EXPECT_EQ(rig.Count("progress 0"), 1);
}

TEST(Retry, IsUnlimited) {
    EngineRig rig(Read);
    for (int i = 0; i < 20; ++i) {
        rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Retry);
    }
    rig.engine->Start();
    rig.clock.Advance(10 + 20 * (500 + 100 + 1700 + 10));
    EXPECT_EQ(rig.messages.Pending(), 0);
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
    rig.clock.Advance(3000);
    EXPECT_EQ(rig.Count("unload"), 1);
}

TEST(FailedRead, KeepsTheBlocksThatArrivedAndDecodesNothing) {
    EngineRig rig(Read);
    rig.UsePattern();
    rig.document.Image.Fill(0xEE);
    rig.radio.Spoil(3 + 2 * 3 + 1, Fault::Drop); // the fourth block
    rig.ConnectRadio();
    const PromptWatch watch(rig, MessageAnswer::Cancel);
    rig.engine->Start();
    rig.clock.Advance(2000);
    EXPECT_EQ(rig.radio.FaultsFired(), 1);
    for (int address = 0; address < 192; ++address) {
        EXPECT_EQ(rig.document.Image.At(address), PatternAt(address)) << address;
    }
    EXPECT_EQ(rig.document.Image.At(192), 0xEE);
    EXPECT_EQ(rig.Count("read completed"), 0);
}

TEST(CancelButton, BeforeOkUnloadsAndSaysSo) {
    EngineRig rig(Read);
    rig.engine->Cancel();
    EXPECT_EQ(rig.events, std::vector<std::string>{"unload cancelled"});
    EXPECT_FALSE(rig.engine->State().CancelPressed);
}

TEST(AnUnloadedEngine, IsDeafToEverything) {
    EngineRig rig(Read);
    rig.engine->Unload();
    rig.engine->Start();
    rig.Link().CommState = 4;
    rig.engine->OnSendTimer();
    rig.engine->OnReceive(ReceiveReason::DataReceived);
    rig.engine->OnTimeout();
    rig.clock.Advance(5000);
    EXPECT_TRUE(rig.Port().Sent().empty());
    EXPECT_TRUE(rig.events.empty());
}

} // namespace
} // namespace zelvor
