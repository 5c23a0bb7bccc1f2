#include "channels/CellTranslation.h"

#include "channels/CellValues.h"
#include "data/ChannelRecord.h"
#include "data/ChannelWords.h"
#include "data/MemoryMap.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

bool IsWord(std::string_view text, int word) {
    return text == TableText(Language::English, word) || text == TableText(Language::Chinese, word);
}

std::string Word(int word, Language language) {
    return std::string(TableText(language, word));
}

std::string EitherWord(std::string_view text, int word, int otherwise, Language language) {
    return Word(IsWord(text, word) ? word : otherwise, language);
}

/// Made anew from the record: the cell's own text counts only where the record's value has no word.
std::string CorvanePttId(std::string_view text, int choice, Language language) {
    constexpr int noWord = 15;
    if (choice == 0) {
        return Word(words::Off, language);
    }
    if (choice == 1) {
        return Word(words::Own, language);
    }
    if (choice <= 1 + record::FleetListCount) {
        return FleetListText(language, choice - 1);
    }
    return choice == noWord ? std::string() : std::string(text);
}

std::string PttId(std::string_view text, const DataImage& image, int k, Language language) {
    switch (image.At(address::PttIdType)) {
    case record::TypeDtmf:
        return EitherWord(text, words::On, words::Off, language);
    case record::TypeCorvane:
        return CorvanePttId(text, image.At(address::Channel(k) + record::PttId) & 0x0F, language);
    default:
        return std::string(text);
    }
}

} // namespace

std::string TranslateCell(int column, std::string_view text, const DataImage& image, int k, Language language) {
    switch (column) {
    case column::Decode:
    case column::Encode:
    case column::OptSignal:
        return IsWord(text, words::None) ? Word(words::None, language) : std::string(text);
    case column::Power:
        return EitherWord(text, words::High, words::Low, language);
    case column::Width:
        return EitherWord(text, words::Wide, words::Narrow, language);
    case column::ScanAdd:
        return EitherWord(text, words::Yes, words::No, language);
    case column::PttId:
        return PttId(text, image, k, language);
    default:
        return std::string(text);
    }
}

} // namespace zelvor
