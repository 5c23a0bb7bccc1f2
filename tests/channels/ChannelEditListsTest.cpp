#include "channels/ChannelEditLists.h"

#include <gtest/gtest.h>

namespace zelvor {
namespace {

using Texts = std::vector<std::string>;

/// The entries of the two lists that depend on the channel's tone and signalling.
struct Lists {
    bool tone;
    bool signalling;
    Texts spMute;
    Texts busyLock;
};

void ExpectLists(Language language, const std::vector<Lists>& rows) {
    for (const Lists& row : rows) {
        const DependentLists lists = DependentListsOf(row.tone, row.signalling, language);
        EXPECT_EQ(lists.spMute, row.spMute) << row.tone << row.signalling;
        EXPECT_EQ(lists.busyLock, row.busyLock) << row.tone << row.signalling;
    }
}

TEST(ChannelEditListsTest, TheListsFollowToneAndSignallingInEnglish) {
    const std::vector<Lists> rows{
        {false, false, {"Carrier"}, {"Off", "Carrier"}},
        {false,
         true,
         {"Carrier", "Carrier + Opt.Sig.", "Carrier or Opt.Sig."},
         {"Off", "Carrier", "Option Signalling"}},
        {true, false, {"QT/DQT"}, {"Off", "Carrier", "QT/DQT"}},
        {true,
         true,
         {"QT/DQT", "QT/DQT + Opt.Sig.", "QT/DQT or Opt.Sig."},
         {"Off", "Carrier", "QT/DQT", "Option Signalling"}},
    };
    ExpectLists(Language::English, rows);
}

TEST(ChannelEditListsTest, TheListsFollowToneAndSignallingInChinese) {
    const std::vector<Lists> rows{
        {false, false, {"载波"}, {"关", "载波"}},
        {false, true, {"载波", "载波+可选信令", "载波或可选信令"}, {"关", "载波", "可选信令"}},
        {true, false, {"QT/DQT"}, {"关", "载波", "QT/DQT"}},
        {true, true, {"QT/DQT", "QT/DQT+可选信令", "QT/DQT或可选信令"}, {"关", "载波", "QT/DQT", "可选信令"}},
    };
    ExpectLists(Language::Chinese, rows);
}

TEST(ChannelEditListsTest, EveryByteSelectsItsSpUnmuteEntry) {
    constexpr int entries[] = {0, 1, 2, -1}; // by bits 5 and 6
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_EQ(SpMuteEntry(static_cast<std::uint8_t>(byte), 3), entries[byte / 32 % 4]) << byte;
    }
}

TEST(ChannelEditListsTest, EveryByteSelectsItsBusyLockEntry) {
    constexpr int inFour[] = {0, 1, 2, 3}; // by bits 3 and 4
    constexpr int inThree[] = {0, 1, 2, 0};
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_EQ(BusyLockEntry(static_cast<std::uint8_t>(byte), 4), inFour[byte / 8 % 4]) << byte;
        EXPECT_EQ(BusyLockEntry(static_cast<std::uint8_t>(byte), 3), inThree[byte / 8 % 4]) << byte;
    }
}

TEST(ChannelEditListsTest, APlaceThatTheListDoesNotHaveSelectsItsFirstEntry) {
    EXPECT_EQ(SpMuteEntry(0x20, 1), 0);
    EXPECT_EQ(SpMuteEntry(0x40, 1), 0);
    EXPECT_EQ(SpMuteEntry(0x60, 1), -1);
    EXPECT_EQ(BusyLockEntry(0x10, 2), 0);
    EXPECT_EQ(BusyLockEntry(0x18, 2), 0);
    EXPECT_EQ(BusyLockEntry(0x08, 2), 1);
}

TEST(ChannelEditListsTest, PlacesAreStoredInTheirBitsAndNoOthers) {
    constexpr int spMute[] = {0x00, 0x20, 0x40};
    constexpr int busyLock[] = {0x00, 0x08, 0x10, 0x18};
    for (int byte = 0; byte < 256; ++byte) {
        const auto before = static_cast<std::uint8_t>(byte);
        for (int entry = 0; entry < 3; ++entry) {
            EXPECT_EQ(WithSpMuteEntry(before, entry), (byte & 0x9F) + spMute[entry]) << byte;
        }
        for (int entry = 0; entry < 4; ++entry) {
            EXPECT_EQ(WithBusyLockEntry(before, entry), (byte & 0xE7) + busyLock[entry]) << byte;
        }
    }
}

TEST(ChannelEditListsTest, NoSelectionOverwritesTheWholeByte) {
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_EQ(WithSpMuteEntry(static_cast<std::uint8_t>(byte), -1), 0xFF);
        EXPECT_EQ(WithBusyLockEntry(static_cast<std::uint8_t>(byte), -1), 0xFF);
    }
}

TEST(ChannelEditListsTest, AutodialMemoriesAre248AndUp) {
    EXPECT_EQ(AutoDialByte(-1), 0xF8);
    EXPECT_EQ(AutoDialByte(0), 0xF8);
    EXPECT_EQ(AutoDialByte(1), 0xF9);
    EXPECT_EQ(AutoDialByte(7), 0xFF);
}

TEST(ChannelEditListsTest, TheLowNibbleSelectsTheCorvanePttIdEntry) {
    constexpr int entries[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 0, 0, 0, 0, 0};
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_EQ(CorvanePttIdEntry(static_cast<std::uint8_t>(byte)), entries[byte % 16]) << byte;
    }
}

} // namespace
} // namespace zelvor
