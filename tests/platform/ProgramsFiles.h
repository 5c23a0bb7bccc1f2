#pragma once

#include <filesystem>

#include "platform/DataFiles.h"
#include "platform/QtFileStore.h"
#include "support/TestDirectory.h"

namespace zelvor::testing {

/// As the window program does.
inline DataFileRead ReadDataFile(const std::filesystem::path& path) {
    QtFileStore store;
    return zelvor::ReadDataFile(store, Utf8(path));
}

inline bool WriteDataFile(const std::filesystem::path& path, const DataImage& image) {
    QtFileStore store;
    return zelvor::WriteDataFile(store, Utf8(path), image);
}

} // namespace zelvor::testing
