#include "service/EntryEngine.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "service/ServiceRig.h"

namespace zelvor {
namespace {

class EntryEngineTest : public ::testing::Test, public EntryObserver {
protected:
    EntryEngineTest() {
        for (int i = 0; i < 8; ++i) {
            rig.document.Image.Set(0x280 + i, Bytes("00 50 12 14 00 50 22 14")[static_cast<std::size_t>(i)]);
        }
    }

    void OnInformation(const std::string& record) override {
        information = record;
        events.emplace_back("information");
    }
    void OnExchangeDone() override { events.emplace_back(rig.IsPortOpen() ? "done, port open" : "done, port closed"); }
    void OnInformationReady() override { events.emplace_back("show information"); }
    void OnTestModeReady() override { events.emplace_back("show test mode"); }
    void OnProgress(int replies, int all) override {
        progress.push_back(std::to_string(replies) + "/" + std::to_string(all));
    }
    void OnExchangeEnded() override { ++ended; }

    [[nodiscard]] static Commands TestModeCommands() {
        Commands commands{"54 55 4E 49 4E 47 20", "02", "06", "05", "06"};
        for (const char* channel :
             {"01", "02", "03", "04", "05", "06", "07", "08", "09", "0A", "0B", "0C", "0D", "0E", "0F", "10"}) {
            commands.push_back(std::string("10 ") + channel);
            commands.emplace_back("06");
        }
        return commands;
    }

