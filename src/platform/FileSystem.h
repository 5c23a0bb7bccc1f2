#pragma once

#include <QFile>
#include <QString>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvor {

// What the toolkit's file classes, and the standard library's, leave to each system. The standard library opens no long
// path on Windows, and counts a file's names wrong there: nobody else looks at files by its means.

/// The path that a text in UTF-8 spells. On Windows it is a full one; empty for the name of a device, which stands in
/// every folder there.
[[nodiscard]] std::filesystem::path FilePathOf(std::string_view text);

/// The path as the toolkit wants it.
[[nodiscard]] QString ToolkitName(const std::filesystem::path& path);

/// What a symbolic link says; nothing where the path leads to none.
[[nodiscard]] std::optional<std::filesystem::path> LinkTarget(const std::filesystem::path& path);

enum class FileState {
    Missing,
    Writable,
    ReadOnly, // for all; of the rights of single users it does not tell
};

/// Of what stands behind the path, and behind a link there.
[[nodiscard]] FileState StateOf(const std::filesystem::path& path);

/// Whether nothing has this name, not even a link that leads nowhere.
[[nodiscard]] bool IsNameFree(const std::filesystem::path& path);

/// Names of the files in a folder, not of the folders in it, in no order. Nothing where it is no folder or not all of
/// it can be read.
[[nodiscard]] std::optional<std::vector<std::string>> FileNamesIn(const std::filesystem::path& folder);

/// The path of what has this name in the folder, as it is spelled.
[[nodiscard]] std::string PathIn(const std::string& folder, const std::string& name);

/// Whether two paths lead to one file, whatever its names. False where one leads nowhere.
[[nodiscard]] bool LeadToSameFile(std::string_view left, std::string_view right);

/// Opens a file that exists, without waiting, and only where it is a regular one.
[[nodiscard]] bool OpenRegularFile(QFile& file, const std::filesystem::path& path, QIODevice::OpenMode mode);

/// Whether the file has more than this one name in the file system.
[[nodiscard]] bool HasOtherNames(const QFile& file);

/// Makes owner, group, rights, access lists and extended attributes of one file those of another. False where
/// something of it cannot be had. Where PutInPlace does it, this does nothing.
[[nodiscard]] bool TakeOverBelongings(const QFile& from, QFileDevice& to);

/// Forces the content onto the disk. False where the disk did not take it.
[[nodiscard]] bool SyncFile(QFileDevice& file);

/// Gives a closed file the name of another one in its folder, which it replaces in one step. False leaves both where
/// they are: another program may have the old file open.
[[nodiscard]] bool PutInPlace(const std::filesystem::path& fresh, const std::filesystem::path& target);

/// Forces the name of a file that was put in place onto the disk, where the system can. False where the disk did not
/// take it.
[[nodiscard]] bool SyncNameOf(const std::filesystem::path& target);

void RemoveFile(const std::filesystem::path& path);

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
