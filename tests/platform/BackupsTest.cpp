#include "platform/Backups.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "fakes/FakeClock.h"
#include "fakes/FakeFileStore.h"
#include "fakes/FakeFolder.h"
#include "platform/DataFiles.h"
#include "platform/QtFileStore.h"
#include "platform/QtFolder.h"
#include "platform/Toolkit.h"
#include "support/TestDirectory.h"

namespace zelvor {
namespace {

namespace fs = std::filesystem;
using testing::TestDirectory;

struct FakeMachine {
    FakeFileStore store;
    FakeFolder folder{store};

    [[nodiscard]] bool Has(const std::string& name) { return store.Has("/backups/" + name); }
    [[nodiscard]] std::string Path(const std::string& name) const { return "/backups/" + name; }
    void Put(const std::string& name) { store.Put("/backups/" + name, "somebody's"); }
};

/// Two folders that are not there yet.
struct RealMachine {
    TestDirectory directory;
    QtFileStore store;
    QtFolder folder{ToQString(testing::Utf8(directory / "Zelvor" / "backups"))};

    [[nodiscard]] bool Has(const std::string& name) const { return fs::exists(Path(name)); }
    [[nodiscard]] std::string Path(const std::string& name) const {
        return testing::Utf8(directory / "Zelvor" / "backups" / name);
    }
    void Put(const std::string& name) const {
        fs::create_directories(directory / "Zelvor" / "backups");
        testing::PutFile(Path(name), "somebody's");
    }
};

/// Model 4618, market M, with a byte of its own.
DataImage Image(std::uint8_t byte) {
    DataImage image;
    image.Set(0x1BE, 0xF8);
    image.Set(0x1BD, 0x01);
    image.Set(0x300, byte);
    return image;
}

std::string TwoDigits(int value) {
    return {static_cast<char>('0' + value / 10), static_cast<char>('0' + value % 10)};
}

template<class Machine>
class BackupsTest : public ::testing::Test {
protected:
    BackupsTest() { At(2); }

    void At(int second) { clock_.SetNow({2026, 11, 22, 1, 45, second}); }
    std::string Keep(std::uint8_t byte, BackupDirection direction = BackupDirection::Read) {
        return backups_.Keep(Image(byte), direction).value_or("not kept");
    }
    [[nodiscard]] int ByteOf(const std::string& name) {
        const DataFileRead file = ReadDataFile(machine_.store, machine_.Path(name));
        return file.error == DataFileError::None ? file.image.At(0x300) : -1;
    }
    [[nodiscard]] std::vector<std::string> Names() {
        std::vector<std::string> names;
        for (const BackupName& backup : backups_.List()) {
            names.push_back(backup.Text());
        }
        return names;
    }
    /// As many backups of one minute of each hour of a day as are asked for.
    void PutOld(int count) {
        for (int i = 0; i < count; ++i) {
            machine_.Put("2025-03-04T" + TwoDigits(i / 60) + "07" + TwoDigits(i % 60) + "-5618-M-write.dat");
        }
    }

