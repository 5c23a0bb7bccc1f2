#include "simulator/program/MemoryFile.h"

#include <fstream>
#include <string>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace zelvor {
namespace {

namespace fs = std::filesystem;

bool PutBytes(const fs::path& path, const DataFileBytes& bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return file.good();
}

/// The file behind a chain of links, which need not exist; the last link of one that is too long or a circle.
fs::path FollowLinks(fs::path path) {
    constexpr int MostLinks = 40;
    std::error_code error;
    for (int i = 0; i < MostLinks && fs::is_symlink(fs::symlink_status(path, error)); ++i) {
        path = path.parent_path() / fs::read_symlink(path, error);
    }
    return path;
}

/// Beside the target, to be renamed into its place.
fs::path FreshNameFor(const fs::path& target) {
    return target.string() + ".part-" + std::to_string(getpid());
}

/// Whether the old file, if there is one, may be replaced.
bool IsReplaceable(const fs::path& target) {
    std::error_code error;
    const fs::file_status status = fs::status(target, error);
    return status.type() == fs::file_type::not_found ||
           (fs::is_regular_file(status) && ::access(target.c_str(), W_OK) == 0);
}

} // namespace

DataFileRead ReadMemoryFile(const fs::path& path) {
    std::error_code error;
    if (!fs::is_regular_file(path, error)) {
        return {DataFileError::Unreadable, {}};
    }
    std::ifstream file(path, std::ios::binary);
    if (!file.is_open()) {
        return {DataFileError::Unreadable, {}};
    }
    std::vector<std::uint8_t> bytes(DataFileSize + 1); // one more than a file may have
    file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (file.bad()) {
        return {DataFileError::Unreadable, {}};
    }
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    const std::optional<DataImage> image = DecodeDataFile(bytes);
    if (!image) {
        return {DataFileError::WrongType, {}};
    }
    return {DataFileError::None, *image};
}

bool CanWriteMemoryFile(const fs::path& path) {
    const fs::path target = FollowLinks(path);
    if (!IsReplaceable(target)) {
        return false;
    }
    const fs::path fresh = FreshNameFor(target);
    const int descriptor = ::open(fresh.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    if (descriptor < 0) {
        return false;
    }
    ::close(descriptor);
    std::error_code ignored;
    fs::remove(fresh, ignored);
    return true;
}

bool WriteMemoryFile(const fs::path& path, const DataImage& memory) {
    const fs::path target = FollowLinks(path);
    if (!IsReplaceable(target)) {
        return false;
    }
    const fs::path fresh = FreshNameFor(target);
    std::error_code error;
    const fs::file_status status = fs::status(target, error);
    bool isWritten = PutBytes(fresh, EncodeDataFile(memory));
    if (isWritten && fs::exists(status)) {
        fs::permissions(fresh, status.permissions(), error);
        isWritten = !error;
    }
    if (isWritten) {
        fs::rename(fresh, target, error);
        isWritten = !error;
    }
    if (!isWritten) {
        std::error_code ignored;
        fs::remove(fresh, ignored);
    }
    return isWritten;
}

} // namespace zelvor
