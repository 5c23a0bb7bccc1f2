#include "simulator/program/MemoryFile.h"

#include <fstream>
#include <string>
#include <system_error>
#include <vector>

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

bool WriteMemoryFile(const fs::path& path, const DataImage& memory) {
    std::error_code error;
    const fs::path target = fs::exists(path, error) ? fs::canonical(path, error) : path;
    const fs::file_status status = fs::status(target, error);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        return false;
    }
    const fs::path fresh = target.string() + ".part-" + std::to_string(getpid());
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
