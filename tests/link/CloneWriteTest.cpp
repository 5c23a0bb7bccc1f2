#include <gtest/gtest.h>

#include "link/EngineRig.h"

namespace zelvor {
namespace {

// The heads of the 49 packets, in order.
constexpr const char* PacketHeads[] = {
    "57 00 00 10", "57 00 10 10", "57 00 20 10", "57 00 30 10", "57 00 40 10", "57 00 50 10", "57 00 60 10",
    "57 00 70 10", "57 00 80 10", "57 00 90 10", "57 00 A0 10", "57 00 B0 10", "57 00 C0 10", "57 00 D0 10",
    "57 00 E0 10", "57 00 F0 10", "57 01 00 10", "57 01 10 10", "57 01 20 10", "57 01 30 10", "57 01 40 10",
    "57 01 50 10", "57 01 60 10", "57 01 70 10", "57 01 B8 10", "57 01 C8 10", "57 01 D8 10", "57 01 E8 10",
    "57 01 F8 08", "57 02 00 10", "57 02 10 10", "57 02 20 10", "57 02 30 10", "57 02 40 10", "57 02 50 10",
    "57 02 60 10", "57 02 70 10", "57 02 80 10", "57 02 90 10", "57 02 A0 10", "57 02 B0 10", "57 02 C0 10",
    "57 02 D0 10", "57 02 E0 10", "57 02 F0 10", "57 03 00 10", "57 03 10 10", "57 03 20 10", "57 03 30 10",
};

// What the radio holds at an address after a write of the patterned image.
int WrittenAt(int address, std::uint8_t before) {
    if (address < 0x010) {
        return address == 0x00B ? 0x00 : address == 0x00E ? 0x03 : 0xFF;
    }
    if ((address >= 0x180 && address < 0x1B8) || address >= 0x340) {
        return before;
    }
    if (address == 0x10C || (address < 0x100 && address % 16 == 12)) {
        return 0x00;
    }
    return PatternAt(address);
}

class CloneWrite : public testing::Test {
protected:
    CloneWrite() {
        rig.UsePattern();
        rig.radio.Memory.fill(0xDD);
        rig.ConnectRadio();
    }
    void Run() {
        rig.messages.Expect(WritingCompleted(), MessageAnswer::Ok);
        rig.engine->Start();
        rig.clock.Advance(1000);
    }

