#include "link/CloneFrames.h"

#include <gtest/gtest.h>

#include "link/EngineRig.h"

namespace zelvor {
namespace {

struct Packet {
    int step;
    int address;
    int count;
};

// Steps, first addresses and data counts of a write, in order.
constexpr Packet Packets[] = {
    {1, 0x0000, 16},  {2, 0x0010, 16},  {3, 0x0020, 16},  {4, 0x0030, 16},  {5, 0x0040, 16},  {6, 0x0050, 16},
    {7, 0x0060, 16},  {8, 0x0070, 16},  {9, 0x0080, 16},  {10, 0x0090, 16}, {11, 0x00A0, 16}, {12, 0x00B0, 16},
    {13, 0x00C0, 16}, {14, 0x00D0, 16}, {15, 0x00E0, 16}, {16, 0x00F0, 16}, {17, 0x0100, 16}, {18, 0x0110, 16},
    {19, 0x0120, 16}, {20, 0x0130, 16}, {21, 0x0140, 16}, {22, 0x0150, 16}, {23, 0x0160, 16}, {24, 0x0170, 16},
    {25, 0x01B8, 16}, {26, 0x01C8, 16}, {27, 0x01D8, 16}, {28, 0x01E8, 16}, {29, 0x01F8, 8},  {30, 0x0200, 16},
    {31, 0x0210, 16}, {32, 0x0220, 16}, {33, 0x0230, 16}, {34, 0x0240, 16}, {35, 0x0250, 16}, {36, 0x0260, 16},
    {37, 0x0270, 16}, {38, 0x0280, 16}, {39, 0x0290, 16}, {40, 0x02A0, 16}, {41, 0x02B0, 16}, {42, 0x02C0, 16},
    {43, 0x02D0, 16}, {44, 0x02E0, 16}, {45, 0x02F0, 16}, {46, 0x0300, 16}, {47, 0x0310, 16}, {48, 0x0320, 16},
    {49, 0x0330, 16},
};

DataImage PatternImage() {
    DataImage image;
    for (int address = 0; address < 1024; ++address) {
        image.Set(address, PatternAt(address));
    }
    return image;
}

// The patterned image as packet building changes it.
std::uint8_t PreparedAt(int address) {
    if (address == 0x00C) {
        return 0xFF;
    }
    if (address == 0x10C || (address < 0x100 && address % 16 == 12)) {
        return 0x00;
    }
    return PatternAt(address);
}

TEST(CloneWire, CommandsAreTheTellingBytes) {
    EXPECT_EQ(Hex(wire::Entry), "50 52 4F 47 52 41 4D");
    EXPECT_EQ(Hex(wire::IdentityRequest), "02");
    EXPECT_EQ(Hex(wire::Acknowledge), "06");
    EXPECT_EQ(Hex(wire::End), "45");
}

TEST(ReadBlockCommand, HasTheLowBytesOfTheAddressAndAsksForSixtyFour) {
    LinkState link;
    link.AddrHigh = 0x103;
    link.AddrLow = 0x1C0;
    EXPECT_EQ(Hex(ReadBlockCommand(link)), "52 03 C0 40");
}

TEST(BuildWritePacket, PutsHeadAndImageBytesOfEveryStepIntoAnExactBuffer) {
    for (const Packet& packet : Packets) {
        SCOPED_TRACE(packet.step);
        DataImage image = PatternImage();
        LinkState link;
        link.StepCount = packet.step;
        link.AddrHigh = packet.address / 256;
        link.AddrLow = packet.address % 256;
        BuildWritePacket(link, image);

        Bytes expected{0x57, static_cast<std::uint8_t>(packet.address / 256),
                       static_cast<std::uint8_t>(packet.address % 256), static_cast<std::uint8_t>(packet.count)};
        for (int i = 0; i < packet.count; ++i) {
            expected.push_back(PreparedAt(packet.address + i));
        }
        if (packet.step == 1) {
            expected = {0x57, 0,    0,    16,   0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF,
                        0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0xFF, 0xFF, 0x03, 0xFF};
        }
        EXPECT_EQ(Hex(link.TxBuffer), Hex(expected));
    }
}

TEST(BuildWritePacket, FirstPacketIsFixedWhateverTheImageHolds) {
    DataImage image;
    image.Fill(0x5A);
    LinkState link;
    link.StepCount = 1;
    BuildWritePacket(link, image);
    EXPECT_EQ(Hex(link.TxBuffer), "57 00 00 10 FF FF FF FF FF FF FF FF FF FF FF 00 FF FF 03 FF");
}

TEST(BuildWritePacket, StepTwentyFiveJoinsTheEndOfBlockSixAndTheStartOfBlockSeven) {
    DataImage image;
    for (int address = 0x1B8; address <= 0x1C7; ++address) {
        image.Set(address, static_cast<std::uint8_t>(address - 0x1B8 + 0xA0));
    }
    LinkState link;
    link.StepCount = 25;
    link.AddrHigh = 1;
    link.AddrLow = 184;
    BuildWritePacket(link, image);
    EXPECT_EQ(Hex(link.TxBuffer), "57 01 B8 10 A0 A1 A2 A3 A4 A5 A6 A7 A8 A9 AA AB AC AD AE AF");
}

TEST(BuildWritePacket, StepTwentyNineHasEightDataBytes) {
    DataImage image;
    for (int address = 0x1F8; address <= 0x1FF; ++address) {
        image.Set(address, static_cast<std::uint8_t>(address - 0x1F8 + 0xB0));
    }
    LinkState link;
    link.StepCount = 29;
    link.AddrHigh = 1;
    link.AddrLow = 0xF8;
    BuildWritePacket(link, image);
    EXPECT_EQ(Hex(link.TxBuffer), "57 01 F8 08 B0 B1 B2 B3 B4 B5 B6 B7");
}

TEST(BuildWritePacket, AStepOutsideOneToFortyNineHasAHeadAndZeros) {
    for (const int step : {-1, 0, 50, 51}) {
        SCOPED_TRACE(step);
        DataImage image = PatternImage();
        LinkState link;
        link.StepCount = step;
        link.AddrHigh = 3;
        link.AddrLow = 0x40;
        BuildWritePacket(link, image);
        EXPECT_EQ(Hex(link.TxBuffer), "57 03 40 10 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
    }
}

TEST(BuildWritePacket, ClearsByteTwelveOfTheFirstSixteenGroupsInTheImage) {
    DataImage image = PatternImage();
    LinkState link;
    link.StepCount = 40;
    BuildWritePacket(link, image);
    EXPECT_EQ(image.AtIndex(192), 0xFF);
    for (const int index : {193, 194, 195, 196, 448, 449, 450, 451, 704, 705, 706, 707, 960, 961, 962, 963}) {
        EXPECT_EQ(image.AtIndex(index), 0x00) << index;
    }
}

TEST(BuildWritePacket, ChangesNoOtherByteOfTheImage) {
    DataImage image = PatternImage();
    LinkState link;
    link.StepCount = 3;
    BuildWritePacket(link, image);
    int changed = 0;
    for (int address = 0; address < 1024; ++address) {
        EXPECT_EQ(image.At(address), PreparedAt(address)) << address;
        changed += PreparedAt(address) != PatternAt(address);
    }
    EXPECT_EQ(changed, 17);
}

TEST(StoreReadBlock, PutsByteOfBlockAtColumnTimesSixteenPlusRow) {
    for (int step = 1; step <= 16; ++step) {
        DataImage image;
        image.Fill(0xEE);
        Bytes reply{0x57, 0, 0, 0x40};
        for (int i = 0; i < 64; ++i) {
            reply.push_back(static_cast<std::uint8_t>(i + step));
        }
        StoreReadBlock(image, step, reply);
        for (int index = 0; index < 1024; ++index) {
            const int expected = index % 16 == step - 1 ? index / 16 + step : 0xEE;
            EXPECT_EQ(image.AtIndex(index), expected) << "step " << step << " index " << index;
        }
    }
}

TEST(StoreReadBlock, ShortReplyStoresAsManyBytesAsItHolds) {
    DataImage image;
    image.Fill(0xEE);
    StoreReadBlock(image, 2, Bytes{0x57, 0x00, 0x40, 0x40, 0x11, 0x22});
    EXPECT_EQ(image.At(0x40), 0x11);
    EXPECT_EQ(image.At(0x41), 0x22);
    EXPECT_EQ(image.At(0x42), 0xEE);
}

TEST(StoreReadBlock, AReplyOfLessThanAHeadStoresNothing) {
    for (std::size_t length = 0; length <= 4; ++length) {
        DataImage image;
        image.Fill(0xEE);
        const DataImage before = image;
        StoreReadBlock(image, 1, Bytes(length, 0x57));
        EXPECT_EQ(image, before) << length;
    }
}

TEST(StoreReadBlock, SeventeenthBlockStoresNothing) {
    DataImage image = PatternImage();
    StoreReadBlock(image, 17, Bytes(68, 0xAB));
    EXPECT_EQ(image, PatternImage());
}

TEST(AdvanceAddress, ReadingRisesBySixtyFourAndStaysFromStepSeventeenOn) {
    constexpr int addresses[] = {0x000, 0x040, 0x080, 0x0C0, 0x100, 0x140, 0x180, 0x1C0, 0x200,
                                 0x240, 0x280, 0x2C0, 0x300, 0x340, 0x380, 0x3C0, 0x3C0, 0x3C0};
    LinkState link;
    link.TransferMode = 0;
    for (int step = 1; step <= 18; ++step) {
        link.StepCount = step;
        if (step > 1) {
            AdvanceAddress(link);
        }
        EXPECT_EQ(link.AddrHigh, addresses[step - 1] / 256) << step;
        EXPECT_EQ(link.AddrLow, addresses[step - 1] % 256) << step;
    }
}

TEST(AdvanceAddress, WritingFollowsTheFortyNinePackets) {
    LinkState link;
    link.TransferMode = 1;
    for (const Packet& packet : Packets) {
        link.StepCount = packet.step;
        if (packet.step > 1) {
            AdvanceAddress(link);
        }
        EXPECT_EQ(link.AddrHigh, packet.address / 256) << packet.step;
        EXPECT_EQ(link.AddrLow, packet.address % 256) << packet.step;
    }
}

TEST(AdvanceAddress, StepsTwentyFiveAndThirtySetTheAddressWhateverItWas) {
    LinkState link;
    link.TransferMode = 1;
    link.AddrHigh = 7;
    link.AddrLow = 255;
    link.StepCount = 25;
    AdvanceAddress(link);
    EXPECT_EQ(link.AddrHigh, 1);
    EXPECT_EQ(link.AddrLow, 184);
    link.AddrHigh = 7;
    link.AddrLow = 255;
    link.StepCount = 30;
    AdvanceAddress(link);
    EXPECT_EQ(link.AddrHigh, 2);
    EXPECT_EQ(link.AddrLow, 0);
}

TEST(AdvanceAddress, CarriesAtTwoHundredFiftySix) {
    LinkState link;
    link.TransferMode = 1;
    link.StepCount = 40;
    link.AddrLow = 240;
    AdvanceAddress(link);
    EXPECT_EQ(link.AddrHigh, 1);
    EXPECT_EQ(link.AddrLow, 0);
}

TEST(ImageAddressing, TheNamedIndexesLieAtTheirAddresses) {
    EXPECT_EQ(DataImage::AddressOfIndex(982), 0x01BD);
    EXPECT_EQ(DataImage::AddressOfIndex(998), 0x01BE);
    EXPECT_EQ(DataImage::AddressOfIndex(192), 0x000C);
    EXPECT_EQ(DataImage::AddressOfIndex(196), 0x010C);
}

} // namespace
} // namespace zelvor
