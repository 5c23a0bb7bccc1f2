#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "data/ChannelFields.h"
#include "data/DataImage.h"
#include "text/Language.h"

namespace zelvor {

/// Bits of a channel's byte that stand for words: the way back from the words of ChannelWords.h.
struct ChannelBits {
    std::uint8_t mask;
    std::span<const std::uint8_t> codes; // of the legal values
    std::string (*word)(const DataImage& image, std::uint8_t byte, Language language);
};

/// Nothing for a column that is no bits of a byte of the record.
[[nodiscard]] std::optional<ChannelBits> BitsOf(ChannelColumn column);

/// The word of a mark: "yes" or "no".
[[nodiscard]] std::string MarkWord(bool isMarked, Language language);

} // namespace zelvor
