#include <gtest/gtest.h>

#include "link/CloneFrames.h"
#include "link/EngineRig.h"

namespace zelvor {
namespace {

struct ModelCase {
    std::uint8_t radio6;
    std::uint8_t radio7;
    std::uint8_t image6;
    std::uint8_t image7;
    bool asks;
};

// Byte 6 and byte 7 of the radio's identity against image indexes 982 and 998.
constexpr ModelCase Cases[] = {
    {0x01, 0xF8, 0x01, 0xF8, false}, // both match
    {0x02, 0xF8, 0x01, 0xF8, true},  // byte 6 differs
    {0x01, 0xF9, 0x01, 0xF8, true},  // byte 7 differs
    {0x02, 0xF9, 0x01, 0xF8, true},  // both differ
    {0x01, 0x33, 0x01, 0x33, false}, // 0x33 on both sides
    {0x02, 0x33, 0x01, 0x33, true},  // 0x33 matches, byte 6 differs
    {0x01, 0x33, 0x01, 0xF8, false}, // the radio's 0x33 is accepted on byte 6 alone
    {0x02, 0x33, 0x01, 0xF8, true},  // but not with another byte 6
    {0x01, 0xF8, 0x01, 0x33, true},  // 0x33 in the image alone excuses nothing
};

class ModelCheck : public testing::TestWithParam<ModelCase> {};

TEST_P(ModelCheck, AsksExactlyWhereTold) {
    const ModelCase& c = GetParam();
    DataImage image;
    image.SetIndex(982, c.image6);
    image.SetIndex(998, c.image7);
    const Bytes identity{0x50, 0x34, 0x36, 0x31, 0x38, c.radio6, c.radio7, 0xFF};
    EXPECT_EQ(IsModelWrong(identity, image), c.asks);
}

TEST_P(ModelCheck, ShowsThePromptInTheWriteDirection) {
    const ModelCase& c = GetParam();
    EngineRig rig(Write);
    rig.document.Image.SetIndex(982, c.image6);
    rig.document.Image.SetIndex(998, c.image7);
    if (c.asks) {
        rig.messages.Expect(ModelPrompt(), MessageAnswer::Ok);
    }
    rig.ToIdentity();
    rig.Answer({0x50, 0x34, 0x36, 0x31, 0x38, c.radio6, c.radio7, 0xFF});
    rig.TakeSent();
    rig.Answer({0x06});
    EXPECT_EQ(rig.messages.Pending(), 0);
    EXPECT_EQ(rig.TakeSent(), "57 00 00 10 FF FF FF FF FF FF FF FF FF FF FF 00 FF FF 03 FF");
}

TEST_P(ModelCheck, NeverShowsThePromptInTheReadDirection) {
    const ModelCase& c = GetParam();
    EngineRig rig(Read);
    rig.document.Image.SetIndex(982, c.image6);
    rig.document.Image.SetIndex(998, c.image7);
    rig.ToIdentity();
    rig.Answer({0x50, 0x34, 0x36, 0x31, 0x38, c.radio6, c.radio7, 0xFF});
    rig.TakeSent();
    rig.Answer({0x06});
    EXPECT_EQ(rig.TakeSent(), "52 00 00 40");
    EXPECT_TRUE(rig.messages.Shown().empty());
}

INSTANTIATE_TEST_SUITE_P(TruthTable, ModelCheck, testing::ValuesIn(Cases));

TEST(ModelCheckOfEveryPair, AgreesWithTheThreeConditions) {
    constexpr std::uint8_t values[] = {0x00, 0x01, 0x33, 0xF8, 0xFF};
    for (const std::uint8_t id6 : values) {
        for (const std::uint8_t id7 : values) {
            for (const std::uint8_t i982 : values) {
                for (const std::uint8_t i998 : values) {
                    DataImage image;
                    image.SetIndex(982, i982);
                    image.SetIndex(998, i998);
                    const Bytes identity{0, 0, 0, 0, 0, id6, id7, 0};
                    const bool asks = (id6 != i982 || id7 != i998) && (id7 != 0x33 || id6 != i982);
                    EXPECT_EQ(IsModelWrong(identity, image), asks) << Hex(identity);
                }
            }
        }
    }
}

class RefusedModel : public testing::Test {
protected:
    RefusedModel() {
        rig.FillImageWithPattern();
        rig.ConnectRadio();
    }
    void Refuse() {
        rig.messages.Expect(ModelPrompt(), [this] {
            timersAtPrompt = rig.TimerState("ctrTimer") + " " + rig.TimerState("messageTimer");
            promptTime = rig.clock.TickCount();
            return MessageAnswer::Cancel;
        });
        rig.engine->Start();
        rig.clock.Advance(25);
    }

