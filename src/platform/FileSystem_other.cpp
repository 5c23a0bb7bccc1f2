#include <QFileInfo>
#include <system_error>

#include "platform/FileSystem.h"

namespace zelvor {

QString ToolkitName(const std::filesystem::path& path) {
    return QString::fromStdU16String(path.u16string());
}

bool OpenRegularFile(QFile& file, const std::filesystem::path& path, QIODevice::OpenMode mode) {
    if (!QFileInfo(ToolkitName(path)).isFile()) {
        return false;
    }
    file.setFileName(ToolkitName(path));
    return file.open(mode | QIODevice::ExistingOnly);
}

bool HasOtherNames(const QFile& file) {
    std::error_code error;
    const auto names = std::filesystem::hard_link_count(file.filesystemFileName(), error);
    return !error && names > 1;
}

bool TakeOverBelongings(const QFile& from, QFileDevice& to) {
    return to.setPermissions(from.permissions());
}

bool SyncFile(QFileDevice& file) {
    return file.flush(); // the toolkit syncs a file before it takes its name
}

void SyncFolder(const std::filesystem::path& /*folder*/) {}

// An open file cannot be removed here: that is claim enough.
FileClaim::FileClaim(QFileDevice& /*file*/) {}

FileClaim::~FileClaim() = default;

void RemoveUnclaimedFile(const std::filesystem::path& path) {
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
}

} // namespace zelvor
