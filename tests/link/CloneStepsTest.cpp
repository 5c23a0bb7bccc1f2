// Every row of the send and receive table by hand: what is sent, the thresholds, the timers, good and bad replies.

#include <gtest/gtest.h>

#include "link/EngineRig.h"

namespace zelvor {
namespace {

/// The last two entries of the port's log: whether the threshold came before or after the command.
std::string LastTwo(EngineRig& rig) {
    const std::vector<std::string>& log = rig.Port().Log();
    return log[log.size() - 2] + ", " + log[log.size() - 1];
}

std::string Timers(const EngineRig& rig) {
    return rig.TimerState("ctrTimer") + " " + rig.TimerState("messageTimer");
}

class CloneSteps : public testing::TestWithParam<int> {
protected:
    [[nodiscard]] std::string Timeout() const { return GetParam() == Read ? "500" : "200"; }

    EngineRig rig{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Directions, CloneSteps, testing::Values(Read, Write),
                         [](const auto& test) { return test.param == Read ? "Reading" : "Writing"; });

TEST_P(CloneSteps, StartSendsNothingBeforeTenMilliseconds) {
    rig.engine->Start();
    EXPECT_EQ(Timers(rig), "10 off");
    EXPECT_EQ(rig.Link().CommState, 1);
    EXPECT_EQ(rig.Link().StepCount, 1);
    EXPECT_TRUE(rig.engine->State().Running);
    EXPECT_FALSE(rig.engine->MayUnload());
    EXPECT_EQ(rig.events, std::vector<std::string>{"buttons off"});
    rig.clock.Advance(9);
    EXPECT_TRUE(rig.Port().Sent().empty());
    rig.clock.Advance(1);
    EXPECT_EQ(Hex(rig.Port().Sent()), "50 52 4F 47 52 41 4D");
}

TEST_P(CloneSteps, ASecondStartWhileRunningDoesNothing) {
    rig.ToIdentity();
    rig.TakeSent();
    rig.engine->Start();
    rig.clock.Advance(50);
    EXPECT_EQ(rig.TakeSent(), "");
    EXPECT_EQ(rig.Link().CommState, 2);
}

TEST_P(CloneSteps, StateOneSendsEntryAndWaits) {
    rig.ToEntry();
    EXPECT_EQ(LastTwo(rig), "threshold 1, send 50 52 4F 47 52 41 4D");
    EXPECT_EQ(Timers(rig), "off " + Timeout());
    EXPECT_EQ(rig.Link().SentState, 1);
    EXPECT_EQ(Hex(rig.Link().TxBuffer), "50 52 4F 47 52 41 4D");
}

TEST_P(CloneSteps, StateOneGoodReplyLeadsToStateTwoInOneMillisecond) {
    rig.ToEntry();
    rig.Port().Deliver({0x06});
    EXPECT_EQ(rig.Port().ReadLength(), 1);
    EXPECT_EQ(Timers(rig), "1 off");
    EXPECT_EQ(rig.Link().CommState, 2);
}

TEST_P(CloneSteps, StateOneBadReplyLeavesTheTimeoutRunning) {
    rig.ToEntry();
    rig.Answer({0x15});
    EXPECT_EQ(Timers(rig), "off " + Timeout());
    EXPECT_EQ(rig.Link().CommState, 1);
    rig.Answer({0x06}); // a good one may still follow
    EXPECT_EQ(rig.Link().CommState, 2);
}

TEST_P(CloneSteps, StateTwoAsksForTheIdentity) {
    rig.ToIdentity();
    EXPECT_EQ(LastTwo(rig), "send 02, threshold 1");
    EXPECT_EQ(Timers(rig), "off " + Timeout());
}

TEST_P(CloneSteps, StateTwoEightBytesLeadToStateThree) {
    rig.ToIdentity();
    rig.Port().Deliver(IdentityReply());
    EXPECT_EQ(rig.Port().ReadLength(), 8);
    EXPECT_EQ(rig.engine->State().RadioIdentity, IdentityReply());
    EXPECT_EQ(Timers(rig), "1 off");
    EXPECT_EQ(rig.Link().CommState, 3);
}

TEST_P(CloneSteps, StateTwoWaitsForTheRestOfAnIdentityInPieces) {
    rig.ToIdentity();
    rig.Answer({0x50, 0x34, 0x36});
    rig.clock.Advance(60);
    rig.Answer({0x31, 0x38, 0x01, 0xF8});
    EXPECT_EQ(rig.Link().CommState, 2);
    EXPECT_EQ(Timers(rig), "off " + Timeout());
    rig.clock.Advance(60);
    rig.Port().Deliver({0xFF});
    EXPECT_EQ(rig.Link().CommState, 3);
    EXPECT_EQ(rig.engine->State().RadioIdentity, IdentityReply());
}

TEST_P(CloneSteps, StateTwoShortIdentityStaysForTheTimeoutToDecide) {
    rig.ToIdentity();
    rig.Answer({0x50, 0x34, 0x36, 0x31, 0x38, 0x01, 0xF8});
    EXPECT_EQ(rig.Link().CommState, 2);
    EXPECT_EQ(Timers(rig), "off " + Timeout());
    EXPECT_EQ(rig.engine->State().RadioIdentity.size(), 7U);
}

TEST_P(CloneSteps, StateTwoMoreThanEightBytesInPiecesAreNoIdentity) {
    rig.ToIdentity();
    rig.Answer({0x50, 0x34, 0x36, 0x31, 0x38});
    rig.Answer({0x50, 0x34, 0x36, 0x31, 0x38});
    EXPECT_EQ(rig.Link().CommState, 2);
    EXPECT_EQ(Timers(rig), "off " + Timeout());
}

TEST_P(CloneSteps, StateThreeAcknowledges) {
    rig.ToConfirmation();
    EXPECT_EQ(LastTwo(rig), "send 06, threshold 1");
    EXPECT_EQ(Timers(rig), "off " + Timeout());
}

TEST_P(CloneSteps, StateThreeGoodReplyLeadsToStateFour) {
    rig.document.Image.Set(0x1BD, 0x01);
    rig.document.Image.Set(0x1BE, 0xF8);
    rig.ToConfirmation();
    rig.Port().Deliver({0x06});
    EXPECT_EQ(rig.Port().ReadLength(), 1);
    EXPECT_EQ(Timers(rig), "1 off");
    EXPECT_EQ(rig.Link().CommState, 4);
}

TEST_P(CloneSteps, StateThreeBadReplyLeavesTheTimeoutRunning) {
    rig.ToConfirmation();
    rig.Answer({0x07});
    EXPECT_EQ(Timers(rig), "off " + Timeout());
    EXPECT_EQ(rig.Link().CommState, 3);
}

TEST_P(CloneSteps, ATickDoesNothingWhileTheCommandIsSent) {
    rig.ToEntry();
    rig.TakeSent();
    rig.engine->OnSendTimer();
    EXPECT_EQ(rig.TakeSent(), "");
    EXPECT_EQ(Timers(rig), "off " + Timeout());
}

TEST_P(CloneSteps, TheTimeoutStartsAnewWithEachSend) {
    const int almost = GetParam() == Read ? 490 : 190;
    rig.ToEntry();
    rig.clock.Advance(almost);
    rig.Answer({0x06});
    rig.clock.Advance(almost);
    rig.Answer(IdentityReply());
    rig.clock.Advance(almost);
    EXPECT_EQ(rig.Link().CommState, 3);
    EXPECT_TRUE(rig.messages.Shown().empty());
}

TEST_P(CloneSteps, OtherReasonsOfTheReceiveEventAreIgnored) {
    rig.ToEntry();
    rig.Port().SetReceiveThreshold(0);
    rig.Port().Deliver({0x06});
    rig.engine->OnReceive(ReceiveReason::Error);
    EXPECT_EQ(rig.Link().CommState, 1);
    rig.engine->OnReceive(ReceiveReason::DataReceived);
    EXPECT_EQ(rig.Link().CommState, 2);
}

TEST(CloneStepsReading, TheIdentityGoesToTheImageAtOnce) {
    EngineRig rig(Read);
    rig.document.Image.Fill(0xEE);
    rig.ToIdentity();
    rig.Port().Deliver({1, 2, 3, 4, 5, 0xA6, 0xA7, 8});
    EXPECT_EQ(rig.document.Image.AtIndex(982), 0xA6);
    EXPECT_EQ(rig.document.Image.AtIndex(998), 0xA7);
    int changed = 0;
    for (int index = 0; index < 1024; ++index) {
        changed += rig.document.Image.AtIndex(index) != 0xEE;
    }
    EXPECT_EQ(changed, 2);
}

TEST(CloneStepsReading, BlockSevenOverwritesTheIdentityInTheImage) {
    EngineRig rig(Read);
    rig.ToData();
    rig.AnswerUntilStep(7);
    EXPECT_EQ(rig.document.Image.At(0x1BD), 0x01);
    rig.AnswerUntilStep(9);
    EXPECT_EQ(rig.document.Image.At(0x1BD), PatternAt(0x1BD));
    EXPECT_EQ(rig.document.Image.At(0x1BE), PatternAt(0x1BE));
}

TEST(CloneStepsReading, StateFourAsksForABlockWithAThresholdOfItsReply) {
    EngineRig rig(Read);
    rig.ToData();
    EXPECT_EQ(LastTwo(rig), "threshold 68, send 52 00 00 40");
    EXPECT_EQ(Timers(rig), "off 500");
    EXPECT_EQ(Hex(rig.Link().TxBuffer), "52 00 00 40");
}

TEST(CloneStepsReading, StateFourGoodReplyLeadsToStateFive) {
    EngineRig rig(Read);
    rig.ToData();
    rig.Port().Deliver(BlockReply(1));
    EXPECT_EQ(rig.Port().ReadLength(), 68);
    EXPECT_EQ(Timers(rig), "1 off");
    EXPECT_EQ(rig.Link().CommState, 5);
    EXPECT_EQ(rig.Link().StepCount, 1);
    EXPECT_EQ(rig.engine->Progress(), 0);
}

TEST(CloneStepsReading, StateFourBadReplyHasChangedTheImageAndFailsInThreeMilliseconds) {
    EngineRig rig(Read);
    rig.document.Image.Fill(0xEE);
    rig.ToData();
    Bytes reply = BlockReply(1);
    reply[0] = 0x56;
    rig.Port().Deliver(reply);
    EXPECT_EQ(Timers(rig), "off 3");
    EXPECT_EQ(rig.Link().CommState, 4);
    for (int address = 0; address < 64; ++address) {
        EXPECT_EQ(rig.document.Image.At(address), PatternAt(address)) << address;
    }
}

TEST(CloneStepsReading, TheRepeatedBlockIsThrownAwayAfterTheTestOfItsFirstByte) {
    EngineRig rig(Read);
    rig.ToData();
    rig.AnswerUntilStep(17);
    const DataImage before = rig.document.Image;
    Bytes reply(68, 0xAB);
    rig.Port().Deliver(reply);
    EXPECT_EQ(Timers(rig), "off 3");
    EXPECT_EQ(rig.document.Image, before);
}

TEST(CloneStepsReading, StateFiveAcknowledgesTheBlock) {
    EngineRig rig(Read);
    rig.ToData();
    rig.Answer(BlockReply(1));
    EXPECT_EQ(LastTwo(rig), "threshold 1, send 06");
    EXPECT_EQ(Timers(rig), "off 500");
}

TEST(CloneStepsReading, StateFiveGoodReplyAsksForTheNextBlock) {
    EngineRig rig(Read);
    rig.ToData();
    rig.Answer(BlockReply(1));
    rig.Port().Deliver({0x06});
    EXPECT_EQ(rig.Port().ReadLength(), 1);
    EXPECT_EQ(Timers(rig), "1 off");
    EXPECT_EQ(rig.Link().CommState, 4);
    EXPECT_EQ(rig.Link().StepCount, 2);
    EXPECT_EQ(rig.Link().AddrLow, 0x40);
    EXPECT_EQ(rig.engine->Progress(), 1);
    rig.clock.Advance(1);
    EXPECT_EQ(LastTwo(rig), "threshold 68, send 52 00 40 40");
}

TEST(CloneStepsReading, StateFiveBadReplyFailsInThreeMillisecondsAndMovesNothing) {
    EngineRig rig(Read);
    rig.ToData();
    rig.Answer(BlockReply(1));
    rig.Port().Deliver({0x15});
    EXPECT_EQ(Timers(rig), "off 3");
    EXPECT_EQ(rig.Link().CommState, 5);
    EXPECT_EQ(rig.Link().StepCount, 1);
    EXPECT_EQ(rig.engine->Progress(), 0);
}

TEST(CloneStepsReading, TheLastAcknowledgementLeadsToEnd) {
    EngineRig rig(Read);
    rig.ToData();
    rig.AnswerUntilStep(17);
    rig.Answer(BlockReply(16));
    EXPECT_FALSE(rig.engine->State().ReadDone);
    rig.Port().Deliver({0x06});
    EXPECT_TRUE(rig.engine->State().ReadDone);
    EXPECT_EQ(rig.Link().CommState, 6);
    EXPECT_EQ(rig.Link().StepCount, 18);
    EXPECT_EQ(rig.Link().AddrHigh, 3);
    EXPECT_EQ(rig.Link().AddrLow, 0xC0);
    EXPECT_EQ(Timers(rig), "1 off");
    rig.TakeSent();
    rig.messages.Expect(ReadingCompleted(), MessageAnswer::Ok);
    rig.clock.Advance(1);
    EXPECT_EQ(rig.TakeSent(), "45");
}

TEST(CloneStepsReading, EndSetsItsThresholdBehindTheCommandAndStartsNoTimeout) {
    EngineRig rig(Read);
    rig.ToData();
    rig.AnswerUntilStep(17);
    rig.Answer(BlockReply(16));
    rig.messages.Expect(ReadingCompleted(), MessageAnswer::Ok);
    rig.clock.At(10, [&rig] {
        EXPECT_EQ(LastTwo(rig), "send 45, threshold 1");
        EXPECT_EQ(Timers(rig), "off off");
        EXPECT_EQ(rig.Link().CommState, 6);
    });
    rig.Answer({0x06});
    EXPECT_EQ(rig.messages.Pending(), 0);
}

TEST(CloneStepsReading, StateSixIgnoresWhateverAnswersEnd) {
    for (const std::uint8_t answer : {0x06, 0x15}) {
        EngineRig rig(Read);
        rig.ToData();
        rig.AnswerUntilStep(17);
        rig.Answer(BlockReply(16));
        rig.messages.Expect(ReadingCompleted(), MessageAnswer::Ok);
        rig.clock.At(10, [&rig, answer] {
            rig.Port().Deliver({answer});
            EXPECT_EQ(rig.Port().WaitingBytes(), 0);
            EXPECT_EQ(Timers(rig), "off off");
            EXPECT_EQ(rig.Link().CommState, 6);
        });
        rig.Answer({0x06});
        rig.clock.Advance(2);
        EXPECT_EQ(rig.Count("unload"), 1);
    }
}

TEST(CloneStepsWriting, StateFourSendsAPacketWithAThresholdOfOne) {
    EngineRig rig(Write);
    rig.ToData();
    EXPECT_EQ(LastTwo(rig), "threshold 1, send 57 00 00 10 FF FF FF FF FF FF FF FF FF FF FF 00 FF FF 03 FF");
    EXPECT_EQ(Timers(rig), "off 200");
    EXPECT_EQ(rig.Link().TxBuffer.size(), 20U);
}

TEST(CloneStepsWriting, StateFourGoodReplyKeepsTheStateAndForcesTheNextPacket) {
    EngineRig rig(Write);
    rig.ToData();
    rig.Port().Deliver({0x06});
    EXPECT_EQ(rig.Port().ReadLength(), 1);
    EXPECT_EQ(rig.Link().CommState, 4);
    EXPECT_EQ(rig.Link().SentState, 55);
    EXPECT_EQ(rig.Link().StepCount, 2);
    EXPECT_EQ(rig.Link().AddrLow, 0x10);
    EXPECT_EQ(rig.engine->Progress(), 1);
    EXPECT_EQ(Timers(rig), "1 off");
    rig.TakeSent();
    rig.clock.Advance(1);
    EXPECT_EQ(rig.TakeSent().substr(0, 11), "57 00 10 10");
}

TEST(CloneStepsWriting, StateFourBadReplyFailsFastWithStepAddressAndBarMovedOn) {
    EngineRig rig(Write);
    rig.ToData();
    rig.Port().Deliver({0x15});
    EXPECT_EQ(Timers(rig), "off 3");
    EXPECT_EQ(rig.Link().CommState, 4);
    EXPECT_EQ(rig.Link().SentState, 4);
    EXPECT_EQ(rig.Link().StepCount, 2);
    EXPECT_EQ(rig.Link().AddrLow, 0x10);
    EXPECT_EQ(rig.engine->Progress(), 1);
}

TEST(CloneStepsWriting, StepTwentyNineIsTheOnlyPacketOfTwelveBytes) {
    EngineRig rig(Write);
    rig.ToData();
    for (int step = 1; step <= 49; ++step) {
        rig.AnswerUntilStep(step);
        EXPECT_EQ(rig.Link().TxBuffer.size(), step == 29 ? 12U : 20U) << step;
    }
}

TEST(CloneStepsWriting, TheFortyNinthAcknowledgementLeadsToStateFive) {
    EngineRig rig(Write);
    rig.ToData();
    rig.AnswerUntilStep(49);
    rig.TakeSent();
    rig.Port().Deliver({0x06});
    EXPECT_EQ(rig.Link().CommState, 5);
    EXPECT_EQ(rig.Link().StepCount, 50);
    EXPECT_EQ(rig.engine->Progress(), 49);
    EXPECT_EQ(Timers(rig), "1 off");
    rig.messages.Expect(WritingCompleted(), MessageAnswer::Ok);
    rig.clock.At(1 + 10, [&rig] { EXPECT_EQ(LastTwo(rig), "threshold 1, send 45"); });
    rig.clock.Advance(1);
    EXPECT_EQ(rig.TakeSent(), "45");
}

} // namespace
} // namespace zelvor
