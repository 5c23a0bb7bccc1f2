#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "cli/Console.h"
#include "data/DataFile.h"

namespace zelvor {
class FileStore;
}

namespace zelvor::cli {

inline constexpr TextPair Unreadable{"cannot be read", "无法读取"};
inline constexpr TextPair Unwritable{"cannot be written", "无法写入"};

/// A data file as it was read. What is changed in the image leaves the head of the file as it was.
struct RadioFile {
    std::string path;
    DataFileBytes bytes;
    DataImage image;
};

/// Nothing, and told, where it cannot be read or is no data file.
[[nodiscard]] std::optional<RadioFile> ReadRadioFile(FileStore& store, const std::string& path, const Console& console);

/// The bytes of the file with its image as it is by now.
[[nodiscard]] DataFileBytes BytesOf(const RadioFile& file);

/// False, and told, where it cannot be written; what was there is then as it was.
[[nodiscard]] bool WriteBytes(FileStore& store, const std::string& path, std::span<const std::uint8_t> bytes,
                              const Console& console);

} // namespace zelvor::cli
