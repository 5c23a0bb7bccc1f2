#include "data/OptionalFields.h"

#include <algorithm>

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

CodeErrorKind MissingCodes(PttIdChoice choice, const DataImage& image) {
    return MissingCodes(choice,
                        {image.At(PttCodes[0].address) == ErasedByte, image.At(PttCodes[1].address) == ErasedByte});
}

} // namespace zelvor::optional_features
