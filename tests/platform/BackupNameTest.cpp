#include "platform/BackupName.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace zelvor {
namespace {

DataImage ImageOf(std::uint8_t family, std::uint8_t market) {
    DataImage image;
    image.Set(0x1BE, family);
    image.Set(0x1BD, market);
    return image;
}

constexpr LocalTime SomeTime{.year = 2026, .month = 11, .day = 22, .hour = 1, .minute = 45, .second = 2};

std::string NameOf(std::uint8_t family, std::uint8_t market, BackupDirection direction = BackupDirection::Read) {
    return BackupNameOf(ImageOf(family, market), SomeTime, direction).Text();
}

TEST(BackupName, TellsTimeModelMarketAndDirection) {
    EXPECT_EQ(NameOf(0xF8, 1), "2026-11-22T014502-4618-M-read.dat");
    EXPECT_EQ(NameOf(0xF8, 67, BackupDirection::Write), "2026-11-22T014502-5618-C2-write.dat");
    EXPECT_EQ(NameOf(0xF9, 0), "2026-11-22T014502-4613-K-read.dat");
    EXPECT_EQ(NameOf(0xF9, 113), "2026-11-22T014502-5613-M2-read.dat");
    EXPECT_EQ(NameOf(0xFC, 65), "2026-11-22T014502-5617-M3-read.dat");
    EXPECT_EQ(NameOf(0xF8, 115), "2026-11-22T014502-5618-C7-read.dat");
}

TEST(BackupName, GivesTheBytesOfAPairThatNoModelHas) {
    EXPECT_EQ(NameOf(0xFF, 0xFF), "2026-11-22T014502-xFF-xFF-read.dat");
    EXPECT_EQ(NameOf(0x00, 0x07), "2026-11-22T014502-x00-x07-read.dat");
    EXPECT_EQ(NameOf(0xFC, 0), "2026-11-22T014502-xFC-x00-read.dat");
}

TEST(BackupName, HasNothingButSafeCharactersWhateverTheImageHolds) {
    for (int family = 0; family < 256; ++family) {
        for (int market = 0; market < 256; ++market) {
            const std::string name = NameOf(static_cast<std::uint8_t>(family), static_cast<std::uint8_t>(market));
            ASSERT_TRUE(std::all_of(name.begin(), name.end(), [](char c) {
                return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-' ||
                       c == '.';
            })) << name;
            ASSERT_TRUE(BackupName::Parse(name)) << name;
        }
    }
}

TEST(BackupName, FillsTheTimeUpWithZeros) {
    const LocalTime early{.year = 987, .month = 1, .day = 2, .hour = 0, .minute = 3, .second = 4};
    EXPECT_EQ(BackupNameOf(ImageOf(0xF8, 1), early, BackupDirection::Read).Text(), "0987-01-02T000304-4618-M-read.dat");
}

TEST(BackupName, OfALaterOneOfTheSecondHasANumber) {
    BackupName name = BackupNameOf(ImageOf(0xF8, 1), SomeTime, BackupDirection::Write);
    name.number = 2;
    EXPECT_EQ(name.Text(), "2026-11-22T014502-4618-M-write-2.dat");
    name.number = 13;
    EXPECT_EQ(name.Text(), "2026-11-22T014502-4618-M-write-13.dat");
}

TEST(BackupName, IsUnderstoodAgain) {
    const auto name = BackupName::Parse("2026-11-22T014502-5618-C2-write-13.dat");
    ASSERT_TRUE(name);
    EXPECT_EQ(name->time, "2026-11-22T014502");
    EXPECT_EQ(name->model, "5618");
    EXPECT_EQ(name->market, "C2");
    EXPECT_EQ(name->direction, BackupDirection::Write);
    EXPECT_EQ(name->number, 13);
    EXPECT_EQ(name->Text(), "2026-11-22T014502-5618-C2-write-13.dat");
    EXPECT_EQ(BackupName::Parse("2026-11-22T014502-4618-M-read.dat")->number, 1);
}

TEST(BackupName, IsNoOtherFilesName) {
    for (const char* text : {"",
                             "Zelvor.dat",
                             ".lock",
                             "2026-11-22T014502-4618-M-read",
                             "2026-11-22T014502-4618-M-read.dat~",
                             "2026-11-22T014502-4618-M-read.DAT",
                             " 2026-11-22T014502-4618-M-read.dat",
                             "2026-11-22T014502-4618-M.dat",
                             "2026-11-22T014502-4618-read.dat",
                             "2026-11-22T014502--M-read.dat",
                             "2026-11-22T014502-4618-M-keep.dat",
                             "2026-11-22T014502-4618-M-read-.dat",
                             "2026-11-22T014502-4618-M-read-0.dat",
                             "2026-11-22T014502-4618-M-read-1.dat",
                             "2026-11-22T014502-4618-M-read-02.dat",
                             "2026-11-22T014502-4618-M-read-1000000.dat",
                             "2026-11-22T014502-4618-M-read-2-mine.dat",
                             "2026-11-22T0145-4618-M-read.dat",
                             "2026-11-22 014502-4618-M-read.dat",
                             "20261122T014502-4618-M-read.dat",
                             "old 2026-11-22T014502-4618-M-read.dat",
                             "../2026-11-22T014502-4618-M-read.dat"}) {
        EXPECT_EQ(BackupName::Parse(text), std::nullopt) << text;
    }
}

TEST(BackupName, OrdersByTimeAndThenByNumber) {
    const std::vector<const char*> inOrder{
        "2025-12-31T235959-5618-M-write.dat",   "2026-01-01T000000-4613-K-write.dat",
        "2026-01-01T000000-4618-M-read-2.dat",  "2026-01-01T000000-4618-M-write-3.dat",
        "2026-01-01T000000-4618-M-read-10.dat", "2026-01-01T000001-4618-M-read.dat"};
    for (std::size_t i = 0; i < inOrder.size(); ++i) {
        for (std::size_t j = 0; j < inOrder.size(); ++j) {
            EXPECT_EQ(IsOlder(*BackupName::Parse(inOrder[i]), *BackupName::Parse(inOrder[j])), i < j)
                << inOrder[i] << " " << inOrder[j];
        }
    }
}

} // namespace
} // namespace zelvor
