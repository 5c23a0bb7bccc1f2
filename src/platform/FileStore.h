#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zelvor {

/// What becomes of the bytes of a longer file behind those that are written.
enum class FileTail {
    Drop,
    Keep,
};

/// Files, read and written whole. Paths are full or relative to the current directory, in the platform's spelling,
/// UTF-8. Only regular files are touched, and links to them: a pipe, a device or a folder is refused without waiting
/// for it.
class FileStore {
public:
    virtual ~FileStore() = default;

    /// Names of the files in the folder, not of the folders in it, in no order. Nothing where there is no such folder
    /// or not all of it can be read.
    [[nodiscard]] virtual std::optional<std::vector<std::string>> NamesIn(const std::string& folder) = 0;

    /// The file's bytes, but no more than atMost of them; nothing where there is no such file or it cannot be read.
    [[nodiscard]] virtual std::optional<std::vector<std::uint8_t>> Read(const std::string& path,
                                                                        std::size_t atMost) = 0;

    /// Puts bytes at the start of the file, which is made where there is none. They are on disk, whole, when this
    /// returns true. False leaves the old file as it was: the folder or the disk takes none, or the file is read-only.
    /// Of a disk that fails at the very last the new file may be there.
    [[nodiscard]] virtual bool Write(const std::string& path, std::span<const std::uint8_t> bytes, FileTail tail) = 0;
};

} // namespace zelvor