    EngineRig rig{Write};
    std::string timersAtPrompt;
    std::int64_t promptTime = 0;
};

TEST_F(RefusedModel, SendsEndAndNoData) {
    Refuse();
    rig.clock.Advance(500);
    const std::vector<std::string> expected{"50 52 4F 47 52 41 4D", "02", "06", "45"};
    EXPECT_EQ(rig.radio.Commands(), expected);
}

TEST_F(RefusedModel, LeavesTheImageUntouched) {
    Refuse();
    rig.clock.Advance(500);
    for (int address = 0; address < 1024; ++address) {
        EXPECT_EQ(rig.document.Image.At(address), PatternAt(address)) << address;
    }
}

TEST_F(RefusedModel, ShowsNoCompletionAndKeepsTheFlags) {
    rig.document.Priority.SetError(true);
    Refuse();
    rig.clock.Advance(500);
    EXPECT_EQ(rig.messages.Shown().size(), 1U);
    EXPECT_EQ(rig.Count("write completed"), 0);
    EXPECT_TRUE(rig.document.Priority.PriorityChannelError());
}

TEST_F(RefusedModel, HasBothTimersDisabledWhileThePromptIsUp) {
    Refuse();
    EXPECT_EQ(timersAtPrompt, "off off");
}

TEST_F(RefusedModel, ClosesThirtyAndAHundredMillisecondsAfterEnd) {
    Refuse();
    // The tick that sends End comes a millisecond behind the prompt.
    rig.clock.Advance(static_cast<int>(promptTime + 1 + 30 + 99 - rig.clock.TickCount()));
    EXPECT_EQ(rig.clock.Waits(), std::vector<int>{30});
    EXPECT_EQ(rig.Count("unload"), 0);
    EXPECT_EQ(rig.TimerState("messageTimer"), "100");
    EXPECT_TRUE(rig.engine->MayUnload());
    rig.clock.Advance(1);
    EXPECT_EQ(rig.Count("unload"), 1);
    EXPECT_FALSE(rig.Port().IsOpen());
}

TEST_F(RefusedModel, StillClosesWhenTheRadioAcknowledgesTheEndLate) {
    Refuse();
    rig.clock.Advance(20);
    rig.Port().Deliver({0x06});
    rig.clock.Advance(110);
    EXPECT_EQ(rig.Count("unload"), 1);
}

TEST_F(RefusedModel, MayBeClosedByTheUserInsideTheWait) {
    rig.messages.Expect(ModelPrompt(), MessageAnswer::Cancel);
    rig.engine->Start();
    rig.clock.At(35, [this] { rig.OnUnloadRequested(); });
    rig.clock.Advance(60);
    EXPECT_EQ(rig.clock.Waits(), std::vector<int>{30});
    EXPECT_EQ(rig.TimerState("messageTimer"), "off");
    rig.clock.Advance(1000);
    EXPECT_EQ(rig.Count("unload"), 1);
}

TEST(ModelPromptInTheOtherLanguage, HasItsOwnTexts) {
    EngineRig rig(Write);
    rig.UseLanguage(Language::Chinese);
    rig.messages.Expect(
        {"警告", "机型类型错误。是否改写？", MessageIcon::Exclamation, MessageButtons::OkCancel, MessageAnswer::Cancel},
        MessageAnswer::Cancel);
    rig.ConnectRadio();
    rig.engine->Start();
    rig.clock.Advance(500);
    EXPECT_EQ(rig.messages.Pending(), 0);
}

TEST(AcceptedModel, GoesOnToPacketOneOneMillisecondAfterOk) {
    EngineRig rig(Write);
    rig.messages.Expect(ModelPrompt(), MessageAnswer::Ok);
    rig.ToConfirmation();
    rig.TakeSent();
    rig.Port().Deliver({0x06});
    EXPECT_EQ(rig.TimerState("ctrTimer"), "1");
    EXPECT_EQ(rig.TimerState("messageTimer"), "off");
    EXPECT_EQ(rig.Link().CommState, 4);
    rig.clock.Advance(1);
    EXPECT_EQ(rig.TakeSent().substr(0, 11), "57 00 00 10");
}

TEST(AcceptedModel, DropsBytesThatArriveWhileThePromptIsUp) {
    EngineRig rig(Write);
    rig.messages.Expect(ModelPrompt(), [&rig] {
        rig.Port().Deliver({0x06, 0x06});
        rig.clock.Advance(5000);
        return MessageAnswer::Ok;
    });
    rig.ToConfirmation();
    rig.Answer({0x06});
    EXPECT_EQ(rig.Link().StepCount, 1);
    EXPECT_EQ(rig.Port().WaitingBytes(), 0);
}

} // namespace
} // namespace zelvor
