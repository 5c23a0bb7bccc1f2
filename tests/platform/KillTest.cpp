// A process that saves all the time, killed at any moment. ZELVOR_KILLS says how often; scripts/kill-and-power says
// more than the tests of every day.

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>
#include <thread>

#include "ChildProcess.h"
#include "ProgramsFiles.h"
#include "fakes/FakeClock.h"
#include "platform/BackupName.h"
#include "platform/Backups.h"
#include "platform/QtFolder.h"
#include "platform/Toolkit.h"

namespace zelvor::testing {
namespace {

namespace fs = std::filesystem;

int Kills() {
    const char* told = std::getenv("ZELVOR_KILLS");
    return told != nullptr ? static_cast<int>(std::strtol(told, nullptr, 10)) : 20;
}

DataImage ImageOf(std::uint8_t byte) {
    DataImage image;
    image.Fill(byte);
    return image;
}

/// Lets a process work for a moment, and kills it.
class Killing {
public:
    Killing() { std::cout << "seed " << seed_ << std::endl; }

    void AtAnyMoment(const std::function<void()>& work) {
        const pid_t child = Fork([&work]() -> int {
            for (;;) {
                work();
            }
        });
        std::uniform_int_distribution<int> moment(0, 30'000);
        std::this_thread::sleep_for(std::chrono::microseconds(moment(random_)));
        kill(child, SIGKILL);
        EXPECT_TRUE(WIFSIGNALED(EndOf(child)));
    }

private:
    std::random_device::result_type seed_ = std::random_device()();
    std::mt19937 random_{seed_};
};

TEST(Kill, InASaveLeavesTheOldOrTheNewFileAndTheNextSaveClearsTheRest) {
    Killing killing;
    int isNew = 0;
    int left = 0;
    for (int i = 0; i < Kills(); ++i) {
        const TestDirectory directory;
        const fs::path path = directory / "radio.dat";
        ASSERT_TRUE(WriteDataFile(path, ImageOf(1)));
        killing.AtAnyMoment([&] {
            static_cast<void>(WriteDataFile(path, ImageOf(2)));
            static_cast<void>(WriteDataFile(path, ImageOf(1)));
        });
        const DataFileRead file = ReadDataFile(path);
        ASSERT_EQ(file.error, DataFileError::None);
        ASSERT_TRUE(file.image == ImageOf(1) || file.image == ImageOf(2));
        isNew += file.image == ImageOf(2) ? 1 : 0;
        left += EntriesOf(directory.Path()).size() > 1 ? 1 : 0;
        ASSERT_TRUE(WriteDataFile(path, ImageOf(3)));
        ASSERT_EQ(EntriesOf(directory.Path()), (std::vector<std::string>{"radio.dat"}));
    }
    std::cout << "killed in saves: " << Kills() << ", " << isNew << " with the new file, " << left
              << " with a temporary file left" << std::endl;
}

TEST(Kill, InABackupLeavesWholeOnesAndTheNextOneIsKept) {
    Killing killing;
    int whole = 0;
    int left = 0;
    for (int i = 0; i < Kills(); ++i) {
        const TestDirectory directory;
        QtFileStore store;
        QtFolder folder(ToQString(Utf8(directory / "backups")));
        FakeClock clock;
        clock.SetNow({2026, 11, 22, 1, 45, 0});
        Backups backups(store, folder, clock);
        killing.AtAnyMoment([&] { static_cast<void>(backups.Keep(ImageOf(2), BackupDirection::Read)); });
        for (const BackupName& name : backups.List()) {
            ASSERT_EQ(ReadDataFile(backups.PathOf(name)).image, ImageOf(2)) << name.Text();
        }
        const std::size_t before = backups.List().size();
        fs::create_directory(directory / "backups"); // killed before it was made
        left += EntriesOf(directory / "backups").size() > before ? 1 : 0;
        whole += static_cast<int>(before);
        ASSERT_TRUE(backups.Keep(ImageOf(3), BackupDirection::Write));
        ASSERT_EQ(backups.List().size(), before + 1);
        ASSERT_EQ(EntriesOf(directory / "backups").size(), before + 1); // neither a lock nor what was to be a backup
    }
    std::cout << "killed in backups: " << Kills() << ", with " << whole << " whole ones, " << left
              << " with a lock or a temporary file left" << std::endl;
}

} // namespace
} // namespace zelvor::testing
