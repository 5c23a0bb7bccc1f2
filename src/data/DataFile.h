#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "data/DataImage.h"

namespace zelvor {

/// The data file: 6 bytes "RQ6152", 10 bytes 0xFF, then the 1024 bytes of the memory in address order.
inline constexpr std::size_t DataFileSize = 1040;
inline constexpr std::size_t DataFileHeadSize = 16;
inline constexpr std::string_view DataFileMagic = "RQ6152";

using DataFileBytes = std::array<std::uint8_t, DataFileSize>;

[[nodiscard]] DataFileBytes EncodeDataFile(const DataImage& image);

/// The image in the bytes of a file; nothing where length or magic is wrong. The ten reserved bytes are not tested.
[[nodiscard]] std::optional<DataImage> DecodeDataFile(std::span<const std::uint8_t> bytes);

enum class DataFileError {
    None,
    WrongType,  // not 1040 bytes, or another magic
    Unreadable, // cannot be opened or read
};

struct DataFileRead {
    DataFileError error = DataFileError::None;
    DataImage image; // meaningful where error is None
};

} // namespace zelvor
