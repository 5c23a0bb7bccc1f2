#pragma once

#include <filesystem>

#include "data/DataFile.h"

namespace zelvor {

[[nodiscard]] DataFileRead ReadMemoryFile(const std::filesystem::path& path);

/// The file appears whole or not at all; rights and links of an old one stay. False where it cannot be written, also
/// where something stands there that is no file.
[[nodiscard]] bool WriteMemoryFile(const std::filesystem::path& path, const DataImage& memory);

} // namespace zelvor
