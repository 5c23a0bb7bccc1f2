#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/DataImage.h"
#include "text/Language.h"

namespace zelvor {

// The words that bytes 12 to 15 of a channel record stand for. An empty text stands for no legal value.

[[nodiscard]] std::string_view OptSignalWord(std::uint8_t byte12, Language language);
[[nodiscard]] std::string_view BusyLockWord(std::uint8_t byte12, Language language);
[[nodiscard]] std::string_view SpMuteWord(std::uint8_t byte12, Language language);
[[nodiscard]] std::string_view PowerWord(std::uint8_t byte13, Language language);
[[nodiscard]] std::string_view WidthWord(std::uint8_t byte13, Language language);

/// pttIdType is the image's byte at address::PttIdType; the text is empty where it is neither DTMF nor Corvane.
[[nodiscard]] std::string PttIdWord(std::uint8_t pttIdType, std::uint8_t byte14, Language language);

/// "1" to "8".
[[nodiscard]] std::string AutoDialWord(std::uint8_t byte15);

/// The PTT ID texts that a channel may have under the image's PTT ID Type, in the order of their list; empty for a type
/// other than DTMF and Corvane.
[[nodiscard]] std::vector<std::string> PttIdTexts(const DataImage& image, Language language);

/// "Fleet List n" in the language.
[[nodiscard]] std::string FleetListText(Language language, int n);

} // namespace zelvor
