#include "data/OptionalFields.h"

#include <algorithm>

#include "data/Windows1252.h"

namespace zelvor::optional_features {

std::string ShowTimeOut(int steps, Language language) {
    return ShowNumber(steps * TimeOutStep, language);
}

int ReadTimeOut(std::string_view text) {
    const int seconds = LeadingNumber(text);
    const int steps = (seconds + TimeOutStep - 1) / TimeOutStep;
    return std::clamp(steps, TimeOutTimer.first, TimeOutTimer.last);
}

int ReadUpToTen(std::string_view text) {
    return std::min(LeadingNumber(text), 10);
}

int ReadSquelchLevel(std::string_view text) {
    const int level = LeadingNumber(text);
    return level <= 0xFF ? level : SquelchLevel.last;
}

std::u16string LoadCode(const DataImage& image, const PttCode& code) {
    std::u16string text;
    for (int i = 0; i < PttCodeLength; ++i) {
        const std::uint8_t byte = image.At(code.address + i);
        if (byte != BlankByte) {
            text += Windows1252Character(byte);
        }
    }
    return text;
}

void StoreCode(DataImage& image, const PttCode& code, std::u16string_view text) {
    for (int i = 0; i < PttCodeLength; ++i) {
        if (text.empty()) {
            image.Set(code.address + i, BlankByte);
        } else if (static_cast<std::size_t>(i) < text.size()) {
            const char16_t character = text[static_cast<std::size_t>(i)];
            image.Set(code.address + i, Windows1252Byte(character).value_or(BlankByte));
        }
    }
}

CodeErrorKind MissingCodes(PttIdChoice choice, const DataImage& image) {
    return MissingCodes(choice,
                        {image.At(PttCodes[0].address) == BlankByte, image.At(PttCodes[1].address) == BlankByte});
}

} // namespace zelvor::optional_features
