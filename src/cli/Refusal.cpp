#include "cli/Refusal.h"

#include <vector>

#include "cli/Console.h"
#include "cli/LegalText.h"
#include "data/ChannelFields.h"
#include "data/ChannelWords.h"
#include "data/IdentityFields.h"
#include "data/LegalFrequency.h"
#include "data/TestFrequencies.h"

namespace zelvor::cli {

namespace {

constexpr TextPair NoneOf{"is none of: ", "不属于："};
constexpr TextPair NotSettable{"the identity cannot be set; \"zelvor-cli new\" makes an image of another model",
                               "机型不能设置；用 \"zelvor-cli new\" 生成其他机型的映像"};
constexpr TextPair IsBlank{"the channel is blank, and takes a receive frequency first", "信道为空，须先有接收频率"};
constexpr TextPair NoPttIds{"under the PTT ID Type of the image there is none", "此映像的 PTT ID 类型下没有可用的值"};
constexpr TextPair NoNumber{"is no frequency in MHz", "不是以 MHz 为单位的频率"};
constexpr TextPair OutOfRange{"is outside the range in MHz of ", "超出范围 (MHz)："};
constexpr TextPair OffRaster{"is no multiple of 5 kHz or 6.25 kHz", "不是 5 kHz 或 6.25 kHz 的倍数"};
constexpr TextPair NoDigits{"has other characters than 0 to 9", "含有 0 至 9 以外的字符"};
constexpr TextPair NoDtmfDigits{"has other characters than 0 to 9, A to D, * and #",
                                "含有 0 至 9、A 至 D、* 和 # 以外的字符"};
constexpr TextPair NotStorable{"has characters that cannot be stored", "含有无法存储的字符"};

std::string Quoted(std::string_view text) {
    return '"' + Printable(text) + "\" ";
}

std::string NoneOfText(std::string_view text, const LegalValues& legal, Language language) {
    return Quoted(text) + std::string(NoneOf.In(language)) + LegalText(legal, language);
}

std::string FrequencyRefusal(std::string_view text, const DataImage& image, Language language) {
    const BandLimits limits = SetBandLimits(image);
    std::string reason = Quoted(text);
    switch (ReadTypedFrequency(Trimmed(text), limits).fault) {
    case FrequencyFault::OutOfRange:
        return reason.append(OutOfRange.In(language)) + std::to_string(limits.BandLowerMHz) + '-' +
               std::to_string(limits.BandUpperMHz);
    case FrequencyFault::OffRaster:
        return reason.append(OffRaster.In(language));
    case FrequencyFault::NoNumber:
    case FrequencyFault::None:
        break;
    }
    return reason.append(NoNumber.In(language));
}

std::string ChannelRefusal(const ChannelField& field, std::string_view text, const DataImage& image,
                           Language language) {
    const bool isReceive = field.column == ChannelColumn::Receive;
    if (!isReceive && IsChannelBlank(image, field.channel)) {
        return std::string(IsBlank.In(language));
    }
    if (isReceive || field.column == ChannelColumn::Transmit) {
        return FrequencyRefusal(text, image, language);
    }
    if (field.column != ChannelColumn::PttId) {
        return NoneOfText(text, LegalValuesOf(field, Language::English), language);
    }
    const std::vector<std::string> words = PttIdTexts(image, Language::English);
    return words.empty() ? std::string(NoPttIds.In(language)) : NoneOfText(text, {.words = words}, language);
}

const TextPair& OtherCharacters(TextField::Characters kind) {
    switch (kind) {
    case TextField::Characters::Digits:
        return NoDigits;
    case TextField::Characters::Dtmf:
        return NoDtmfDigits;
    case TextField::Characters::Windows1252:
        break;
    }
    return NotStorable;
}

} // namespace

std::string RefusalOf(const Field& field, std::string_view text, const DataImage& image, Language language) {
    if (const auto* channel = field.As<ChannelField>()) {
        return ChannelRefusal(*channel, text, image, language);
    }
    if (field.As<IdentityField>() != nullptr) {
        return std::string(NotSettable.In(language));
    }
    if (field.As<TestFrequencyField>() != nullptr) {
        return FrequencyRefusal(text, image, language);
    }
    const auto* code = field.As<TextField>();
    if (code != nullptr && !HasItsCharacters(*code, text)) {
        return Quoted(text) + std::string(OtherCharacters(code->characters).In(language));
    }
    return NoneOfText(text, field.Legal(Language::English), language);
}

} // namespace zelvor::cli
