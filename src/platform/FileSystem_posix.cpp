#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "platform/ExtendedAttributes.h"
#include "platform/FileSystem.h"

namespace zelvor {

namespace {

namespace fs = std::filesystem;

constexpr mode_t RightsBits = 07777;

int AccessOf(QIODevice::OpenMode mode) {
    if (!mode.testFlag(QIODevice::WriteOnly)) {
        return O_RDONLY;
    }
    return mode.testFlag(QIODevice::ReadOnly) ? O_RDWR : O_WRONLY;
}

/// A descriptor of a regular file; -1 for all else. Without O_NONBLOCK a pipe would wait for its other end.
int OpenRegular(const std::filesystem::path& path, int flags) {
    const int descriptor = open(path.c_str(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    struct stat status {};
    if (descriptor >= 0 && (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))) {
        close(descriptor);
        return -1;
    }
    return descriptor;
}

/// Syncs; false where the disk is at fault. A file system that cannot be synced says so in other ways.
bool Sync(int descriptor) {
    return fsync(descriptor) == 0 || (errno != EIO && errno != ENOSPC && errno != EDQUOT);
}

} // namespace

std::filesystem::path FilePathOf(std::string_view text) {
    return text;
}

QString ToolkitName(const std::filesystem::path& path) {
    return QFile::decodeName(path.c_str());
}

std::optional<std::filesystem::path> LinkTarget(const std::filesystem::path& path) {
    std::error_code error;
    fs::path target = fs::read_symlink(path, error);
    return error ? std::nullopt : std::optional(std::move(target));
}

FileState StateOf(const std::filesystem::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) {
        return FileState::Missing;
    }
    constexpr fs::perms AnyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    return (status.permissions() & AnyWrite) == fs::perms::none ? FileState::ReadOnly : FileState::Writable;
}

bool IsNameFree(const std::filesystem::path& path) {
    std::error_code error;
    return !fs::exists(fs::symlink_status(path, error));
}

std::optional<std::vector<std::string>> FileNamesIn(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    std::error_code error;
    for (auto entry = fs::directory_iterator(folder.empty() ? fs::path(".") : folder, error);
         !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code unknown; // a link that leads nowhere is no folder
        if (!entry->is_directory(unknown)) {
            names.push_back(entry->path().filename().string());
        }
    }
    return error ? std::nullopt : std::optional(std::move(names));
}

std::string PathIn(const std::string& folder, const std::string& name) {
    return folder + (folder.ends_with('/') ? "" : "/") + name;
}

bool LeadToSameFile(std::string_view left, std::string_view right) {
    std::error_code missing; // then they are not the same
    return fs::equivalent(FilePathOf(left), FilePathOf(right), missing);
}

bool OpenRegularFile(QFile& file, const std::filesystem::path& path, QIODevice::OpenMode mode) {
    const int descriptor = OpenRegular(path, AccessOf(mode));
    if (descriptor < 0) {
        return false;
    }
    if (!file.open(descriptor, mode, QFileDevice::AutoCloseHandle)) {
        close(descriptor);
        return false;
    }
    return true;
}

bool HasOtherNames(const QFile& file) {
    struct stat status {};
    return fstat(file.handle(), &status) == 0 && status.st_nlink > 1;
}

bool TakeOverBelongings(const QFile& from, QFileDevice& to) {
    struct stat old {};
    struct stat fresh {};
    if (fstat(from.handle(), &old) != 0 || fstat(to.handle(), &fresh) != 0) {
        return false;
    }
    const bool isOthers = old.st_uid != fresh.st_uid || old.st_gid != fresh.st_gid;
    if (isOthers && fchown(to.handle(), old.st_uid, old.st_gid) != 0) {
        return false;
    }
    // Rights last: another owner and an access list change them.
    return CopyExtendedAttributes(from.handle(), to.handle()) && fchmod(to.handle(), old.st_mode & RightsBits) == 0;
}

bool SyncFile(QFileDevice& file) {
    return file.flush() && Sync(file.handle());
}

bool PutInPlace(const std::filesystem::path& fresh, const std::filesystem::path& target) {
    std::error_code error;
    fs::rename(fresh, target, error);
    return !error;
}

bool SyncNameOf(const std::filesystem::path& target) {
    const fs::path folder = target.parent_path();
    const int descriptor = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) { // it may be written and not read
        return true;
    }
    const bool isTaken = Sync(descriptor);
    close(descriptor);
    return isTaken;
}

void RemoveFile(const std::filesystem::path& path) {
    std::error_code ignored;
    fs::remove(path, ignored);
}

FileClaim::FileClaim(QFileDevice& file) : descriptor_(fcntl(file.handle(), F_DUPFD_CLOEXEC, 0)) {
    if (descriptor_ >= 0) {
        [[maybe_unused]] const int ignored = flock(descriptor_, LOCK_EX | LOCK_NB);
    }
}

FileClaim::~FileClaim() {
    if (descriptor_ >= 0) {
        close(descriptor_);
    }
}

void RemoveUnclaimedFile(const std::filesystem::path& path) {
    const int descriptor = OpenRegular(path, O_RDWR | O_NOFOLLOW);
    if (descriptor < 0) {
        return;
    }
    struct stat status {};
    const bool isOurs = fstat(descriptor, &status) == 0 && status.st_uid == geteuid();
    if (isOurs && flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        [[maybe_unused]] const int ignored = unlink(path.c_str());
    }
    close(descriptor);
}

} // namespace zelvor
