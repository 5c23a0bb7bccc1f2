#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/Language.h"

namespace zelvor {

/// A tone in the image, low byte first. hi 0x00 or 0xFF: none. hi bit 5: DQT, a nine-bit octal code with bit 7 for
/// inverted. Otherwise QT in tenths of a hertz, binary.
struct ToneWord {
    std::uint8_t lo = 0xFF;
    std::uint8_t hi = 0xFF;
    bool operator==(const ToneWord&) const = default;
};

/// The text of a tone word: "None" in the language, "67.0", "D023N". Nothing for a QT value that has neither three nor
/// four digits: the text decoded before then stays.
[[nodiscard]] std::optional<std::string> ToneText(ToneWord word, Language language);

/// Whether it is a tone that a user can enter, or none.
[[nodiscard]] bool IsLegalTone(ToneWord word);

/// Encodes tone texts. A DQT text with neither N nor I keeps the polarity of the text before it, so this is an object.
class ToneEncoder {
public:
    [[nodiscard]] ToneWord Encode(std::string_view text, Language language);

private:
    bool inverted_ = false;
};

inline constexpr int ToneListSize = 205;

/// The tones a user chooses from: none, 38 QT, 83 DQT normal, the same 83 inverted.
[[nodiscard]] std::vector<std::string> BuildToneList(Language language);

/// What a typed tone becomes when its editor is left. The result need not be in the tone list: any tenth of a hertz
/// from 67.0 to 254.1 and any octal code is accepted on purpose.
[[nodiscard]] std::string NormaliseTone(std::string_view text, Language language);

} // namespace zelvor
