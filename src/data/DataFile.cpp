#include "data/DataFile.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace zelvor {
namespace {

namespace fs = std::filesystem;

constexpr std::uint8_t ReservedByte = 0xFF;
constexpr std::streamsize CopyBlock = 64 * 1024;

/// A file that disappears with this object, unless it was moved away before.
class TemporaryFile {
public:
    explicit TemporaryFile(fs::path path) : path_(std::move(path)) {}
    ~TemporaryFile() {
        std::error_code ignored;
        fs::remove(path_, ignored);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    [[nodiscard]] const fs::path& Path() const { return path_; }

private:
    fs::path path_;
};

/// The file behind a chain of links, which need not exist; nothing for links in a circle.
std::optional<fs::path> FollowLinks(fs::path path) {
    constexpr int MostLinks = 40;
    std::error_code error;
    for (int i = 0; i < MostLinks; ++i) {
        if (!fs::is_symlink(fs::symlink_status(path, error))) {
            return path;
        }
        const fs::path target = fs::read_symlink(path, error);
        if (error) {
            return std::nullopt;
        }
        path = path.parent_path() / target;
    }
    return std::nullopt;
}

bool IsReadOnly(fs::perms permissions) {
    constexpr fs::perms AnyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    return (permissions & AnyWrite) == fs::perms::none;
}

/// Opening for update neither creates nor shortens the file. The bits are looked at as well, since an administrator can
/// open a read-only file.
bool MayReplace(const fs::path& path, const fs::file_status& status) {
    return fs::is_regular_file(status) && !IsReadOnly(status.permissions()) &&
           std::fstream(path, std::ios::binary | std::ios::in | std::ios::out).is_open();
}

/// A name beside the target that no file has: only within one directory is the last step, the renaming, indivisible.
fs::path UnusedNameBeside(const fs::path& target) {
    std::random_device random;
    std::error_code ignored;
    fs::path path;
    do {
        const std::uint64_t number = (static_cast<std::uint64_t>(random()) << 32U) | random();
        path = target.parent_path() / (".zelvor-" + std::to_string(number) + ".tmp");
    } while (fs::exists(fs::symlink_status(path, ignored)));
    return path;
}

bool CopyTail(const fs::path& from, std::ostream& to) {
    std::ifstream file(from, std::ios::binary);
    if (!file.is_open()) {
        return false;
    }
    file.seekg(static_cast<std::streamoff>(DataFileSize));
    std::vector<char> block(static_cast<std::size_t>(CopyBlock));
    while (file && to) {
        file.read(block.data(), CopyBlock);
        to.write(block.data(), file.gcount());
    }
    return file.eof() && to.good();
}

bool WriteBytes(std::ostream& file, const DataFileBytes& bytes) {
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    return file.good();
}

template<typename FileStream>
bool Finish(FileStream& file) {
    file.flush();
    const bool flushed = file.good();
    file.close();
    return flushed && file.good();
}

enum class Replacement {
    Done,
    Failed,
    NotAllowed, // the directory takes no new file, or not in place of this one
};

/// status is the target's; the new file takes over the rights and the tail of one that exists.
Replacement ReplaceFile(const fs::path& target, const fs::file_status& status, const DataFileBytes& bytes) {
    const TemporaryFile temporary(UnusedNameBeside(target));
    std::ofstream file(temporary.Path(), std::ios::binary | std::ios::trunc);
    if (!file.is_open()) {
        return Replacement::NotAllowed;
    }
    const bool exists = fs::exists(status);
    if (!WriteBytes(file, bytes) || (exists && !CopyTail(target, file)) || !Finish(file)) {
        return Replacement::Failed;
    }
    std::error_code error;
    if (exists) {
        fs::permissions(temporary.Path(), status.permissions(), error);
        if (error) {
            return Replacement::Failed;
        }
    }
    fs::rename(temporary.Path(), target, error);
    return error ? Replacement::NotAllowed : Replacement::Done;
}

bool WriteInPlace(const fs::path& path, const DataFileBytes& bytes) {
    std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
    return WriteBytes(file, bytes) && Finish(file);
}

} // namespace

DataFileBytes EncodeDataFile(const DataImage& image) {
    DataFileBytes bytes;
    bytes.fill(ReservedByte);
    std::copy(DataFileMagic.begin(), DataFileMagic.end(), bytes.begin());
    const DataImage::Bytes memory = image.ToAddressOrder();
    std::copy(memory.begin(), memory.end(), bytes.begin() + DataFileHeadSize);
    return bytes;
}

std::optional<DataImage> DecodeDataFile(std::span<const std::uint8_t> bytes) {
    if (bytes.size() != DataFileSize || !std::equal(DataFileMagic.begin(), DataFileMagic.end(), bytes.begin())) {
        return std::nullopt;
    }
    return DataImage::FromAddressOrder(bytes.subspan<DataFileHeadSize, DataImage::Size>());
}

DataFileRead ReadDataFile(const fs::path& path) {
    std::error_code error;
    if (!fs::is_regular_file(path, error)) {
        return {DataFileError::Unreadable, {}};
    }
    std::ifstream file(path, std::ios::binary);
    if (!file.is_open()) {
        return {DataFileError::Unreadable, {}};
    }
    std::array<std::uint8_t, DataFileSize + 1> bytes{}; // one more than a file may have shows that it has too many
    file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (file.bad()) {
        return {DataFileError::Unreadable, {}};
    }
    const auto count = static_cast<std::size_t>(file.gcount());
    const std::optional<DataImage> image = DecodeDataFile(std::span<const std::uint8_t>(bytes).first(count));
    if (!image) {
        return {DataFileError::WrongType, {}};
    }
    return {DataFileError::None, *image};
}

bool WriteDataFile(const fs::path& path, const DataImage& image) {
    const std::optional<fs::path> target = FollowLinks(path);
    if (!target || !target->has_filename()) {
        return false;
    }
    std::error_code error;
    const fs::file_status status = fs::status(*target, error);
    const bool exists = status.type() != fs::file_type::not_found;
    if (exists && !MayReplace(*target, status)) {
        return false;
    }
    const DataFileBytes bytes = EncodeDataFile(image);
    switch (ReplaceFile(*target, status, bytes)) {
    case Replacement::Done:
        return true;
    case Replacement::Failed:
        return false;
    case Replacement::NotAllowed:
        return exists && WriteInPlace(*target, bytes);
    }
    return false;
}

} // namespace zelvor
