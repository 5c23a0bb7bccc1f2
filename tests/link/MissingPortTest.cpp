// A transfer on a port that is not there, or goes, or comes back.

#include <gtest/gtest.h>

#include "link/EngineRig.h"

namespace zelvor {
namespace {

class MissingPort : public testing::TestWithParam<int> {
protected:
    EngineRig rig{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Directions, MissingPort, testing::Values(Read, Write),
                         [](const auto& test) { return test.param == Read ? "Reading" : "Writing"; });

TEST_P(MissingPort, AtStartPromptsAtOnce) {
    rig.ports.Missing(1);
    const PromptWatch watch(rig, MessageAnswer::Cancel);
    rig.engine->Start();
    rig.clock.Advance(3);
    EXPECT_EQ(watch.time, 3 + 100);
    EXPECT_FALSE(watch.portOpen);
    EXPECT_EQ(rig.events.back(), "unload");
    EXPECT_TRUE(rig.Port().Sent().empty());
    rig.clock.Advance(10000);
    EXPECT_EQ(rig.Count("unload"), 1);
}

TEST_P(MissingPort, IsTriedOnceMoreRightBeforeThePrompt) {
    rig.ports.Missing(1);
    rig.engine->Start();
    rig.ports.Present(1);
    const PromptWatch watch(rig, MessageAnswer::Cancel);
    rig.clock.Advance(3);
    EXPECT_TRUE(watch.portOpen);
}

TEST_P(MissingPort, HeldByAnotherProgramPromptsAtOnce) {
    rig.ports.InUse(1);
    const PromptWatch watch(rig, MessageAnswer::Cancel);
    rig.engine->Start();
    rig.clock.Advance(3);
    EXPECT_EQ(watch.time, 3 + 100);
}

TEST_P(MissingPort, PromptsAgainAfterARetryThatFindsNone) {
    rig.ports.Missing(1);
    const PromptWatch first(rig, MessageAnswer::Retry);
    const PromptWatch second(rig, MessageAnswer::Cancel);
    rig.engine->Start();
    rig.clock.Advance(5000);
    EXPECT_EQ(second.time, first.time + 1700 + 10 + 3 + 100);
    EXPECT_EQ(rig.Count("unload"), 1);
}

TEST_P(MissingPort, IsOpenedByARetryOnceItIsThere) {
    rig.UsePattern();
    rig.ConnectRadio();
    rig.ports.Missing(1);
    rig.messages.Expect(ConnectionPrompt(), [this] {
        rig.ports.Present(1);
        return MessageAnswer::Retry;
    });
    rig.messages.Expect(GetParam() == Read ? ReadingCompleted() : WritingCompleted(), MessageAnswer::Ok);
    rig.engine->Start();
    rig.clock.Advance(5000);
    EXPECT_EQ(rig.Count(GetParam() == Read ? "read completed" : "write completed"), 1);
    EXPECT_EQ(rig.Port().Settings(), "9600,N,8,2");
}

TEST_P(MissingPort, AtASendTickPromptsAtOnce) {
    rig.ToEntry();
    rig.Port().Deliver({0x06});
    rig.Port().Vanish(); // between the reply and the tick that follows it
    const std::int64_t vanished = rig.clock.TickCount();
    const PromptWatch watch(rig, MessageAnswer::Cancel);
    rig.clock.Advance(4);
    EXPECT_EQ(watch.time, vanished + 1 + 3 + 100);
    EXPECT_EQ(rig.Count("unload"), 1);
}

TEST_P(MissingPort, IsOpenedAgainByTheSendTickWhereItCameBack) {
    rig.ToEntry();
    rig.Port().Deliver({0x06});
    rig.Port().Vanish();
    rig.ports.Present(1);
    rig.TakeSent();
    rig.clock.Advance(1);
    EXPECT_EQ(rig.TakeSent(), "02");
}

TEST_P(MissingPort, OpenedForThePromptIsClosedByTheRetryAndOpenedAnewByItsFirstTick) {
    rig.ToEntry();
    rig.Port().Vanish();
    rig.ports.Present(1);
    rig.messages.Expect(ConnectionPrompt(), [this] {
        EXPECT_TRUE(rig.Port().IsOpen());
        rig.Port().ClearLog();
        return MessageAnswer::Retry;
    });
    rig.clock.Advance(500);
    EXPECT_EQ(rig.Port().Log(), (std::vector<std::string>{"close", "clear input", "clear output"}));
    EXPECT_FALSE(rig.Port().IsOpen());
    rig.Port().ClearLog();
    rig.clock.Advance(10);
    EXPECT_EQ(rig.Port().Log(), (std::vector<std::string>{"number 1", "settings 9600,N,8,2", "open", "threshold 1",
                                                          "send 50 52 4F 47 52 41 4D"}));
}

TEST_P(MissingPort, BroughtBackBehindThePromptTakesTheEndOfACancel) {
    rig.ToEntry();
    rig.Port().Vanish();
    rig.TakeSent();
    rig.messages.Expect(ConnectionPrompt(), [this] {
        rig.ports.Present(1);
        return MessageAnswer::Cancel;
    });
    rig.clock.Advance(500);
    EXPECT_EQ(rig.TakeSent(), "50 52 4F 47 52 41 4D"); // End met a closed port, the repeated command opened it
    EXPECT_FALSE(rig.Port().IsOpen());
}

} // namespace
} // namespace zelvor
