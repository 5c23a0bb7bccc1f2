#include "channels/FrequencyEntry.h"

#include "data/Session.h"
#include "platform/MessageBoxes.h"
#include "platform/Services.h"

namespace zelvor {

namespace {

constexpr TextPair OutOfRangeText{"Frequency is out of range.", "频率超出范围。"};

} // namespace

NormalisedFrequency EnterFrequency(const Session& session, Services& services, std::string_view text,
                                   const TextPair& caption) {
    NormalisedFrequency result = NormaliseFrequency(text, SetBandLimits(session.Image));
    if (result.outOfRange) {
        const Language language = session.LanguageFlag;
        services.messages.Show({std::string(caption.In(language)), std::string(OutOfRangeText.In(language)),
                                MessageIcon::Exclamation, MessageButtons::Ok, MessageAnswer::Ok});
    }
    return result;
}

} // namespace zelvor
