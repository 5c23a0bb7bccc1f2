#pragma once

#include <QFile>
#include <QString>
#include <filesystem>

namespace zelvor {

// What the toolkit's file classes leave to each system.

/// The path as the toolkit wants it.
[[nodiscard]] QString ToolkitName(const std::filesystem::path& path);

/// Opens a file that exists, without waiting, and only where it is a regular one.
[[nodiscard]] bool OpenRegularFile(QFile& file, const std::filesystem::path& path, QIODevice::OpenMode mode);

/// Whether the file has more than this one name in the file system.
[[nodiscard]] bool HasOtherNames(const QFile& file);

/// Makes owner, group, rights, access lists and extended attributes of one file those of another. False where
/// something of it cannot be had.
[[nodiscard]] bool TakeOverBelongings(const QFile& from, QFileDevice& to);

/// Forces the content onto the disk. False where the disk did not take it.
[[nodiscard]] bool SyncFile(QFileDevice& file);

/// Forces a renaming within the folder onto the disk, where the system can.
void SyncFolder(const std::filesystem::path& folder);

/// Tells other processes, as long as it lives, that this one is at work on the file. The file may be closed meanwhile.
class FileClaim {
public:
    explicit FileClaim(QFileDevice& file);
    ~FileClaim();
    FileClaim(const FileClaim&) = delete;
    FileClaim& operator=(const FileClaim&) = delete;

private:
    int descriptor_ = -1;
};

/// Removes a regular file of this user that no living process claims.
void RemoveUnclaimedFile(const std::filesystem::path& path);

} // namespace zelvor
