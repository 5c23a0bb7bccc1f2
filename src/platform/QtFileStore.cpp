#include "platform/QtFileStore.h"

#include <QSaveFile>
#include <algorithm>
#include <filesystem>
#include <random>
#include <regex>

#include "platform/FileSystem.h"

namespace zelvor {

namespace {

namespace fs = std::filesystem;

using Bytes = std::span<const std::uint8_t>;

constexpr qint64 CopyBlock = 64 * 1024;
constexpr std::size_t FirstRead = 4096; // holds all of most files: the most that may be read is far more

/// The file behind a chain of links, which need not exist; nothing for links in a circle.
std::optional<fs::path> FollowLinks(fs::path path) {
    constexpr int MostLinks = 40;
    for (int i = 0; i < MostLinks; ++i) {
        const std::optional<fs::path> target = LinkTarget(path);
        if (!target) {
            return path;
        }
        path = path.parent_path() / *target;
    }
    return std::nullopt;
}

/// A name beside the target that no file has: only within one folder is the last step, the renaming, indivisible.
fs::path UnusedNameBeside(const fs::path& target) {
    std::random_device random;
    fs::path path;
    do {
        const std::uint64_t number = (static_cast<std::uint64_t>(random()) << 32U) | random();
        path = target.parent_path() / (".zelvor-" + std::to_string(number) + ".tmp");
    } while (!IsNameFree(path));
    return path;
}

/// Where the system cannot make a file without a name, the toolkit puts a dot and six letters behind the name until the
/// file is complete.
bool IsLeftoverName(const std::string& name) {
    return name.starts_with(".zelvor-") && // most files are told apart without the time that an expression takes
           std::regex_match(name, std::regex(R"(\.zelvor-[0-9]+\.tmp(\.[A-Za-z]{6})?)"));
}

void SweepLeftovers(const fs::path& folder) {
    const std::optional<std::vector<std::string>> names = FileNamesIn(folder);
    if (!names) {
        return;
    }
    for (const std::string& name : *names) {
        if (IsLeftoverName(name)) {
            RemoveUnclaimedFile(folder / name);
        }
    }
}

bool WriteBytes(QFileDevice& file, Bytes bytes) {
    const auto size = static_cast<qint64>(bytes.size());
    return file.write(reinterpret_cast<const char*>(bytes.data()), size) == size;
}

bool CopyTail(QFile& from, QFileDevice& to, Bytes head) {
    if (!from.seek(static_cast<qint64>(head.size()))) {
        return false;
    }
    for (;;) {
        const QByteArray block = from.read(CopyBlock);
        if (block.isEmpty()) {
            return from.atEnd() && from.error() == QFileDevice::NoError;
        }
        if (to.write(block) != block.size()) {
            return false;
        }
    }
}

enum class Replacement {
    Done,
    Failed,
    NotPossible, // the folder takes no new file, or the new file cannot be all that the old one is
};

/// old is open where there is a file to replace.
Replacement ReplaceWhole(const fs::path& target, QFile& old, Bytes bytes, FileTail tail) {
    const fs::path name = UnusedNameBeside(target);
    QSaveFile file(ToolkitName(name));
    if (!file.open(QIODevice::WriteOnly)) {
        return Replacement::NotPossible;
    }
    const FileClaim claim(file);
    if (!WriteBytes(file, bytes) || (old.isOpen() && tail == FileTail::Keep &&
                                     old.size() > static_cast<qint64>(bytes.size()) && !CopyTail(old, file, bytes))) {
        return Replacement::Failed;
    }
    if (old.isOpen() && !TakeOverBelongings(old, file)) {
        return Replacement::NotPossible;
    }
    if (!SyncFile(file) || !file.commit()) {
        return Replacement::Failed;
    }
    old.close(); // an open file cannot be replaced everywhere
    if (!PutInPlace(name, target)) {
        RemoveFile(name);
        return Replacement::NotPossible;
    }
    return SyncNameOf(target) ? Replacement::Done : Replacement::Failed;
}

constexpr QIODevice::OpenMode ForUpdate = QIODevice::ReadWrite | QIODevice::Unbuffered;

/// Where the disk does not take the bytes, the old ones are put back.
bool WriteInPlace(QFile& file, Bytes bytes, FileTail tail) {
    const qint64 oldSize = file.size();
    const auto newSize = static_cast<qint64>(bytes.size());
    if (!file.seek(0)) {
        return false;
    }
    const QByteArray oldHead = file.read(newSize);
    if (file.seek(0) && WriteBytes(file, bytes) && SyncFile(file)) {
        return tail == FileTail::Keep || oldSize <= newSize || file.resize(newSize);
    }
    [[maybe_unused]] const bool isRestored =
        file.seek(0) && file.write(oldHead) == oldHead.size() && file.flush() && file.resize(oldSize);
    return false;
}

} // namespace

std::optional<std::vector<std::string>> QtFileStore::NamesIn(const std::string& folder) {
    return folder.empty() ? std::nullopt : FileNamesIn(FilePathOf(folder));
}

std::optional<std::vector<std::uint8_t>> QtFileStore::Read(const std::string& path, std::size_t atMost) {
    QFile file;
    if (!OpenRegularFile(file, FilePathOf(path), QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return std::nullopt;
    }
    std::vector<std::uint8_t> bytes;
    bool isAtEnd = false;
    while (!isAtEnd && bytes.size() < atMost) {
        const std::size_t count = bytes.size();
        bytes.resize(std::min(atMost, std::max(FirstRead, 2 * count)));
        const qint64 length =
            file.read(reinterpret_cast<char*>(bytes.data() + count), static_cast<qint64>(bytes.size() - count));
        if (length < 0) {
            return std::nullopt;
        }
        bytes.resize(count + static_cast<std::size_t>(length));
        isAtEnd = length == 0;
    }
    return bytes;
}

bool QtFileStore::Write(const std::string& path, std::span<const std::uint8_t> bytes, FileTail tail) {
    const std::optional<fs::path> target = FollowLinks(FilePathOf(path));
    if (!target || !target->has_filename()) {
        return false;
    }
    const FileState state = StateOf(*target);
    const bool exists = state != FileState::Missing;
    QFile old;
    // The bits are looked at as well, since an administrator can open a read-only file.
    if (exists && (state == FileState::ReadOnly || !OpenRegularFile(old, *target, ForUpdate))) {
        return false;
    }
    SweepLeftovers(target->parent_path());
    if (exists && HasOtherNames(old)) {
        return WriteInPlace(old, bytes, tail);
    }
    switch (ReplaceWhole(*target, old, bytes, tail)) {
    case Replacement::Done:
        return true;
    case Replacement::Failed:
        return false;
    case Replacement::NotPossible:
        return exists && (old.isOpen() || OpenRegularFile(old, *target, ForUpdate)) && WriteInPlace(old, bytes, tail);
    }
    return false;
}

} // namespace zelvor