    Machine machine_;
    FakeClock clock_;
    Backups backups_{machine_.store, machine_.folder, clock_};
};

using Machines = ::testing::Types<FakeMachine, RealMachine>;
TYPED_TEST_SUITE(BackupsTest, Machines);

TYPED_TEST(BackupsTest, KeepAnImageAsADataFileOfItsOwn) {
    EXPECT_EQ(this->Keep(0x11), this->machine_.Path("2026-11-22T014502-4618-M-read.dat"));
    this->At(3);
    EXPECT_EQ(this->Keep(0x22, BackupDirection::Write), this->machine_.Path("2026-11-22T014503-4618-M-write.dat"));
    const DataFileRead file =
        ReadDataFile(this->machine_.store, this->machine_.Path("2026-11-22T014502-4618-M-read.dat"));
    EXPECT_EQ(file.error, DataFileError::None);
    EXPECT_EQ(file.image, Image(0x11));
    EXPECT_EQ(this->ByteOf("2026-11-22T014503-4618-M-write.dat"), 0x22);
}

TYPED_TEST(BackupsTest, NumberThoseOfTheSameSecond) {
    EXPECT_EQ(this->Keep(0x11), this->machine_.Path("2026-11-22T014502-4618-M-read.dat"));
    EXPECT_EQ(this->Keep(0x22), this->machine_.Path("2026-11-22T014502-4618-M-read-2.dat"));
    EXPECT_EQ(this->Keep(0x33, BackupDirection::Write), this->machine_.Path("2026-11-22T014502-4618-M-write-3.dat"));
    EXPECT_EQ(this->Keep(0x44), this->machine_.Path("2026-11-22T014502-4618-M-read-4.dat"));
    EXPECT_EQ(this->ByteOf("2026-11-22T014502-4618-M-read.dat"), 0x11);
    EXPECT_EQ(this->ByteOf("2026-11-22T014502-4618-M-read-2.dat"), 0x22);
    EXPECT_EQ(this->ByteOf("2026-11-22T014502-4618-M-write-3.dat"), 0x33);
    EXPECT_EQ(this->ByteOf("2026-11-22T014502-4618-M-read-4.dat"), 0x44);
}

TYPED_TEST(BackupsTest, AreListedNewestFirst) {
    EXPECT_EQ(this->Names(), std::vector<std::string>{});
    this->At(8);
    this->Keep(0x11);
    this->At(9);
    this->Keep(0x22);
    this->Keep(0x33, BackupDirection::Write);
    this->At(7);
    this->Keep(0x44);
    this->machine_.Put("notes.dat");
    EXPECT_EQ(this->Names(),
              (std::vector<std::string>{"2026-11-22T014509-4618-M-write-2.dat", "2026-11-22T014509-4618-M-read.dat",
                                        "2026-11-22T014508-4618-M-read.dat", "2026-11-22T014507-4618-M-read.dat"}));
}

TYPED_TEST(BackupsTest, KeepTheNewestFiveHundred) {
    this->PutOld(499);
    this->Keep(0x11);
    EXPECT_EQ(this->Names().size(), 500U);
    EXPECT_TRUE(this->machine_.Has("2025-03-04T000700-5618-M-write.dat"));
    this->At(3);
    this->Keep(0x22);
    EXPECT_EQ(this->Names().size(), 500U);
    EXPECT_FALSE(this->machine_.Has("2025-03-04T000700-5618-M-write.dat"));
    EXPECT_TRUE(this->machine_.Has("2025-03-04T000701-5618-M-write.dat"));
    EXPECT_TRUE(this->machine_.Has("2026-11-22T014502-4618-M-read.dat"));
}

TYPED_TEST(BackupsTest, GoDownToFiveHundredFromAnyNumber) {
    this->PutOld(512);
    this->Keep(0x11);
    EXPECT_EQ(this->Names().size(), 500U);
    EXPECT_FALSE(this->machine_.Has("2025-03-04T000712-5618-M-write.dat"));
    EXPECT_TRUE(this->machine_.Has("2025-03-04T000713-5618-M-write.dat"));
}

TYPED_TEST(BackupsTest, NeverRemoveAFileOfAnotherName) {
    this->PutOld(505);
    for (const char* name : {"0000.dat", "2024-01-01T000000-4618-M-read.txt", "2024-01-01T000000-4618-M-mine.dat"}) {
        this->machine_.Put(name);
    }
    this->Keep(0x11);
    for (const char* name : {"0000.dat", "2024-01-01T000000-4618-M-read.txt", "2024-01-01T000000-4618-M-mine.dat"}) {
        EXPECT_TRUE(this->machine_.Has(name)) << name;
    }
}

TYPED_TEST(BackupsTest, KeepTheOneJustMadeAlsoWhereTheClockWasSetBack) {
    this->PutOld(500);
    this->clock_.SetNow({2001, 1, 1, 0, 0, 0});
    EXPECT_EQ(this->Keep(0x11), this->machine_.Path("2001-01-01T000000-4618-M-read.dat"));
    EXPECT_EQ(this->Names().size(), 500U);
    EXPECT_EQ(this->ByteOf("2001-01-01T000000-4618-M-read.dat"), 0x11);
    EXPECT_FALSE(this->machine_.Has("2025-03-04T000700-5618-M-write.dat"));
}

TYPED_TEST(BackupsTest, TellTheirFolder) {
    EXPECT_EQ(std::filesystem::path(this->backups_.FolderPath()) / "a.dat",
              std::filesystem::path(this->machine_.Path("a.dat")));
}

TEST(BackupsOnAFakeMachine, AreNotKeptWhereTheFolderCannotBeMade) {
    FakeFileStore store;
    FakeFolder folder(store);
    FakeClock clock;
    folder.Refuse();
    EXPECT_EQ(Backups(store, folder, clock).Keep(Image(1), BackupDirection::Read), std::nullopt);
    EXPECT_TRUE(folder.FileNames().empty());
}

TEST(BackupsOnAFakeMachine, AreNotKeptWhereTheDiskTakesNoneAndNoOldOneGoesForIt) {
    FakeFileStore store;
    FakeFolder folder(store);
    FakeClock clock;
    clock.SetNow({2026, 11, 22, 1, 45, 2});
    for (int i = 0; i < 501; ++i) {
        store.Put("/backups/2025-01-01T0" + std::to_string(10000 + i) + "-4618-M-read.dat", "old");
    }
    store.Refuse("/backups/2026-11-22T014502-4618-M-write.dat");
    EXPECT_EQ(Backups(store, folder, clock).Keep(Image(1), BackupDirection::Write), std::nullopt);
    EXPECT_EQ(folder.FileNames().size(), 501U);
}

TEST(BackupsOnAFakeMachine, HoldTheFolderWhileTheyChooseANameAndNoLonger) {
    FakeFileStore store;
    FakeFolder folder(store);
    FakeClock clock;
    clock.SetNow({2026, 11, 22, 1, 45, 2});
    // Another program makes one of the same second just before.
    folder.OnHold = [&] { store.Put("/backups/2026-11-22T014502-4618-M-read.dat", "the other's"); };
    EXPECT_EQ(Backups(store, folder, clock).Keep(Image(1), BackupDirection::Read),
              "/backups/2026-11-22T014502-4618-M-read-2.dat");
    EXPECT_EQ(store.Content("/backups/2026-11-22T014502-4618-M-read.dat"), "the other's");
    EXPECT_FALSE(folder.IsHeld());
}

TEST(BackupsInARealFolder, AreNotKeptWhereAFileStandsInTheFoldersPlace) {
    const TestDirectory directory;
    testing::PutFile(directory / "Zelvor", "plain");
    QtFileStore store;
    QtFolder folder(ToQString(testing::Utf8(directory / "Zelvor" / "backups")));
    FakeClock clock;
    EXPECT_EQ(Backups(store, folder, clock).Keep(Image(1), BackupDirection::Read), std::nullopt);
    EXPECT_EQ(testing::FileContent(directory / "Zelvor"), "plain");
    EXPECT_TRUE(folder.FileNames().empty());
}

TEST(BackupsInARealFolder, LeaveNothingElseBehind) {
    const TestDirectory directory;
    QtFileStore store;
    QtFolder folder(ToQString(testing::Utf8(directory.Path())));
    FakeClock clock;
    clock.SetNow({2026, 11, 22, 1, 45, 2});
    ASSERT_TRUE(Backups(store, folder, clock).Keep(Image(1), BackupDirection::Read));
    EXPECT_EQ(testing::EntriesOf(directory.Path()), std::vector<std::string>{"2026-11-22T014502-4618-M-read.dat"});
}

TEST(BackupsInARealFolder, AreKeptBehindALockThatTellsOfNobody) {
    const TestDirectory directory;
    testing::PutFile(directory / ".lock", ""); // of a process that was killed while it made it
    QtFileStore store;
    constexpr int patience = 1; // milliseconds
    QtFolder folder(ToQString(testing::Utf8(directory.Path())), patience);
    FakeClock clock;
    clock.SetNow({2026, 11, 22, 1, 45, 2});
    EXPECT_TRUE(Backups(store, folder, clock).Keep(Image(1), BackupDirection::Read));
    EXPECT_EQ(testing::EntriesOf(directory.Path()), std::vector<std::string>{"2026-11-22T014502-4618-M-read.dat"});
}

TEST(BackupsInARealFolder, AreNotKeptWhileAnotherProgramHoldsTheFolder) {
    const TestDirectory directory;
    QtFileStore store;
    constexpr int patience = 1; // milliseconds
    QtFolder folder(ToQString(testing::Utf8(directory.Path())), patience);
    QtFolder others(ToQString(testing::Utf8(directory.Path())), patience);
    FakeClock clock;
    const auto hold = others.Hold();
    EXPECT_EQ(Backups(store, folder, clock).Keep(Image(1), BackupDirection::Read), std::nullopt);
}

TEST(BackupsInARealFolder, AreNotWrittenThroughALinkOfThatName) {
    const TestDirectory directory;
    testing::PutFile(directory / "target", "mine");
    fs::create_symlink(directory / "target", directory / "2026-11-22T014502-4618-M-read.dat");
    QtFileStore store;
    QtFolder folder(ToQString(testing::Utf8(directory.Path())));
    FakeClock clock;
    clock.SetNow({2026, 11, 22, 1, 45, 2});
    EXPECT_EQ(Backups(store, folder, clock).Keep(Image(1), BackupDirection::Read),
              testing::Utf8(directory / "2026-11-22T014502-4618-M-read-2.dat"));
    EXPECT_EQ(testing::FileContent(directory / "target"), "mine");
}

TEST(BackupsInARealFolder, AreNoFoldersOfThatName) {
    const TestDirectory directory;
    fs::create_directory(directory / "2026-11-22T014503-4618-M-read.dat");
    QtFolder folder(ToQString(testing::Utf8(directory.Path())));
    EXPECT_TRUE(folder.FileNames().empty());
}

TEST(QtFolder, IsHeldByOneAtATime) {
    const TestDirectory directory;
    QtFolder first(ToQString(testing::Utf8(directory.Path())));
    QtFolder second(ToQString(testing::Utf8(directory.Path())), 10);
    auto hold = first.Hold();
    ASSERT_TRUE(hold);
    EXPECT_FALSE(second.Hold());
    hold.reset();
    EXPECT_TRUE(second.Hold());
}

} // namespace
} // namespace zelvor
