#include "data/CellTranslation.h"

#include "data/ChannelRecord.h"
#include "data/ChannelTable.h"
#include "data/ChannelWords.h"
#include "data/MemoryMap.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

bool IsWord(std::string_view text, Text word) {
    return text == TableText(Language::English, word) || text == TableText(Language::Chinese, word);
}

std::string Word(Text word, Language language) {
    return std::string(TableText(language, word));
}

std::string EitherWord(std::string_view text, Text word, Text otherwise, Language language) {
    return Word(IsWord(text, word) ? word : otherwise, language);
}

/// Made anew from the record: the cell's own text counts only where the record's value has no word.
std::string CorvanePttId(std::string_view text, int choice, Language language) {
    constexpr int noWord = 15;
    if (choice == 0) {
        return Word(Text::Off, language);
    }
    if (choice == 1) {
        return Word(Text::Own, language);
    }
    if (choice <= 1 + record::FleetListCount) {
        return FleetListText(language, choice - 1);
    }
    return choice == noWord ? std::string() : std::string(text);
}

std::string PttId(std::string_view text, const DataImage& image, int k, Language language) {
    switch (image.At(address::PttIdType)) {
    case record::TypeDtmf:
        return EitherWord(text, Text::On, Text::Off, language);
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
        return IsWord(text, Text::None) ? Word(Text::None, language) : std::string(text);
    case column::Power:
        return EitherWord(text, Text::High, Text::Low, language);
    case column::Width:
        return EitherWord(text, Text::Wide, Text::Narrow, language);
    case column::ScanAdd:
        return EitherWord(text, Text::Yes, Text::No, language);
    case column::PttId:
        return PttId(text, image, k, language);
    default:
        return std::string(text);
    }
}

} // namespace zelvor
