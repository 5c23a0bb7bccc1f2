// Faults that need the operating system's help: limits, rights, links, pipes.

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "ChildProcess.h"
#include "ProgramsFiles.h"

namespace zelvor::testing {
namespace {

namespace fs = std::filesystem;

void LimitFileSize(rlim_t bytes) {
    const rlimit limit{bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limit);
}

DataImage SomeImage() {
    DataImage image;
    image.Set(0x133, 0x01);
    return image;
}

/// Writes with no room for more than so many bytes a file.
int WriteWithRoomFor(rlim_t bytes, const fs::path& path, const fs::path& probe) {
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
    LimitFileSize(bytes);
    std::ofstream file(probe, std::ios::binary);
    file << std::string(bytes + 1, 'x') << std::flush;
    if (file.good()) {
        return NoFault;
    }
    return WriteDataFile(path, SomeImage()) ? Written : Refused;
}

TEST(FullDisk, LeavesTheOldFileAndNothingElse) {
    for (const rlim_t room : {0, 1, 512, 1039}) {
        const TestDirectory directory;
        const TestDirectory elsewhere;
        PutFile(directory / "radio.dat", "the old file");
        EXPECT_EQ(AnswerOfChild([&] { return WriteWithRoomFor(room, directory / "radio.dat", elsewhere / "probe"); }),
                  Refused);
        EXPECT_EQ(FileContent(directory / "radio.dat"), "the old file");
        EXPECT_EQ(EntriesOf(directory.Path()), (std::vector<std::string>{"radio.dat"}));
    }
}

TEST(FullDisk, LeavesNoNewFile) {
    const TestDirectory directory;
    const TestDirectory elsewhere;
    EXPECT_EQ(AnswerOfChild([&] { return WriteWithRoomFor(600, directory / "radio.dat", elsewhere / "probe"); }),
              Refused);
    EXPECT_TRUE(EntriesOf(directory.Path()).empty());
}

TEST(FullDisk, LeavesALongerFileWholeWhereItsTailDoesNotFit) {
    // A short tail is held back until the file is flushed, a long one is not.
    for (const std::size_t size : {1140U, 5000U, 300000U}) {
        const TestDirectory directory;
        const TestDirectory elsewhere;
        const std::string content(size, 'o');
        PutFile(directory / "radio.dat", content);
        EXPECT_EQ(
            AnswerOfChild([&] { return WriteWithRoomFor(size - 1, directory / "radio.dat", elsewhere / "probe"); }),
            Refused)
            << size;
        EXPECT_EQ(FileContent(directory / "radio.dat"), content);
        EXPECT_EQ(EntriesOf(directory.Path()), (std::vector<std::string>{"radio.dat"}));
    }
}

TEST(FullDisk, DoesNotMatterWhereTheFileJustFits) {
    const TestDirectory directory;
    const TestDirectory elsewhere;
    EXPECT_EQ(AnswerOfChild([&] { return WriteWithRoomFor(1040, directory / "radio.dat", elsewhere / "probe"); }),
              Written);
    EXPECT_EQ(ReadDataFile(directory / "radio.dat").image, SomeImage());
}

TEST(Crash, InTheMiddleOfAWriteLeavesTheOldFileWhole) {
    const TestDirectory directory;
    PutFile(directory / "radio.dat", "the old file");
    const int status = EndOf(Fork([&] {
        const rlimit noCore{0, 0};
        setrlimit(RLIMIT_CORE, &noCore);
        static_cast<void>(std::signal(SIGXFSZ, SIG_DFL)); // the write beyond the limit ends the process
        LimitFileSize(100);
        return WriteDataFile(directory / "radio.dat", SomeImage()) ? Written : Refused;
    }));
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGXFSZ);
    EXPECT_EQ(FileContent(directory / "radio.dat"), "the old file");
}

TEST(AccessRights, RefuseANewFileInADirectoryThatMayNotBeChanged) {
    const TestDirectory directory;
    fs::permissions(directory.Path(), fs::perms(0555));
    EXPECT_EQ(AnswerOfChild([&] {
                  if (!BecomeNobody() || std::ofstream(directory / "probe").is_open()) {
                      return NoFault;
                  }
                  return WriteDataFile(directory / "new.dat", SomeImage()) ? Written : Refused;
              }),
              Refused);
    EXPECT_TRUE(EntriesOf(directory.Path()).empty());
}

TEST(AccessRights, AllowAWriteToAWritableFileInADirectoryThatMayNotBeChanged) {
    for (const std::size_t size : {12U, 1040U, 1100U}) {
        const TestDirectory directory;
        PutFile(directory / "radio.dat", std::string(size, 'o'));
        fs::permissions(directory / "radio.dat", fs::perms(0666));
        fs::permissions(directory.Path(), fs::perms(0555));
        EXPECT_EQ(AnswerOfChild([&] {
                      if (!BecomeNobody() || std::ofstream(directory / "probe").is_open()) {
                          return NoFault;
                      }
                      return WriteDataFile(directory / "radio.dat", SomeImage()) ? Written : Refused;
                  }),
                  Written);
        const std::string content = FileContent(directory / "radio.dat");
        EXPECT_EQ(content.substr(0, 6), "RQ6152");
        EXPECT_EQ(content.substr(0x143, 2), "\x01\xFF"); // the byte that is not FF, and its neighbour
        EXPECT_EQ(content.substr(std::min<std::size_t>(content.size(), 1040)), std::string(size > 1040 ? 60 : 0, 'o'));
        EXPECT_EQ(EntriesOf(directory.Path()), (std::vector<std::string>{"radio.dat"}));
    }
}

TEST(AccessRights, AllowAWriteToAWritableFileThatOnlyItsOwnerMayReplace) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs an administrator to make somebody else's file";
    }
    const TestDirectory directory;
    PutFile(directory / "radio.dat", std::string(1040, 'o'));
    fs::permissions(directory / "radio.dat", fs::perms(0666));
    fs::permissions(directory.Path(), fs::perms(01777));
    EXPECT_EQ(AnswerOfChild([&] {
                  if (!BecomeNobody() ||
                      std::rename((directory / "radio.dat").c_str(), (directory / "x").c_str()) == 0) {
                      return NoFault;
                  }
                  return WriteDataFile(directory / "radio.dat", SomeImage()) ? Written : Refused;
              }),
              Written);
    EXPECT_EQ(ReadDataFile(directory / "radio.dat").image, SomeImage());
    EXPECT_EQ(EntriesOf(directory.Path()), (std::vector<std::string>{"radio.dat"}));
}

