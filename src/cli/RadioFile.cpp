#include "cli/RadioFile.h"

#include <algorithm>

#include "platform/FileStore.h"

namespace zelvor::cli {

namespace {

constexpr TextPair WrongType{"is no data file", "不是数据文件"};

} // namespace

std::optional<RadioFile> ReadRadioFile(FileStore& store, const std::string& path, const Console& console) {
    const auto bytes = store.Read(path, DataFileSize + 1); // one more than a file may have shows that it has too many
    if (!bytes) {
        console.Complain(path, Unreadable);
        return std::nullopt;
    }
    const std::optional<DataImage> image = DecodeDataFile(*bytes);
    if (!image) {
        console.Complain(path, WrongType);
        return std::nullopt;
    }
    RadioFile file{path, {}, *image};
    std::ranges::copy(*bytes, file.bytes.begin());
    return file;
}

DataFileBytes BytesOf(const RadioFile& file) {
    DataFileBytes bytes = EncodeDataFile(file.image);
    std::copy_n(file.bytes.begin(), DataFileHeadSize, bytes.begin());
    return bytes;
}

bool WriteBytes(FileStore& store, const std::string& path, std::span<const std::uint8_t> bytes,
                const Console& console) {
    if (store.Write(path, bytes, FileTail::Drop)) {
        return true;
    }
    console.Complain(path, Unwritable);
    return false;
}

} // namespace zelvor::cli
