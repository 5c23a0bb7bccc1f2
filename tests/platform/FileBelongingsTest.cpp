// What a save keeps of the old file beside its tail, what it forces onto the disk, and what it clears away.

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "ChildProcess.h"
#include "platform/FileStore.h"
#include "platform/QtFileStore.h"
#include "support/TestDirectory.h"

namespace {

/// What this program does instead of calls of the system, or beside them, which the code under test reaches through it:
/// the system's functions have no other way to tests than a variable of the program.
std::function<int(int)> syncInstead;
std::function<void()> beforeTheRenaming;
std::function<void()> behindTheAttributesSize;

std::string PathOfDescriptor(int descriptor) {
    std::array<char, 4096> path{};
    const ssize_t length = readlink(("/proc/self/fd/" + std::to_string(descriptor)).c_str(), path.data(), path.size());
    return {path.data(), static_cast<std::size_t>(length < 0 ? 0 : length)};
}

} // namespace

extern "C" int fsync(int descriptor) {
    if (syncInstead) {
        return syncInstead(descriptor);
    }
    return static_cast<int>(syscall(SYS_fsync, descriptor));
}

extern "C" int rename(const char* from, const char* to) noexcept {
    if (beforeTheRenaming) {
        beforeTheRenaming();
    }
    return static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}

extern "C" ssize_t flistxattr(int descriptor, char* list, size_t size) noexcept {
    const ssize_t length = syscall(SYS_flistxattr, descriptor, list, size);
    if (size == 0 && behindTheAttributesSize) {
        std::exchange(behindTheAttributesSize, nullptr)();
    }
    return length;
}

namespace zelvor::testing {
namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

const std::string NewContent(1040, 'n');

/// Owner rw-, user 65534 rw-, group r--, mask rw-, others ---.
const std::string AccessList("\x02\x00\x00\x00"
                             "\x01\x00\x06\x00\xFF\xFF\xFF\xFF"
                             "\x02\x00\x06\x00\xFE\xFF\x00\x00"
                             "\x04\x00\x04\x00\xFF\xFF\xFF\xFF"
                             "\x10\x00\x06\x00\xFF\xFF\xFF\xFF"
                             "\x20\x00\x00\x00\xFF\xFF\xFF\xFF",
                             44);

bool Save(const fs::path& path) {
    const std::vector<std::uint8_t> bytes(NewContent.begin(), NewContent.end());
    QtFileStore store;
    return store.Write(Utf8(path), bytes, FileTail::Keep);
}

struct stat StatusOf(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0);
    return status;
}

/// Leaves in the folder what a process leaves that is killed just before it would give the new file its name.
void LeaveAnUnfinishedSave(const fs::path& path) {
    const int status = EndOf(Fork([&] {
        beforeTheRenaming = [] { static_cast<void>(raise(SIGKILL)); };
        return Save(path) ? Written : Refused;
    }));
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "the fault did not fire";
}

class Belongings : public ::testing::Test {
protected:
    void SetUp() override { PutFile(Path(), "old"); }
    [[nodiscard]] fs::path Path() const { return directory / "radio.dat"; }

    TestDirectory directory;
};

TEST_F(Belongings, AreTheExtendedAttributesToo) {
    const std::string note = "dealer 17";
    if (setxattr(Path().c_str(), "user.note", note.data(), note.size(), 0) != 0) {
        GTEST_SKIP() << "the file system has no attributes";
    }
    const ino_t before = StatusOf(Path()).st_ino;
    ASSERT_TRUE(Save(Path()));
    std::array<char, 100> value{};
    ASSERT_EQ(getxattr(Path().c_str(), "user.note", value.data(), value.size()), 9);
    EXPECT_EQ(std::string(value.data()), note);
    EXPECT_EQ(FileContent(Path()), NewContent);
    EXPECT_NE(StatusOf(Path()).st_ino, before) << "written in place, and so not indivisibly";
}

