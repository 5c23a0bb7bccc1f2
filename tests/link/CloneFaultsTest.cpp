// Every reply of a session spoiled in every way, one by one.

#include <gtest/gtest.h>

#include "link/EngineRig.h"

namespace zelvor {
namespace {

constexpr int ReadReplies = 37;  // 3 and 17 pairs
constexpr int WriteReplies = 52; // 3 and 49

struct FaultCase {
    int direction;
    Fault fault;
    MessageAnswer answer;
    bool byteByByte;
    const char* name;
};

void PrintTo(const FaultCase& faultCase, std::ostream* out) {
    *out << faultCase.name;
}

class SpoiledReplies : public testing::TestWithParam<FaultCase> {
protected:
    [[nodiscard]] static int ReplyCount() { return GetParam().direction == Read ? ReadReplies : WriteReplies; }

    /// A first byte that is wrong goes unnoticed in an identity only.
    [[nodiscard]] static bool IsNoticed(int reply) { return reply != 2 || GetParam().fault != Fault::Corrupt; }

    /// Milliseconds from the spoiled reply's command to the prompt.
    [[nodiscard]] static int FailureDelay(int reply) {
        const bool fast = GetParam().fault == Fault::Corrupt && reply > 3;
        const int timeout = GetParam().direction == Read ? 500 : 200;
        return (fast ? ScriptedRadio::ReplyDelay + 3 : timeout) + 100;
    }

    static Message CompletedBox() { return GetParam().direction == Read ? ReadingCompleted() : WritingCompleted(); }

    static void Prepare(EngineRig& rig) {
        rig.UsePattern();
        if (GetParam().direction == Read) {
            rig.document.Image.Fill(0xEE);
        } else {
            rig.radio.Memory.fill(0xDD);
        }
        rig.radio.ByteByByte = GetParam().byteByByte;
        rig.ConnectRadio();
    }

    static void ExpectPrompt(EngineRig& rig, int reply) {
        rig.messages.Expect(ConnectionPrompt(), [&rig, reply] {
            if (!GetParam().byteByByte) {
                const int sent = 10 + (reply - 1) * 3;
                EXPECT_EQ(rig.clock.TickCount(), sent + FailureDelay(reply));
            }
            EXPECT_EQ(rig.TimerState("ctrTimer") + " " + rig.TimerState("messageTimer"), "off off");
            rig.clock.Advance(3000); // late bytes arrive behind the box
            EXPECT_EQ(rig.messages.Shown().size(), 1U);
            rig.ports.Present(1);
            return GetParam().answer;
        });
    }

    static void ExpectTransferred(const EngineRig& rig) {
        if (GetParam().direction == Read) {
            for (int address = 0; address < 1024; ++address) {
                EXPECT_EQ(rig.document.Image.At(address), PatternAt(address)) << address;
            }
        } else {
            EXPECT_EQ(rig.radio.Memory[0x335], PatternAt(0x335));
        }
        EXPECT_FALSE(rig.radio.IsProgramming());
    }
};

TEST_P(SpoiledReplies, PromptAndThenRetrySucceedsOrCancelClosesAndTheNextTransferWorks) {
    const bool retries = GetParam().answer == MessageAnswer::Retry;
    const char* completed = GetParam().direction == Read ? "read completed" : "write completed";
    for (int reply = 1; reply <= ReplyCount(); ++reply) {
        SCOPED_TRACE("reply " + std::to_string(reply));
        EngineRig rig(GetParam().direction);
        Prepare(rig);
        rig.radio.Spoil(reply, GetParam().fault);
        if (IsNoticed(reply)) {
            ExpectPrompt(rig, reply);
        }
        if (retries || !IsNoticed(reply)) {
            rig.messages.Expect(CompletedBox(), MessageAnswer::Ok);
        }
        rig.engine->Start();
        rig.clock.Advance(12000);

        ASSERT_EQ(rig.radio.FaultsFired(), 1);
        ASSERT_EQ(rig.messages.Pending(), 0);
        EXPECT_EQ(rig.Count("unload"), 1);
        EXPECT_EQ(rig.Count(completed), retries || !IsNoticed(reply) ? 1 : 0);
        EXPECT_FALSE(rig.Port().IsOpen());
        if (rig.Count(completed) == 1) {
            ExpectTransferred(rig);
        }

        rig.LoadAgain(GetParam().direction);
        rig.messages.Expect(CompletedBox(), MessageAnswer::Ok);
        rig.engine->Start();
        rig.clock.Advance(5000);
        ASSERT_EQ(rig.messages.Pending(), 0);
        EXPECT_EQ(rig.Count(completed), 1);
        ExpectTransferred(rig);
    }
}

constexpr MessageAnswer Retry = MessageAnswer::Retry;
constexpr MessageAnswer Cancel = MessageAnswer::Cancel;

INSTANTIATE_TEST_SUITE_P(Faults, SpoiledReplies,
                         testing::Values(FaultCase{Read, Fault::Drop, Retry, false, "ReadDropRetry"},
                                         FaultCase{Read, Fault::Drop, Cancel, false, "ReadDropCancel"},
                                         FaultCase{Read, Fault::Cut, Retry, false, "ReadCutRetry"},
                                         FaultCase{Read, Fault::Cut, Cancel, false, "ReadCutCancel"},
                                         FaultCase{Read, Fault::Corrupt, Retry, false, "ReadCorruptRetry"},
                                         FaultCase{Read, Fault::Corrupt, Cancel, false, "ReadCorruptCancel"},
                                         FaultCase{Read, Fault::Late, Retry, false, "ReadLateRetry"},
                                         FaultCase{Read, Fault::Late, Cancel, false, "ReadLateCancel"},
                                         FaultCase{Read, Fault::Vanish, Retry, false, "ReadVanishRetry"},
                                         FaultCase{Read, Fault::Vanish, Cancel, false, "ReadVanishCancel"},
                                         FaultCase{Read, Fault::Cut, Retry, true, "ReadCutRetryByteByByte"},
                                         FaultCase{Read, Fault::Corrupt, Retry, true, "ReadCorruptRetryByteByByte"},
                                         FaultCase{Read, Fault::Late, Cancel, true, "ReadLateCancelByteByByte"},
                                         FaultCase{Write, Fault::Drop, Retry, false, "WriteDropRetry"},
                                         FaultCase{Write, Fault::Drop, Cancel, false, "WriteDropCancel"},
                                         FaultCase{Write, Fault::Cut, Retry, false, "WriteCutRetry"},
                                         FaultCase{Write, Fault::Cut, Cancel, false, "WriteCutCancel"},
                                         FaultCase{Write, Fault::Corrupt, Retry, false, "WriteCorruptRetry"},
                                         FaultCase{Write, Fault::Corrupt, Cancel, false, "WriteCorruptCancel"},
                                         FaultCase{Write, Fault::Late, Retry, false, "WriteLateRetry"},
                                         FaultCase{Write, Fault::Late, Cancel, false, "WriteLateCancel"},
                                         FaultCase{Write, Fault::Vanish, Retry, false, "WriteVanishRetry"},
                                         FaultCase{Write, Fault::Vanish, Cancel, false, "WriteVanishCancel"},
                                         FaultCase{Write, Fault::Cut, Retry, true, "WriteCutRetryByteByByte"},
                                         FaultCase{Write, Fault::Late, Cancel, true, "WriteLateCancelByteByByte"}),
                         [](const auto& test) { return test.param.name; });

} // namespace
} // namespace zelvor