    EngineRig rig{Write};
};

TEST_F(CloneWrite, HasThisWholeTranscript) {
    Run();
    const std::vector<std::string>& commands = rig.radio.Commands();
    ASSERT_EQ(commands.size(), 3U + 49U + 1U);
    EXPECT_EQ(commands[0], "50 52 4F 47 52 41 4D");
    EXPECT_EQ(commands[1], "02");
    EXPECT_EQ(commands[2], "06");
    EXPECT_EQ(commands[3], "57 00 00 10 FF FF FF FF FF FF FF FF FF FF FF 00 FF FF 03 FF");
    for (std::size_t i = 1; i < 49; ++i) {
        const int high = std::stoi(commands[3 + i].substr(3, 2), nullptr, 16);
        const int low = std::stoi(commands[3 + i].substr(6, 2), nullptr, 16);
        Bytes data;
        for (int address = high * 256 + low; data.size() < (i == 28 ? 8U : 16U); ++address) {
            data.push_back(static_cast<std::uint8_t>(WrittenAt(address, 0xDD)));
        }
        EXPECT_EQ(commands[3 + i], PacketHeads[i] + std::string(" ") + Hex(data)) << i + 1;
    }
    EXPECT_EQ(commands[52], "45");
    EXPECT_EQ(rig.radio.Replies(), 52);
}

TEST_F(CloneWrite, SendsAThousandAndFortyOneBytesBothWaysTogether) {
    Run();
    // Host: 7 + 1 + 1 + 48 * 20 + 12 + 1; radio: 1 + 8 + 1 + 49.
    EXPECT_EQ(rig.Port().Sent().size(), 982U);
    EXPECT_EQ(rig.radio.BytesReplied(), 59);
}

TEST_F(CloneWrite, LeavesTheTuningRegionAndTheLastBytesAlone) {
    Run();
    for (int address = 0; address < 1024; ++address) {
        EXPECT_EQ(rig.radio.Memory[static_cast<std::size_t>(address)], WrittenAt(address, 0xDD)) << address;
    }
}

TEST_F(CloneWrite, WorksTheSameWithRepliesInSingleBytes) {
    rig.radio.ByteByByte = true;
    Run();
    EXPECT_EQ(rig.radio.Commands().size(), 53U);
    EXPECT_EQ(rig.Count("write completed"), 1);
}

TEST_F(CloneWrite, ChangesTheImageAsPacketBuildingDoes) {
    Run();
    EXPECT_EQ(rig.document.Image.AtIndex(192), 0xFF);
    for (const int index : {193, 194, 195, 196, 448, 449, 450, 451, 704, 705, 706, 707, 960, 961, 962, 963}) {
        EXPECT_EQ(rig.document.Image.AtIndex(index), 0x00) << index;
    }
}

TEST_F(CloneWrite, DoesNotTakeTheIdentityIntoTheImage) {
    rig.radio.Identity[5] = PatternAt(0x1BD);
    rig.radio.Identity[6] = 0x33; // accepted whatever the image holds
    Run();
    EXPECT_EQ(rig.document.Image.AtIndex(998), PatternAt(0x1BE));
    EXPECT_EQ(rig.radio.Memory[0x1BE], PatternAt(0x1BE));
}

TEST_F(CloneWrite, SendsEndInTheTickThatEndsIt) {
    rig.messages.Expect(WritingCompleted(), [this] {
        EXPECT_EQ(rig.radio.Commands().back(), "45");
        EXPECT_FALSE(rig.Port().IsOpen());
        EXPECT_EQ(rig.Link().TransferMode, 55);
        EXPECT_EQ(rig.Link().StepCount, 50);
        EXPECT_EQ(rig.TimerState("ctrTimer") + " " + rig.TimerState("messageTimer"), "off off");
        return MessageAnswer::Ok;
    });
    rig.engine->Start();
    // 10 ms to the first send, 52 exchanges of 3 ms each, then 50 ms and 20 ms.
    rig.clock.Advance(10 + 52 * 3);
    EXPECT_EQ(rig.clock.TickCount(), 10 + 52 * 3 + 50 + 20);
    EXPECT_EQ(rig.clock.Waits(), std::vector<int>{50});
    EXPECT_EQ(rig.clock.Sleeps(), std::vector<int>{20});
    EXPECT_EQ(rig.TimerState("messageTimer"), "2");
    rig.clock.Advance(2);
    EXPECT_EQ(rig.events.back(), "unload");
}

TEST_F(CloneWrite, ClearsAllThreeFlagsAndKeepsTheFileName) {
    rig.document.Priority.SetError(true);
    rig.document.Flags.OwnIdError = rig.document.Flags.TxCodeError = true;
    rig.document.Rename("/home/dealer/radio.dat");
    Run();
    EXPECT_FALSE(rig.document.Priority.PriorityChannelError());
    EXPECT_FALSE(rig.document.Flags.OwnIdError);
    EXPECT_FALSE(rig.document.Flags.TxCodeError);
    EXPECT_EQ(rig.document.FileName(), "/home/dealer/radio.dat");
    EXPECT_EQ(rig.Count("read completed"), 0);
}

TEST_F(CloneWrite, RaisesTheBarOnceForEachPacket) {
    Run();
    EXPECT_EQ(rig.engine->ProgressMaximum(), 49);
    EXPECT_EQ(rig.engine->Progress(), 49);
    int expected = 0;
    for (const std::string& event : rig.events) {
        if (event.starts_with("progress")) {
            EXPECT_EQ(event, "progress " + std::to_string(++expected));
        }
    }
    EXPECT_EQ(expected, 49);
}

TEST_F(CloneWrite, OnlyCountsALateByteBehindEnd) {
    rig.radio.AnswersEnd = true;
    rig.messages.Expect(WritingCompleted(), [this] {
        EXPECT_EQ(rig.Link().StepCount, 51);
        EXPECT_EQ(rig.Link().CommState, 5);
        return MessageAnswer::Ok;
    });
    rig.engine->Start();
    rig.clock.Advance(1000);
    EXPECT_EQ(rig.engine->Progress(), 49);
    EXPECT_EQ(rig.Count("write completed"), 1);
}

TEST_F(CloneWrite, ReadsNothingOfALateByteBehindEnd) {
    rig.radio.AnswersEnd = true;
    rig.messages.Expect(WritingCompleted(), MessageAnswer::Ok);
    std::size_t logAtEnd = 0;
    int waiting = -1;
    rig.clock.At(10 + 52 * 3 + 1, [&] { logAtEnd = rig.Port().Log().size(); });
    rig.clock.At(10 + 52 * 3 + 4, [&] {
        waiting = rig.Port().WaitingBytes();
        EXPECT_EQ(rig.Port().Log().size(), logAtEnd);
    });
    rig.engine->Start();
    rig.clock.Advance(1000);
    EXPECT_EQ(waiting, 1);
}

TEST_F(CloneWrite, SpeaksChineseWhereTheLanguageIs) {
    rig.UseLanguage(Language::Chinese);
    rig.messages.Expect({"", "写入完毕", MessageIcon::Information, MessageButtons::Ok, MessageAnswer::Ok},
                        MessageAnswer::Ok);
    rig.engine->Start();
    rig.clock.Advance(1000);
    EXPECT_EQ(rig.messages.Pending(), 0);
}

TEST_F(CloneWrite, BuildsEachPacketAtItsSendTime) {
    // A byte changed while the transfer runs is sent if its packet is still to come.
    rig.clock.At(50, [this] { rig.document.Image.Set(0x335, 0x42); });
    Run();
    EXPECT_EQ(rig.radio.Memory[0x335], 0x42);
}

} // namespace
} // namespace zelvor