TEST_F(Belongings, AreAlsoAttributesThatComeWhileItIsSaved) {
    const std::string note = "dealer 17";
    if (setxattr(Path().c_str(), "user.note", note.data(), note.size(), 0) != 0) {
        GTEST_SKIP() << "the file system has no attributes";
    }
    ASSERT_EQ(removexattr(Path().c_str(), "user.note"), 0);
    int set = -1;
    behindTheAttributesSize = [&] { set = setxattr(Path().c_str(), "user.note", note.data(), note.size(), 0); };
    ASSERT_TRUE(Save(Path()));
    ASSERT_EQ(set, 0) << "the fault did not fire";
    std::array<char, 100> value{};
    ASSERT_EQ(getxattr(Path().c_str(), "user.note", value.data(), value.size()), 9);
    EXPECT_EQ(std::string(value.data()), note);
    EXPECT_EQ(FileContent(Path()), NewContent);
}

TEST_F(Belongings, AreTheAccessListToo) {
    if (setxattr(Path().c_str(), "system.posix_acl_access", AccessList.data(), AccessList.size(), 0) != 0) {
        GTEST_SKIP() << "the file system has no access lists";
    }
    ASSERT_TRUE(Save(Path()));
    std::array<char, 100> value{};
    ASSERT_EQ(getxattr(Path().c_str(), "system.posix_acl_access", value.data(), value.size()), 44);
    EXPECT_EQ(std::string(value.data(), 44), AccessList);
    EXPECT_EQ(StatusOf(Path()).st_mode & 07777U, 0660U);
}

TEST_F(Belongings, AreNotWhatAFolderHandsDownToNewFiles) {
    if (setxattr(directory.Path().c_str(), "system.posix_acl_default", AccessList.data(), AccessList.size(), 0) != 0) {
        GTEST_SKIP() << "the file system has no access lists";
    }
    ASSERT_TRUE(Save(Path()));
    EXPECT_EQ(getxattr(Path().c_str(), "system.posix_acl_access", nullptr, 0), -1);
    ASSERT_TRUE(Save(directory / "fresh.dat"));
    EXPECT_EQ(getxattr((directory / "fresh.dat").c_str(), "system.posix_acl_access", nullptr, 0), 44);
}

TEST_F(Belongings, AreTheOtherNamesOfTheFile) {
    fs::create_hard_link(Path(), directory / "same.dat");
    ASSERT_TRUE(Save(Path()));
    EXPECT_EQ(FileContent(directory / "same.dat"), NewContent);
    EXPECT_EQ(fs::hard_link_count(Path()), 2U);
    EXPECT_EQ(EntriesOf(directory.Path()), (Names{"radio.dat", "same.dat"}));
}

TEST_F(Belongings, AreTheOtherNamesAndTheTailOfALongerFile) {
    PutFile(Path(), std::string(1100, 'o'));
    fs::create_hard_link(Path(), directory / "same.dat");
    ASSERT_TRUE(Save(directory / "same.dat"));
    EXPECT_EQ(FileContent(Path()), NewContent + std::string(60, 'o'));
}

TEST_F(Belongings, OfManyNamesStayWholeOnAFullDisk) {
    fs::create_hard_link(Path(), directory / "same.dat");
    const pid_t child = Fork([&] {
        static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
        const rlimit limit{600, 600};
        setrlimit(RLIMIT_FSIZE, &limit);
        return Save(Path()) ? Written : Refused;
    });
    EXPECT_EQ(AnswerOf(child), Refused);
    EXPECT_EQ(FileContent(Path()), "old");
}

