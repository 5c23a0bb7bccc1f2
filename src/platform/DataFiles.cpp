#include "platform/DataFiles.h"

#include <optional>

#include "platform/FileStore.h"

namespace zelvor {

DataFileRead ReadDataFile(FileStore& store, const std::string& path) {
    const auto bytes = store.Read(path, DataFileSize + 1); // one more than a file may have shows that it has too many
    if (!bytes) {
        return {DataFileError::Unreadable, {}};
    }
    const std::optional<DataImage> image = DecodeDataFile(*bytes);
    if (!image) {
        return {DataFileError::WrongType, {}};
    }
    return {DataFileError::None, *image};
}

bool WriteDataFile(FileStore& store, const std::string& path, const DataImage& image) {
    return store.Write(path, EncodeDataFile(image), FileTail::Keep);
}

} // namespace zelvor
