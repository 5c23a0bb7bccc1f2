#include "cli/LegalText.h"

#include <vector>

namespace zelvor::cli {

namespace {

constexpr TextPair To{" to ", " 至 "};
constexpr TextPair By{" by ", "，步进 "};
constexpr TextPair Digits{" digits", " 位数字"};
constexpr TextPair DtmfDigits{" DTMF digits", " 位 DTMF 数字"};
constexpr TextPair Characters{" characters", " 个字符"};
constexpr TextPair Empty{"empty", "空"};

std::string Joined(const std::vector<std::string>& texts, std::string_view between) {
    std::string joined;
    for (const std::string& text : texts) {
        joined += (joined.empty() ? std::string_view() : between);
        joined += text;
    }
    return joined;
}

std::string RangeText(const LegalValues::Range& range, Language language) {
    std::string text = range.first;
    text.append(To.In(language)).append(range.last).append(By.In(language)).append(range.step);
    return text;
}

const TextPair& NameOf(TextField::Characters kind) {
    switch (kind) {
    case TextField::Characters::Digits:
        return Digits;
    case TextField::Characters::Dtmf:
        return DtmfDigits;
    case TextField::Characters::Windows1252:
        break;
    }
    return Characters;
}

std::string CharactersText(const LegalValues::Characters& characters, Language language) {
    std::string text = std::to_string(characters.least);
    text.append(To.In(language)).append(std::to_string(characters.most)).append(NameOf(characters.kind).In(language));
    return text;
}

} // namespace

std::string LegalText(const LegalValues& legal, Language language) {
    std::vector<std::string> parts;
    if (!legal.words.empty()) {
        parts.push_back(Joined(legal.words, ", "));
    }
    if (legal.range) {
        parts.push_back(RangeText(*legal.range, language));
    }
    if (legal.codes) {
        parts.push_back(RangeText(*legal.codes, language));
    }
    if (legal.characters) {
        parts.push_back(CharactersText(*legal.characters, language));
    }
    if (legal.mayBeEmpty) {
        parts.emplace_back(Empty.In(language));
    }
    return Joined(parts, "; ");
}

} // namespace zelvor::cli