TEST_F(Belongings, AreOwnerAndGroupWhereAnAdministratorSaves) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs an administrator";
    }
    ASSERT_EQ(chown(Path().c_str(), Nobody, 12), 0);
    ASSERT_EQ(chmod(Path().c_str(), 0640), 0);
    const ino_t before = StatusOf(Path()).st_ino;
    ASSERT_TRUE(Save(Path()));
    EXPECT_EQ(StatusOf(Path()).st_uid, Nobody);
    EXPECT_EQ(StatusOf(Path()).st_gid, 12U);
    EXPECT_EQ(StatusOf(Path()).st_mode & 07777U, 0640U);
    EXPECT_NE(StatusOf(Path()).st_ino, before) << "written in place, and so not indivisibly";
    EXPECT_EQ(FileContent(Path()), NewContent);
}

TEST_F(Belongings, AreOwnerAndGroupWhereAnotherUserSaves) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs an administrator to make somebody else's file";
    }
    ASSERT_EQ(chmod(Path().c_str(), 0666), 0);
    EXPECT_EQ(AnswerOfChild([&] { return BecomeNobody() ? (Save(Path()) ? Written : Refused) : NoFault; }), Written);
    EXPECT_EQ(StatusOf(Path()).st_uid, 0U);
    EXPECT_EQ(StatusOf(Path()).st_gid, 0U);
    EXPECT_EQ(FileContent(Path()), NewContent);
    EXPECT_EQ(EntriesOf(directory.Path()), (Names{"radio.dat"}));
}

class Disk : public Belongings {
protected:
    ~Disk() override {
        syncInstead = nullptr;
        beforeTheRenaming = nullptr;
    }

    /// "sync <what>" and "rename", as they come.
    void RecordEvents() {
        syncInstead = [this](int descriptor) {
            const std::string path = PathOfDescriptor(descriptor);
            events.push_back(path == directory.Path() ? "sync folder" : "sync file");
            contentAtSync =
                events.size() == 1 ? FileContent("/proc/self/fd/" + std::to_string(descriptor)) : contentAtSync;
            return static_cast<int>(syscall(SYS_fsync, descriptor));
        };
        beforeTheRenaming = [this] { events.emplace_back("rename"); };
    }

    Names events;
    std::string contentAtSync;
};

TEST_F(Disk, HasTheNewFileBeforeItTakesTheNameAndTheNameBeforeTheSaveIsDone) {
    RecordEvents();
    ASSERT_TRUE(Save(Path()));
    EXPECT_EQ(events, (Names{"sync file", "rename", "sync folder"}));
    EXPECT_EQ(contentAtSync, NewContent);
}

TEST_F(Disk, HasAFreshFileToo) {
    RecordEvents();
    ASSERT_TRUE(Save(directory / "fresh.dat"));
    EXPECT_EQ(events, (Names{"sync file", "rename", "sync folder"}));
}

TEST_F(Disk, HasAFileOfManyNamesWhenTheSaveIsDone) {
    fs::create_hard_link(Path(), directory / "same.dat");
    RecordEvents();
    ASSERT_TRUE(Save(Path()));
    EXPECT_EQ(events, (Names{"sync file"}));
    EXPECT_EQ(contentAtSync, NewContent);
}

TEST_F(Disk, ThatDoesNotTakeTheNewFileLeavesTheOldOne) {
    for (const int fault : {EIO, ENOSPC, EDQUOT}) {
        syncInstead = [fault](int) {
            errno = fault;
            return -1;
        };
        EXPECT_FALSE(Save(Path())) << fault;
        EXPECT_EQ(FileContent(Path()), "old");
        EXPECT_EQ(EntriesOf(directory.Path()), (Names{"radio.dat"}));
    }
}

TEST_F(Disk, ThatDoesNotTakeTheNewNameIsNoSuccess) {
    for (const int fault : {EIO, ENOSPC, EDQUOT}) {
        syncInstead = [this, fault](int descriptor) {
            errno = fault;
            return PathOfDescriptor(descriptor) == directory.Path() ? -1 : 0;
        };
        EXPECT_FALSE(Save(Path())) << fault;
        EXPECT_EQ(EntriesOf(directory.Path()), (Names{"radio.dat"}));
    }
}

