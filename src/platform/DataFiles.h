#pragma once

#include <string>

#include "data/DataFile.h"

namespace zelvor {

class FileStore;

[[nodiscard]] DataFileRead ReadDataFile(FileStore& store, const std::string& path);

/// The tail of a longer file stays, although such a file cannot be opened. False leaves the old file as it was.
[[nodiscard]] bool WriteDataFile(FileStore& store, const std::string& path, const DataImage& image);

} // namespace zelvor