    ServiceRig rig;
    std::unique_ptr<SerialPort> port = rig.ports.Make("MSComm1");
    EntryEngine engine{rig.document, rig.service, rig.LinkOver(*port), *this};
    std::vector<std::string> events;
    std::vector<std::string> progress;
    int ended = 0; // without a window
    std::string information;
};

const Commands InformationCommands{"50 52 4F 47 52 41 4D", "02", "06", "4E 52 4B", "06", "50", "06", "45"};

TEST_F(EntryEngineTest, InformationSendsItsEightCommandsAndShowsTheDialog) {
    engine.StartInformation();
    rig.clock.Advance(1000);
    EXPECT_EQ(rig.sent, InformationCommands);
    EXPECT_EQ(rig.times.front(), 100);
    EXPECT_EQ(events, (std::vector<std::string>{"information", "done, port open", "show information"}));
    EXPECT_EQ(rig.clock.Sleeps(), std::vector{30});
    EXPECT_FALSE(rig.IsPortOpen());
    EXPECT_FALSE(rig.IsRunning("ctrTimer"));
    EXPECT_FALSE(rig.IsRunning("OverTimer"));
}

TEST_F(EntryEngineTest, InformationHandsOnTheThirtyFourBytesAsTheyCame) {
    engine.StartInformation();
    rig.clock.Advance(1000);
    ASSERT_EQ(information.size(), 34U);
    EXPECT_EQ(information[0], '\0');
    EXPECT_EQ(information[13], 'A');
    EXPECT_EQ(information.substr(17, 8), "01234567");
    EXPECT_EQ(information[33], '!');
}

TEST_F(EntryEngineTest, InformationChangesNothingOfTheImage) {
    const DataImage before = rig.document.Image;
    engine.StartInformation();
    rig.clock.Advance(1000);
    EXPECT_EQ(rig.document.Image, before);
}

TEST_F(EntryEngineTest, ThePortIsTriedOnceBeforeAnythingIsSent) {
    engine.StartInformation();
    EXPECT_EQ(static_cast<FakeSerialPort&>(*port).Log(),
              (std::vector<std::string>{"buffers 1024 512", "number 1", "settings 9600,N,8,2", "open", "binary",
                                        "clear input", "clear output", "close"}));
}

TEST_F(EntryEngineTest, TheNextCommandFollowsAMillisecondBehindAGoodReply) {
    engine.StartInformation();
    rig.clock.Advance(1000);
    for (std::size_t i = 1; i < rig.times.size(); ++i) {
        EXPECT_EQ(rig.times[i] - rig.times[i - 1], 3) << i; // two for the reply
    }
}

TEST_F(EntryEngineTest, EntryAsksForTuningDataAndSixteenChannelsAndSendsNoEnd) {
    engine.StartTestMode();
    rig.clock.Advance(1000);
    EXPECT_EQ(rig.sent, TestModeCommands());
    EXPECT_EQ(events, (std::vector<std::string>{"done, port open", "show test mode"}));
    EXPECT_TRUE(engine.IsEntryDone());
    EXPECT_EQ(rig.clock.Sleeps(), std::vector{30});
    EXPECT_FALSE(rig.IsPortOpen());
}

TEST_F(EntryEngineTest, EveryReplyIsProgress) {
    engine.StartInformation();
    EXPECT_EQ(progress, std::vector<std::string>{"0/8"});
    rig.clock.Advance(1000);
    EXPECT_EQ(progress, (std::vector<std::string>{"0/8", "1/8", "2/8", "3/8", "4/8", "5/8", "6/8", "7/8", "8/8"}));
    progress.clear();
    engine.StartTestMode();
    rig.clock.Advance(1000);
    ASSERT_EQ(progress.size(), 38U);
    EXPECT_EQ(progress[0], "0/37");
    EXPECT_EQ(progress[5], "5/37");
    EXPECT_EQ(progress.back(), "37/37");
    EXPECT_EQ(ended, 0);
}

TEST_F(EntryEngineTest, RetryBeginsTheProgressAgainAndGivingUpEndsIt) {
    rig.Spoil(3, Fault::Drop);
    rig.messages.Expect(ConnectionPrompt(), [this] {
        rig.Spoil(rig.Replies() + 2, Fault::Drop);
        return MessageAnswer::Retry;
    });
    rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
    engine.StartInformation();
    rig.clock.Advance(1000);
    EXPECT_EQ(progress, (std::vector<std::string>{"0/8", "1/8", "2/8", "0/8", "1/8"}));
    EXPECT_EQ(ended, 1);
}

TEST_F(EntryEngineTest, EntryStoresTheTuningRecordAndTheTestFrequencies) {
    engine.StartTestMode();
    rig.clock.Advance(1000);
    EXPECT_EQ(rig.service.Values.TestPointHighPower, 111);
    EXPECT_EQ(rig.document.Image.AtIndex(86), 112);
    EXPECT_EQ(rig.service.TestFrequencyText[0].receive, "141.25000");
    EXPECT_EQ(rig.service.TestFrequencyText[0].transmit, "142.25000");
    EXPECT_EQ(rig.service.TestFrequencyText[15].receive, "0");
    EXPECT_EQ(rig.service.TestFrequencyText[15].transmit, "0");
}

TEST_F(EntryEngineTest, AMismatchEndsTheEntryWithABox) {
    rig.replies["10 03"] = "00 50 12 14 00 50 22 14";
    rig.messages.Expect({"Error", "Test Frequency mismatch.\nExecute read data from radio\nor write to radio.",
                         MessageIcon::Critical, MessageButtons::Ok, MessageAnswer::Ok},
                        MessageAnswer::Ok);
    engine.StartTestMode();
    rig.clock.Advance(1000);
    EXPECT_EQ(rig.sent.back(), "06"); // of channel 3, and no End
    EXPECT_EQ(rig.sent.size(), 5U + 2 * 3);
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(ended, 1);
    EXPECT_FALSE(engine.IsEntryDone());
    EXPECT_EQ(rig.clock.Sleeps(), std::vector{10});
    EXPECT_FALSE(rig.IsPortOpen());
    EXPECT_EQ(rig.messages.Pending(), 0);
}

TEST_F(EntryEngineTest, TheChineseMismatchBoxIsTitledAWarning) {
    engine.SetLanguage(Language::Chinese);
    rig.replies["10 10"] = "00 50 12 14 00 50 22 14";
    rig.messages.Expect({"警告", "测试频率不匹配。\n执行\"从对讲机读取数据\"\n或\"向对讲机写入数据\"。",
                         MessageIcon::Critical, MessageButtons::Ok, MessageAnswer::Ok},
                        MessageAnswer::Ok);
    engine.StartTestMode();
    rig.clock.Advance(1000);
    EXPECT_EQ(rig.messages.Pending(), 0);
}

TEST_F(EntryEngineTest, AMismatchOfTheFirstChannelIsReportedToo) {
    rig.replies["10 01"] = "FF FF FF FF FF FF FF FF";
    rig.messages.Expect({"Error", "Test Frequency mismatch.\nExecute read data from radio\nor write to radio.",
                         MessageIcon::Critical, MessageButtons::Ok, MessageAnswer::Ok},
                        MessageAnswer::Ok);
    engine.StartTestMode();
    rig.clock.Advance(1000);
    EXPECT_EQ(rig.messages.Pending(), 0);
    EXPECT_EQ(rig.service.TestFrequencyText[0].receive, "0");
}

// Faults, at every reply of both exchanges.

struct FaultCase {
    bool information;
    int reply;
    Fault fault;
};

class EntryFaults : public EntryEngineTest, public ::testing::WithParamInterface<FaultCase> {
protected:
    void Start() {
        rig.Spoil(GetParam().reply, GetParam().fault);
        if (GetParam().information) {
            engine.StartInformation();
        } else {
            engine.StartTestMode();
        }
    }
    [[nodiscard]] Commands Good() const { return GetParam().information ? InformationCommands : TestModeCommands(); }
};

TEST_P(EntryFaults, RetryRunsTheWholeSessionAgainAndItSucceeds) {
    rig.messages.Expect(ConnectionPrompt(), [this] {
        rig.ports.Present(1);
        return MessageAnswer::Retry;
    });
    Start();
    rig.clock.Advance(3000);
    EXPECT_EQ(rig.FaultsFired(), 1);
    EXPECT_EQ(rig.messages.Pending(), 0);
    const Commands good = Good();
    ASSERT_GE(rig.sent.size(), good.size());
    EXPECT_EQ(Commands(rig.sent.end() - static_cast<std::ptrdiff_t>(good.size()), rig.sent.end()), good);
    EXPECT_EQ(events.back(), GetParam().information ? "show information" : "show test mode");
}

TEST_P(EntryFaults, CancelEndsItWithoutAnotherByteAndTheNextExchangeWorks) {
    rig.messages.Expect(ConnectionPrompt(), [this] {
        rig.ports.Present(1);
        return MessageAnswer::Cancel;
    });
    Start();
    rig.clock.Advance(3000);
    EXPECT_EQ(rig.messages.Pending(), 0);
    EXPECT_EQ(static_cast<int>(rig.sent.size()), GetParam().reply);
    EXPECT_FALSE(rig.IsPortOpen());
    EXPECT_FALSE(rig.IsRunning("ctrTimer"));
    EXPECT_EQ(rig.link.SentState, 55);
    rig.sent.clear();
    engine.StartInformation();
    rig.clock.Advance(3000);
    EXPECT_EQ(rig.sent, InformationCommands);
}

std::vector<FaultCase> AllFaults() {
    std::vector<FaultCase> cases;
    for (const Fault fault : {Fault::Drop, Fault::Cut, Fault::Corrupt, Fault::Late, Fault::Vanish}) {
        for (int reply = 1; reply <= 8; ++reply) {
            // The ten bytes of reply 6 and the record of reply 4 are not looked at.
            if (fault != Fault::Corrupt || (reply != 4 && reply != 6)) {
                cases.push_back({true, reply, fault});
            }
        }
        for (const int reply : {1, 2, 3, 4, 5, 6, 7, 21, 36, 37}) {
            // A record may hold anything; a channel's must match and is no matter of the connection.
            const bool isData = reply == 4 || (reply >= 6 && reply % 2 == 0);
            if (fault != Fault::Corrupt || !isData) {
                cases.push_back({false, reply, fault});
            }
        }
    }
    return cases;
}

INSTANTIATE_TEST_SUITE_P(EveryReply, EntryFaults, ::testing::ValuesIn(AllFaults()));

TEST_F(EntryEngineTest, ASilentRadioBringsThePromptAHundredMillisecondsBehindTheCommand) {
    rig.replies["50 52 4F 47 52 41 4D"] = "";
    EXPECT_EQ(rig.TimeOfPrompt([&] { engine.StartInformation(); }), 200);
}

TEST_F(EntryEngineTest, AWrongFirstIdentityByteFailsAtOnceWhateverTheRest) {
    rig.replies["02"] = "51 34 36 31 38 01 F8 FF";
    EXPECT_EQ(rig.TimeOfPrompt([&] { engine.StartInformation(); }), 100 + 3 + 2 + 1);
}

TEST_F(EntryEngineTest, AReplyThatAPortHandsOnShortIsABadOne) {
    struct ShortReply {
        const char* command;
        std::size_t length;
        void (EntryEngine::*start)();
    };
    for (const ShortReply& reply :
         {ShortReply{"4E 52 4B", 33, &EntryEngine::StartInformation},
          ShortReply{"50", 9, &EntryEngine::StartInformation}, ShortReply{"05", 61, &EntryEngine::StartTestMode}}) {
        rig.replies = {{reply.command, ""}}; // answered by hand
        information.clear();
        (engine.*reply.start)();
        for (int tick = 0; tick < 150 && (rig.sent.empty() || rig.sent.back() != reply.command); ++tick) {
            rig.clock.Advance(1);
        }
        ASSERT_EQ(rig.TakeSent().back(), reply.command);
        const std::string before = information;
        const std::size_t known = progress.size();
        auto& fake = static_cast<FakeSerialPort&>(*port);
        fake.SetReceiveThreshold(1);
        rig.messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
        fake.Deliver(std::vector<std::uint8_t>(reply.length, 0x06));
        rig.clock.Advance(1);
        EXPECT_EQ(rig.messages.Pending(), 0) << reply.command;
        EXPECT_EQ(information, before) << reply.command;
        EXPECT_EQ(progress.size(), known) << reply.command;
        EXPECT_TRUE(rig.sent.empty()) << reply.command;
    }
}

TEST_F(EntryEngineTest, APortThatCannotBeOpenedPromptsAtOnce) {
    rig.ports.Missing(1);
    EXPECT_EQ(rig.TimeOfPrompt([&] { engine.StartTestMode(); }), 101);
    EXPECT_TRUE(rig.sent.empty());
}

TEST_F(EntryEngineTest, AnotherStartBeginsAnew) {
    engine.StartInformation();
    rig.clock.Advance(107);
    engine.StartTestMode();
    rig.TakeSent();
    rig.clock.Advance(1000);
    EXPECT_EQ(rig.sent, TestModeCommands());
}

TEST_F(EntryEngineTest, WhatIsLeftOfAnEarlierAnswerIsNoAnswerToTheNewEntry) {
    engine.StartInformation();
    rig.clock.Advance(200);
    rig.TakeSent();
    engine.StartTestMode();
    // A port that kept what came in while it was closed.
    auto& fake = static_cast<FakeSerialPort&>(*port);
    fake.ClearLog();
    rig.clock.Advance(100);
    const std::vector<std::string>& log = fake.Log();
    const auto opened = std::find(log.begin(), log.end(), "open");
    ASSERT_GE(log.end() - opened, 3);
    EXPECT_EQ(opened[1], "clear input");
    EXPECT_EQ(opened[2], "clear output");
    EXPECT_EQ(rig.sent, Commands{"54 55 4E 49 4E 47 20"});
}

TEST_F(EntryEngineTest, AStateLeftByAnAbandonedTransferDoesNotKeepItFromStarting) {
    rig.link.SentState = 1;
    engine.StartInformation();
    rig.clock.Advance(1000);
    EXPECT_EQ(rig.sent, InformationCommands);
}

TEST_F(EntryEngineTest, AbortSendsNothingMore) {
    engine.StartInformation();
    rig.clock.Advance(104);
    engine.Abort();
    rig.TakeSent();
    rig.clock.Advance(1000);
    EXPECT_TRUE(rig.sent.empty());
    EXPECT_FALSE(rig.IsPortOpen());
}

} // namespace
} // namespace zelvor
