#include "cli/BackupCommands.h"

#include <gtest/gtest.h>
#include <sstream>

#include "fakes/FakeClock.h"
#include "fakes/FakeFolder.h"
#include "platform/Backups.h"

namespace zelvor::cli {
namespace {

class BackupCommandsTest : public ::testing::Test {
protected:
    FakeFileStore store_;
    FakeFolder folder_{store_};
    FakeClock clock_;
    Backups backups_{store_, folder_, clock_};
    std::ostringstream out_;
    std::ostringstream err_;
    Console console_{out_, err_};
};

TEST_F(BackupCommandsTest, ListThePathsNewestFirst) {
    for (const char* name : {"2026-11-22T014502-4618-M-read.dat", "2026-11-22T014502-4618-M-write-2.dat",
                             "2025-01-01T000000-5618-C2-read.dat", "notes.txt"}) {
        store_.Put("/backups/" + std::string(name), "x");
    }
    EXPECT_EQ(ListBackups(backups_, console_), ExitStatus::Done);
    EXPECT_EQ(out_.str(), "/backups/2026-11-22T014502-4618-M-write-2.dat\n"
                          "/backups/2026-11-22T014502-4618-M-read.dat\n"
                          "/backups/2025-01-01T000000-5618-C2-read.dat\n");
    EXPECT_EQ(err_.str(), "");
}

TEST_F(BackupCommandsTest, ListNothingWhereThereIsNone) {
    EXPECT_EQ(ListBackups(backups_, console_), ExitStatus::Done);
    EXPECT_EQ(out_.str(), "");
}

TEST_F(BackupCommandsTest, TellTheirFolder) {
    EXPECT_EQ(TellBackupFolder(backups_, console_), ExitStatus::Done);
    EXPECT_EQ(out_.str(), "/backups\n");
}

} // namespace
} // namespace zelvor::cli
