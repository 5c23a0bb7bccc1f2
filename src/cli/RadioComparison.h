#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "data/DataImage.h"

namespace zelvor::cli {

/// What a write sends for each address of the radio; nothing where it does not reach.
using SentBytes = std::array<std::optional<std::uint8_t>, DataImage::Size>;
[[nodiscard]] SentBytes SentByWrite(DataImage image);

/// A byte of a radio that is not what it should be.
struct WrongByte {
    int address;
    std::uint8_t expected;
    std::uint8_t found;

    bool operator==(const WrongByte&) const = default;
};
/// "0x1CC: FF -> 00": expected and found.
[[nodiscard]] std::string WrongByteText(const WrongByte& byte);

/// The radio compared with a file, in the 760 bytes that a write takes from it. Some of them a write sets itself: there
/// both are right, what the file has and what a write makes of it.
[[nodiscard]] std::vector<WrongByte> CompareWithFile(const DataImage& radio, const DataImage& file);

/// The radio just after the image was written to it: everything that was sent as it was sent, and everything else as it
/// was before, where that is known.
[[nodiscard]] std::vector<WrongByte> CompareAfterWrite(const DataImage& radio, const DataImage& written,
                                                       const std::optional<DataImage>& before);

} // namespace zelvor::cli
