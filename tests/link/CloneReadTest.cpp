#include <gtest/gtest.h>

#include "link/EngineRig.h"

namespace zelvor {
namespace {

class CloneRead : public testing::Test {
protected:
    CloneRead() {
        rig.UsePattern();
        rig.document.Image.Fill(0xEE);
        rig.ConnectRadio();
    }
    void Run() {
        rig.messages.Expect(ReadingCompleted(), MessageAnswer::Ok);
        rig.engine->Start();
        rig.clock.Advance(1000);
    }

    EngineRig rig{Read};
};

TEST_F(CloneRead, HasThisWholeTranscript) {
    const std::vector<std::string> expected{
        "50 52 4F 47 52 41 4D", "02", "06", //
        "52 00 00 40",          "06", "52 00 40 40", "06", "52 00 80 40", "06", "52 00 C0 40", "06",
        "52 01 00 40",          "06", "52 01 40 40", "06", "52 01 80 40", "06", "52 01 C0 40", "06",
        "52 02 00 40",          "06", "52 02 40 40", "06", "52 02 80 40", "06", "52 02 C0 40", "06",
        "52 03 00 40",          "06", "52 03 40 40", "06", "52 03 80 40", "06", "52 03 C0 40", "06",
        "52 03 C0 40",          "06", "45",
    };
    Run();
    EXPECT_EQ(rig.radio.Commands(), expected);
    EXPECT_EQ(rig.radio.Replies(), 37);
}

TEST_F(CloneRead, IssuesExactlySeventeenReadBlockCommandsTheLastTwoForTheSameAddress) {
    Run();
    std::vector<std::string> blocks;
    for (const std::string& command : rig.radio.Commands()) {
        if (command.starts_with("52 ")) {
            blocks.push_back(command);
        }
    }
    ASSERT_EQ(blocks.size(), 17U);
    EXPECT_EQ(blocks[14], "52 03 80 40");
    EXPECT_EQ(blocks[15], "52 03 C0 40");
    EXPECT_EQ(blocks[16], "52 03 C0 40");
}

TEST_F(CloneRead, ExchangesTwelveHundredAndSeventyEightBytesBothWaysTogether) {
    Run();
    // Host: 7 + 1 + 1 + 17 * 5 + 1; radio: 1 + 8 + 1 + 17 * 69.
    EXPECT_EQ(rig.Port().Sent().size(), 95U);
    EXPECT_EQ(rig.radio.BytesReplied(), 1183);
}

TEST_F(CloneRead, ReplacesAllBytesOfTheImage) {
    Run();
    for (int address = 0; address < 1024; ++address) {
        EXPECT_EQ(rig.document.Image.At(address), PatternAt(address)) << address;
    }
}

TEST_F(CloneRead, WorksTheSameWithRepliesInSingleBytes) {
    rig.radio.ByteByByte = true;
    rig.messages.Expect(ReadingCompleted(), MessageAnswer::Ok);
    rig.engine->Start();
    rig.clock.Advance(3000);
    EXPECT_EQ(rig.radio.Commands().size(), 38U);
    for (int address = 0; address < 1024; ++address) {
        EXPECT_EQ(rig.document.Image.At(address), PatternAt(address)) << address;
    }
}

TEST_F(CloneRead, SpendsOneMillisecondBetweenAReplyAndTheNextCommand) {
    // 10 ms to the first send; then each of 37 replies comes 2 ms after its command, and the next command 1 ms later.
    std::int64_t endAt = 0;
    rig.clock.At(10 + 37 * 3, [&] { endAt = rig.clock.TickCount(); });
    rig.messages.Expect(ReadingCompleted(), MessageAnswer::Ok);
    rig.engine->Start();
    rig.clock.Advance(10 + 37 * 3 - 1);
    EXPECT_EQ(rig.radio.Commands().back(), "06");
    rig.clock.Advance(1);
    EXPECT_EQ(endAt, 121);
    EXPECT_EQ(rig.radio.Commands().back(), "45");
}

TEST_F(CloneRead, CompletesInOrder) {
    bool portOpenAtBox = true;
    std::vector<std::string> eventsAtBox;
    std::string timersAtBox;
    rig.messages.Expect(ReadingCompleted(), [&] {
        portOpenAtBox = rig.Port().IsOpen();
        eventsAtBox = rig.events;
        timersAtBox = rig.TimerState("ctrTimer") + " " + rig.TimerState("messageTimer");
        EXPECT_FALSE(rig.engine->MayUnload());
        EXPECT_EQ(rig.Link().TransferMode, 55);
        return MessageAnswer::Ok;
    });
    rig.document.Rename("/home/dealer/radio.dat");
    rig.WhenReadCompleted = [&] {
        EXPECT_EQ(rig.document.FileName(), "Zelvor.dat");
        EXPECT_FALSE(rig.engine->MayUnload());
    };
    rig.engine->Start();
    rig.clock.Advance(10 + 37 * 3);
    EXPECT_EQ(rig.clock.Waits(), std::vector<int>{50});
    EXPECT_EQ(rig.clock.Sleeps(), std::vector<int>{20});
    EXPECT_FALSE(portOpenAtBox);
    EXPECT_EQ(timersAtBox, "off off");
    EXPECT_EQ(eventsAtBox.back(), "progress 16");
    EXPECT_EQ(rig.events.back(), "read completed");
    EXPECT_TRUE(rig.engine->State().Finished);
    EXPECT_TRUE(rig.engine->State().ReadDone);
    EXPECT_EQ(rig.TimerState("messageTimer"), "2");
    rig.clock.Advance(1);
    EXPECT_EQ(rig.Count("unload"), 0);
    rig.clock.Advance(1);
    EXPECT_EQ(rig.Count("unload"), 1);
}

TEST_F(CloneRead, ClearsTheComplaintAboutThePriorityChannelAlone) {
    rig.document.Priority.SetError(true);
    rig.document.Flags.OwnIdError = rig.document.Flags.TxCodeError = true;
    Run();
    EXPECT_FALSE(rig.document.Priority.PriorityChannelError());
    EXPECT_TRUE(rig.document.Flags.OwnIdError);
    EXPECT_TRUE(rig.document.Flags.TxCodeError);
}

TEST_F(CloneRead, RaisesTheBarSixteenTimesAndNotForTheRepeatedBlock) {
    Run();
    std::vector<std::string> progress;
    for (const std::string& event : rig.events) {
        if (event.starts_with("progress")) {
            progress.push_back(event);
        }
    }
    const std::vector<std::string> expected{"progress 1",  "progress 2",  "progress 3",  "progress 4",
                                            "progress 5",  "progress 6",  "progress 7",  "progress 8",
                                            "progress 9",  "progress 10", "progress 11", "progress 12",
                                            "progress 13", "progress 14", "progress 15", "progress 16"};
    EXPECT_EQ(progress, expected);
    EXPECT_EQ(rig.engine->ProgressMaximum(), 16);
}

TEST_F(CloneRead, SpeaksChineseWhereTheLanguageIs) {
    rig.UseLanguage(Language::Chinese);
    rig.messages.Expect({"", "读取完毕", MessageIcon::Information, MessageButtons::Ok, MessageAnswer::Ok},
                        MessageAnswer::Ok);
    rig.engine->Start();
    rig.clock.Advance(1000);
    EXPECT_EQ(rig.messages.Pending(), 0);
}

TEST_F(CloneRead, AcceptsAReplyWithAWrongEchoOfAddressAndLength) {
    EngineRig byHand(Read);
    byHand.ToData();
    Bytes reply = BlockReply(1);
    reply[1] = 0x77;
    reply[2] = 0x88;
    reply[3] = 0x99;
    byHand.TakeSent();
    byHand.Answer(reply);
    EXPECT_EQ(byHand.TakeSent(), "06");
    EXPECT_EQ(byHand.Link().CommState, 5);
    EXPECT_EQ(byHand.document.Image.At(0x3F), PatternAt(0x3F));
}

TEST_F(CloneRead, OpensThePortAtNineSixHundredWithTheSizesTold) {
    rig.Port().ClearLog();
    rig.engine->Start();
    rig.clock.Advance(10);
    const std::vector<std::string> expected{
        "buffers 1024 512", "number 1",    "settings 9600,N,8,2",      "open", "binary", "clear input",
        "clear output",     "threshold 1", "send 50 52 4F 47 52 41 4D"};
    EXPECT_EQ(rig.Port().Log(), expected);
}

TEST_F(CloneRead, UsesTheChosenPort) {
    rig.link.CommPortNumber = 13;
    Run();
    EXPECT_EQ(rig.Port().Number(), 13);
}

TEST_F(CloneRead, IgnoresAnAnswerToEnd) {
    rig.radio.AnswersEnd = true;
    Run();
    EXPECT_EQ(rig.Count("read completed"), 1);
    EXPECT_EQ(rig.Count("unload"), 1);
}

TEST_F(CloneRead, CanBeFollowedByAnother) {
    Run();
    rig.radio.Memory[0x123] = 0x5C;
    rig.radio.ClearCommands();
    rig.LoadAgain(Read);
    Run();
    EXPECT_EQ(rig.document.Image.At(0x123), 0x5C);
    EXPECT_EQ(rig.radio.Commands().size(), 38U);
}

TEST(CloneLoad, TriesThePortOnceAndSendsNothing) {
    EngineRig rig(Read);
    const std::vector<std::string> expected{"buffers 1024 512", "number 1",    "settings 9600,N,8,2", "open",
                                            "binary",           "clear input", "clear output",        "close"};
    EXPECT_EQ(rig.Port().Log(), expected);
    rig.clock.Advance(10000);
    EXPECT_TRUE(rig.Port().Sent().empty());
}

TEST(CloneLoad, LeavesBothTimersDisabledAndTheDialogFreeToClose) {
    EngineRig rig(Read);
    EXPECT_EQ(rig.TimerState("ctrTimer"), "off");
    EXPECT_EQ(rig.TimerState("messageTimer"), "off");
    EXPECT_FALSE(rig.engine->State().Finished);
    EXPECT_FALSE(rig.engine->State().Running);
    EXPECT_EQ(rig.Link().SentState, 55);
    EXPECT_TRUE(rig.engine->MayUnload());
}

TEST(CloneLoad, IsSilentAboutAMissingPort) {
    EngineRig rig(Read);
    rig.ports.Missing(1);
    rig.LoadAgain(Read);
    rig.clock.Advance(10000);
    EXPECT_TRUE(rig.messages.Shown().empty());
}

} // namespace
} // namespace zelvor