TEST(AccessRights, RefuseAWriteToAFileThatBelongsToSomebodyElse) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs an administrator to make somebody else's file";
    }
    const TestDirectory directory;
    PutFile(directory / "radio.dat", "the old file");
    fs::permissions(directory / "radio.dat", fs::perms(0644));
    EXPECT_EQ(AnswerOfChild([&] {
                  if (!BecomeNobody() || !std::ofstream(directory / "probe").is_open()) {
                      return NoFault;
                  }
                  fs::remove(directory / "probe");
                  return WriteDataFile(directory / "radio.dat", SomeImage()) ? Written : Refused;
              }),
              Refused);
    EXPECT_EQ(FileContent(directory / "radio.dat"), "the old file");
    EXPECT_EQ(EntriesOf(directory.Path()), (std::vector<std::string>{"radio.dat"}));
}

TEST(AccessRights, HideAFileFromTheReader) {
    const TestDirectory directory;
    ASSERT_TRUE(WriteDataFile(directory / "radio.dat", SomeImage()));
    fs::permissions(directory / "radio.dat", fs::perms(0000));
    EXPECT_EQ(AnswerOfChild([&] {
                  if (!BecomeNobody()) {
                      return NoFault;
                  }
                  return ReadDataFile(directory / "radio.dat").error == DataFileError::Unreadable ? Refused : Written;
              }),
              Refused);
}

