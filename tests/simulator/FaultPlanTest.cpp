#include "simulator/FaultPlan.h"

#include <gtest/gtest.h>

namespace zelvor {
namespace {

using std::chrono::milliseconds;
using Bytes = std::vector<std::uint8_t>;

TEST(FaultWriting, EveryKindIsRead) {
    EXPECT_EQ(ParseFault("drop@17"), (Fault{FaultKind::Drop, 0, 17}));
    EXPECT_EQ(ParseFault("corrupt@17"), (Fault{FaultKind::Corrupt, 0, 17}));
    EXPECT_EQ(ParseFault("cut:5@17"), (Fault{FaultKind::Cut, 5, 17}));
    EXPECT_EQ(ParseFault("delay:300@17"), (Fault{FaultKind::Delay, 300, 17}));
    EXPECT_EQ(ParseFault("hang@17"), (Fault{FaultKind::Hang, 0, 17}));
    EXPECT_EQ(ParseFault("unplug@1"), (Fault{FaultKind::Unplug, 0, 1}));
}

TEST(FaultWriting, EveryKindIsWrittenAsItIsRead) {
    for (const char* text : {"drop@17", "corrupt@1", "cut:5@17", "delay:300@2", "hang@999999", "unplug@3"}) {
        const auto fault = ParseFault(text);
        ASSERT_TRUE(fault) << text;
        EXPECT_EQ(FaultText(*fault), text);
    }
}

TEST(FaultWriting, AnythingElseIsRefused) {
    for (const char* text : {"",           "@",         "drop",       "drop@",        "@17",
                             "drop@0",     "drop@-1",   "drop@+1",    "drop@x",       "drop@1x",
                             "drop@ 1",    "drop@1@2",  "drop:1@17",  "Drop@1",       "cut@17",
                             "cut:@17",    "cut:0@17",  "cut:-1@1",   "cut:5:5@1",    "delay@17",
                             "delay:x@17", "hang:1@17", "explode@17", "drop@1000000", "delay:99999999999999999999@1",
                             " drop@1"}) {
        EXPECT_FALSE(ParseFault(text)) << text;
    }
}

/// A plan with one fault at the second reply.
FaultPlan PlanAtTwo(FaultKind kind, int value = 0) {
    FaultPlan plan;
    plan.Add({kind, value, 2});
    return plan;
}

/// Passes three replies; the outcome of the second, after checks that the others came through whole.
FaultOutcome SecondOfThree(FaultPlan& plan) {
    const Bytes reply{0x57, 0x00, 0x40, 0x40, 0x01};
    EXPECT_EQ(plan.Pass(reply).bytes, reply);
    EXPECT_TRUE(plan.Fired().empty());
    FaultOutcome second = plan.Pass(reply);
    const FaultOutcome third = plan.Pass(reply);
    EXPECT_EQ(third.bytes, reply);
    EXPECT_TRUE(third.fired.empty());
    EXPECT_EQ(plan.ReplyCount(), 3);
    return second;
}

TEST(FaultPlan, DropLeavesNothing) {
    FaultPlan plan = PlanAtTwo(FaultKind::Drop);
    EXPECT_EQ(SecondOfThree(plan).bytes, Bytes{});
}

TEST(FaultPlan, CorruptChangesTheFirstByteOnly) {
    FaultPlan plan = PlanAtTwo(FaultKind::Corrupt);
    EXPECT_EQ(SecondOfThree(plan).bytes, (Bytes{0xA8, 0x00, 0x40, 0x40, 0x01}));
}

TEST(FaultPlan, CutSendsTheBeginning) {
    FaultPlan plan = PlanAtTwo(FaultKind::Cut, 3);
    EXPECT_EQ(SecondOfThree(plan).bytes, (Bytes{0x57, 0x00, 0x40}));
}

TEST(FaultPlan, DelayKeepsTheBytes) {
    FaultPlan plan = PlanAtTwo(FaultKind::Delay, 300);
    const FaultOutcome outcome = SecondOfThree(plan);
    EXPECT_EQ(outcome.bytes.size(), 5U);
    EXPECT_EQ(outcome.delay, milliseconds(300));
}

TEST(FaultPlan, HangAndUnplugLeaveNothingAndSaySo) {
    FaultPlan hanging = PlanAtTwo(FaultKind::Hang);
    const FaultOutcome hang = SecondOfThree(hanging);
    EXPECT_EQ(hang.bytes, Bytes{});
    EXPECT_TRUE(hang.hang);
    EXPECT_FALSE(hang.unplug);
    FaultPlan unplugging = PlanAtTwo(FaultKind::Unplug);
    const FaultOutcome unplug = SecondOfThree(unplugging);
    EXPECT_EQ(unplug.bytes, Bytes{});
    EXPECT_TRUE(unplug.unplug);
    EXPECT_FALSE(unplug.hang);
}

TEST(FaultPlan, EveryKindIsRecordedAsFired) {
    for (const FaultKind kind :
         {FaultKind::Drop, FaultKind::Corrupt, FaultKind::Cut, FaultKind::Delay, FaultKind::Hang, FaultKind::Unplug}) {
        FaultPlan plan = PlanAtTwo(kind, 3);
        const FaultOutcome outcome = SecondOfThree(plan);
        const std::vector<Fault> expected{{kind, 3, 2}};
        EXPECT_EQ(outcome.fired, expected);
        EXPECT_EQ(plan.Fired(), expected);
        EXPECT_TRUE(plan.Waiting().empty());
    }
}

TEST(FaultPlan, ACutBehindTheEndOfTheReplyDoesNotFire) {
    FaultPlan plan = PlanAtTwo(FaultKind::Cut, 5);
    EXPECT_EQ(SecondOfThree(plan).bytes.size(), 5U);
    EXPECT_TRUE(plan.Fired().empty());
    EXPECT_EQ(plan.Waiting().size(), 1U);
}

TEST(FaultPlan, SeveralFaultsMeetOneReplyInTheirOrder) {
    FaultPlan plan = PlanAtTwo(FaultKind::Delay, 50);
    plan.Add({FaultKind::Cut, 1, 2});
    plan.Add({FaultKind::Drop, 0, 9});
    const FaultOutcome outcome = SecondOfThree(plan);
    EXPECT_EQ(outcome.bytes, Bytes{0x57});
    EXPECT_EQ(outcome.delay, milliseconds(50));
    EXPECT_EQ(plan.Fired().size(), 2U);
    EXPECT_EQ(plan.Waiting(), (std::vector<Fault>{{FaultKind::Drop, 0, 9}}));
}

} // namespace
} // namespace zelvor
