#pragma once

#include <filesystem>

#include "data/DataFile.h"

namespace zelvor {

[[nodiscard]] DataFileRead ReadMemoryFile(const std::filesystem::path& path);

/// Tried out, and nothing left behind: what the permissions say does not hold everywhere.
[[nodiscard]] bool CanWriteMemoryFile(const std::filesystem::path& path);

/// The file appears whole or not at all; rights and links of an old one stay, also a link to
/// no file yet. False where it cannot be written, also
/// where something stands there that is no file.
[[nodiscard]] bool WriteMemoryFile(const std::filesystem::path& path, const DataImage& memory);

} // namespace zelvor