TEST(AccessRights, OfAFileStayWhenItIsReplaced) {
    for (const unsigned rights : {0600U, 0640U, 0664U, 0777U, 0200U}) {
        const TestDirectory directory;
        PutFile(directory / "radio.dat", "old");
        fs::permissions(directory / "radio.dat", fs::perms(rights));
        ASSERT_TRUE(WriteDataFile(directory / "radio.dat", SomeImage())) << rights;
        EXPECT_EQ(fs::status(directory / "radio.dat").permissions(), fs::perms(rights));
        EXPECT_EQ(fs::file_size(directory / "radio.dat"), 1040U);
    }
}

TEST(AccessRights, OfANewFileFollowTheMaskOfTheProcess) {
    const TestDirectory directory;
    EXPECT_EQ(AnswerOfChild([&] {
                  umask(0027);
                  return WriteDataFile(directory / "radio.dat", SomeImage()) ? Written : Refused;
              }),
              Written);
    EXPECT_EQ(fs::status(directory / "radio.dat").permissions(), fs::perms(0640));
}

TEST(Links, StayAndLeadToTheNewContent) {
    const TestDirectory directory;
    fs::create_directory(directory / "radios");
    PutFile(directory / "radios" / "real.dat", "old");
    fs::create_symlink(fs::path("radios") / "real.dat", directory / "near.dat"); // relative
    fs::create_symlink(directory / "near.dat", directory / "far.dat");           // a link to a link
    ASSERT_TRUE(WriteDataFile(directory / "far.dat", SomeImage()));
    EXPECT_TRUE(fs::is_symlink(directory / "far.dat"));
    EXPECT_TRUE(fs::is_symlink(directory / "near.dat"));
    EXPECT_FALSE(fs::is_symlink(directory / "radios" / "real.dat"));
    EXPECT_EQ(ReadDataFile(directory / "radios" / "real.dat").image, SomeImage());
    EXPECT_EQ(ReadDataFile(directory / "far.dat").error, DataFileError::None);
    EXPECT_EQ(EntriesOf(directory / "radios"), (std::vector<std::string>{"real.dat"}));
    EXPECT_EQ(EntriesOf(directory.Path()), (std::vector<std::string>{"far.dat", "near.dat", "radios"}));
}

TEST(Links, ToNoFileCreateIt) {
    const TestDirectory directory;
    fs::create_symlink("later.dat", directory / "link.dat");
    ASSERT_TRUE(WriteDataFile(directory / "link.dat", SomeImage()));
    EXPECT_TRUE(fs::is_symlink(directory / "link.dat"));
    EXPECT_EQ(ReadDataFile(directory / "later.dat").image, SomeImage());
}

TEST(Links, InACircleAreRefused) {
    const TestDirectory directory;
    fs::create_symlink("b.dat", directory / "a.dat");
    fs::create_symlink("a.dat", directory / "b.dat");
    EXPECT_FALSE(WriteDataFile(directory / "a.dat", SomeImage()));
    EXPECT_EQ(ReadDataFile(directory / "a.dat").error, DataFileError::Unreadable);
    EXPECT_EQ(EntriesOf(directory.Path()), (std::vector<std::string>{"a.dat", "b.dat"}));
}

TEST(OddFiles, AreNeitherReadNorReplaced) {
    const TestDirectory directory;
    ASSERT_EQ(mkfifo((directory / "pipe.dat").c_str(), 0666), 0);
    EXPECT_EQ(ReadDataFile(directory / "pipe.dat").error, DataFileError::Unreadable);
    EXPECT_FALSE(WriteDataFile(directory / "pipe.dat", SomeImage()));
    EXPECT_TRUE(fs::is_fifo(directory / "pipe.dat"));
    EXPECT_EQ(EntriesOf(directory.Path()), (std::vector<std::string>{"pipe.dat"}));
    EXPECT_FALSE(WriteDataFile("/dev/full", SomeImage()));
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

} // namespace
} // namespace zelvor::testing
