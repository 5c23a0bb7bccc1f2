#include "channels/FrequencyEntry.h"

#include "platform/MessageBoxes.h"
#include "platform/Services.h"

namespace zelvor {

namespace {

constexpr TextPair OutOfRangeText{"Frequency is out of range.", "频率超出范围。"};

} // namespace

NormalisedFrequency EnterFrequency(const DataImage& image, std::string_view text, Services& services, Language language,
                                   const TextPair& caption) {
    NormalisedFrequency result = NormaliseFrequency(text, SetBandLimits(image));
    if (result.outOfRange) {
        services.messages.Show({std::string(caption.In(language)), std::string(OutOfRangeText.In(language)),
                                MessageIcon::Exclamation, MessageButtons::Ok, MessageAnswer::Ok});
    }
    return result;
}

} // namespace zelvor