TEST_F(Disk, ThatCannotSyncIsNoHindrance) {
    syncInstead = [](int) {
        errno = EINVAL;
        return -1;
    };
    EXPECT_TRUE(Save(Path()));
    EXPECT_EQ(FileContent(Path()), NewContent);
}

class Leftovers : public Belongings {};

TEST_F(Leftovers, OfAKilledSaveAreGoneAfterTheNextOneInThatFolder) {
    LeaveAnUnfinishedSave(Path());
    const Names left = EntriesOf(directory.Path());
    ASSERT_EQ(left.size(), 2U);
    EXPECT_EQ(left[0].substr(0, 8), ".zelvor-");
    EXPECT_EQ(FileContent(Path()), "old");
    LeaveAnUnfinishedSave(directory / "other.dat"); // sweeps before it is killed
    EXPECT_EQ(EntriesOf(directory.Path()).size(), 2U);
    ASSERT_TRUE(Save(Path()));
    EXPECT_EQ(EntriesOf(directory.Path()), (Names{"radio.dat"}));
}

TEST_F(Leftovers, OfAFileSystemThatNamesItsFilesAtOnceAreGoneToo) {
    PutFile(directory / ".zelvor-17.tmp.QbXyZa", "half");
    ASSERT_TRUE(Save(Path()));
    EXPECT_EQ(EntriesOf(directory.Path()), (Names{"radio.dat"}));
}

TEST_F(Leftovers, AreNotTheFilesOfALivingProcess) {
    std::array<int, 2> ready{};
    std::array<int, 2> goOn{};
    ASSERT_EQ(pipe(ready.data()), 0);
    ASSERT_EQ(pipe(goOn.data()), 0);
    const pid_t child = Fork([&] {
        beforeTheRenaming = [&] {
            char byte = 0;
            if (write(ready[1], "x", 1) != 1 || read(goOn[0], &byte, 1) != 1) {
                _exit(NoFault);
            }
        };
        return Save(directory / "slow.dat") ? Written : Refused;
    });
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    ASSERT_TRUE(Save(Path()));
    EXPECT_EQ(EntriesOf(directory.Path()).size(), 2U) << "the other's file is gone";
    ASSERT_EQ(write(goOn[1], "x", 1), 1);
    EXPECT_EQ(AnswerOf(child), Written);
    EXPECT_EQ(EntriesOf(directory.Path()), (Names{"radio.dat", "slow.dat"}));
    for (const int end : {ready[0], ready[1], goOn[0], goOn[1]}) {
        close(end);
    }
}

TEST_F(Leftovers, AreNothingElse) {
    const Names others{".zelvor-.tmp",    ".zelvor-1.tmp.bak", ".zelvor-1.tmp.backup2",
                       ".zelvor-12a.tmp", "radio.dat.QbXyZa",  "x.zelvor-1.tmp"};
    for (const std::string& name : others) {
        PutFile(directory / name, "somebody's");
    }
    fs::create_directory(directory / ".zelvor-4.tmp");
    ASSERT_EQ(mkfifo((directory / ".zelvor-5.tmp").c_str(), 0666), 0);
    fs::create_symlink("radio.dat.QbXyZa", directory / ".zelvor-6.tmp");
    const Names before = EntriesOf(directory.Path());
    ASSERT_TRUE(Save(Path()));
    EXPECT_EQ(EntriesOf(directory.Path()), before);
}

TEST_F(Leftovers, OfAnotherUserStay) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs an administrator to make somebody else's file";
    }
    PutFile(directory / ".zelvor-3.tmp", "half");
    ASSERT_EQ(chown((directory / ".zelvor-3.tmp").c_str(), Nobody, Nobody), 0);
    ASSERT_TRUE(Save(Path()));
    EXPECT_EQ(EntriesOf(directory.Path()), (Names{".zelvor-3.tmp", "radio.dat"}));
}

} // namespace
} // namespace zelvor::testing
