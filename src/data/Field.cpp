#include "data/Field.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "data/Windows1252.h"
#include "text/Decimal.h"
#include "text/StringTable.h"
#include "text/Utf8.h"

namespace zelvor {

namespace {

constexpr Language Languages[] = {Language::English, Language::Chinese};

std::string TextIn(const FieldWord& word, Language language) {
    return std::string(word.In(language));
}

bool IsWord(const FieldWord& word, std::string_view text) {
    return std::ranges::any_of(Languages, [&](Language language) { return Trimmed(word.In(language)) == text; });
}

/// What a legal value is shown as once it is stored; one that is stored as none has no text.
std::string TextOf(const NumberField& field, int value, Language language) {
    DataImage image;
    StoreNumber(image, field, value);
    return LoadNumber(image, field, language).text;
}

bool IsNumber(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, [](char c) { return (c >= '0' && c <= '9') || c == '.'; });
}

/// The step between three texts or more that are numbers at the same distance from each other; empty where they are
/// not.
std::string StepOf(std::span<const std::string> texts) {
    if (texts.size() < 3 || !std::ranges::all_of(texts, IsNumber)) {
        return {};
    }
    const std::size_t point = texts[0].find('.');
    const int decimals = point == std::string::npos ? 0 : static_cast<int>(texts[0].size() - point - 1);
    const Decimal step = Decimal::Leading(texts[1]) - Decimal::Leading(texts[0]);
    for (std::size_t i = 1; i < texts.size(); ++i) {
        if (Decimal::Leading(texts[i]) - Decimal::Leading(texts[i - 1]) != step) {
            return {};
        }
    }
    return step.Format(1, decimals);
}

/// The characters as they are stored; nothing where one of them cannot be.
std::optional<std::u16string> Storable(const TextField& field, std::u16string_view text) {
    std::u16string stored;
    for (const char16_t character : text) {
        const char dtmf = DtmfDigit(character);
        const auto byte = Windows1252Byte(character);
        switch (field.characters) {
        case TextField::Characters::Digits:
            if (character < u'0' || character > u'9') {
                return std::nullopt;
            }
            stored += character;
            break;
        case TextField::Characters::Dtmf:
            if (dtmf == '\0') {
                return std::nullopt;
            }
            stored += static_cast<char16_t>(dtmf);
            break;
        case TextField::Characters::Windows1252:
            if (!byte || *byte == ErasedByte) {
                return std::nullopt;
            }
            stored += character;
            break;
        }
    }
    return stored;
}

void Erase(DataImage& image, const TextField& field) {
    for (int i = 0; i < field.size; ++i) {
        image.Set(field.address + i, ErasedByte);
    }
}

} // namespace

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// --- Lists -----------------------------------------------------------------------------------------------------------

std::string KeyOf(const ListField& field) {
    return std::string(field.key);
}

int AddressOf(const ListField& field) {
    return field.address;
}

int SizeOf(const ListField& /*field*/) {
    return 1;
}

std::string LabelOf(const ListField& field, Language language) {
    return TextIn(field.label, language);
}

std::string ShowValue(const ListField& field, const DataImage& image, Language language) {
    const int entry = EntryOf(field, image.At(field.address));
    return entry == ListField::NoEntry ? std::string() : TextIn(field.words[static_cast<std::size_t>(entry)], language);
}

LegalValues LegalValuesOf(const ListField& field, Language language) {
    LegalValues legal;
    for (const FieldWord& word : field.words) {
        legal.words.emplace_back(Trimmed(word.In(language)));
    }
    return legal;
}

bool ParseValue(const ListField& field, std::string_view text, DataImage& image) {
    const auto found = std::ranges::find_if(
        field.words, [typed = Trimmed(text)](const FieldWord& word) { return IsWord(word, typed); });
    if (found == field.words.end()) {
        return false;
    }
    image.Set(field.address, ByteOf(field, static_cast<int>(found - field.words.begin())).value());
    return true;
}

bool HoldsLegalValue(const ListField& field, const DataImage& image) {
    const std::uint8_t byte = image.At(field.address);
    const int entry = EntryOf(field, byte);
    return entry != ListField::NoEntry && (byte == ErasedByte || ByteOf(field, entry) == byte);
}

void StoreBlankValue(const ListField& field, DataImage& image) {
    image.Set(field.address, ByteOf(field, field.blank).value());
}

// --- Checks ----------------------------------------------------------------------------------------------------------

std::string KeyOf(const CheckField& field) {
    return std::string(field.key);
}

int AddressOf(const CheckField& field) {
    return field.address;
}

int SizeOf(const CheckField& /*field*/) {
    return 1;
}

std::string LabelOf(const CheckField& field, Language language) {
    return TextIn(field.label, language);
}

std::string ShowValue(const CheckField& field, const DataImage& image, Language language) {
    return std::string(TableText(language, IsOn(field, image.At(field.address)) ? Text::On : Text::Off));
}

LegalValues LegalValuesOf(const CheckField& /*field*/, Language language) {
    return {.words = {std::string(TableText(language, Text::Off)), std::string(TableText(language, Text::On))}};
}

bool ParseValue(const CheckField& field, std::string_view text, DataImage& image) {
    const bool on = IsWord(Text::On, Trimmed(text));
    if (!on && !IsWord(Text::Off, Trimmed(text))) {
        return false;
    }
    image.Set(field.address, on ? 1 : 0);
    return true;
}

bool HoldsLegalValue(const CheckField& field, const DataImage& image) {
    const std::uint8_t byte = image.At(field.address);
    return byte <= 1 || byte == ErasedByte;
}

void StoreBlankValue(const CheckField& field, DataImage& image) {
    image.Set(field.address, field.blank ? 1 : 0);
}

// --- Numbers ---------------------------------------------------------------------------------------------------------

std::string KeyOf(const NumberField& field) {
    return std::string(field.key);
}

int AddressOf(const NumberField& field) {
    return field.address;
}

int SizeOf(const NumberField& field) {
    return field.bytes;
}

std::string LabelOf(const NumberField& field, Language language) {
    return TextIn(field.label, language);
}

std::string ShowValue(const NumberField& field, const DataImage& image, Language language) {
    return LoadNumber(image, field, language).text;
}

/// A first value that is no number stands by itself; what follows is a range where it goes up evenly.
LegalValues LegalValuesOf(const NumberField& field, Language language) {
    std::vector<std::string> texts;
    for (int value = field.first; value <= field.last; ++value) {
        texts.push_back(TextOf(field, value, language));
    }
    LegalValues legal;
    std::size_t first = 0;
    if (texts[0].empty()) {
        legal.mayBeEmpty = true;
        first = 1;
    } else if (!IsNumber(texts[0])) {
        legal.words.push_back(texts[0]);
        first = 1;
    }
    const std::span rest = std::span(texts).subspan(first);
    if (std::string step = StepOf(rest); !step.empty()) {
        legal.range = {rest.front(), rest.back(), std::move(step)};
    } else {
        legal.words.insert(legal.words.end(), rest.begin(), rest.end());
    }
    return legal;
}

bool ParseValue(const NumberField& field, std::string_view text, DataImage& image) {
    const std::string_view typed = Trimmed(text);
    for (int value = field.first; value <= field.last; ++value) {
        for (const Language language : Languages) {
            if (TextOf(field, value, language) == typed) {
                StoreNumber(image, field, value);
                return true;
            }
        }
    }
    return false;
}

bool HoldsLegalValue(const NumberField& field, const DataImage& image) {
    const int low = image.At(field.address);
    const int high = field.bytes == 2 ? image.At(field.address + 1) : low;
    if (high == ErasedByte) {
        const bool showsLegal =
            field.showsErased || field.zeroByte || field.show(field.erased, Language::English).empty();
        return low == ErasedByte && showsLegal && field.erased >= field.first && field.erased <= field.last;
    }
    const int value = field.bytes == 2 ? high * 256 + low : low;
    return value >= field.first && value <= field.last && !(value == 0 && field.zeroByte);
}

void StoreBlankValue(const NumberField& field, DataImage& image) {
    StoreNumber(image, field, field.blank);
}

// --- Texts -----------------------------------------------------------------------------------------------------------

std::string KeyOf(const TextField& field) {
    return field.number == 0 ? std::string(field.key) : std::string(field.key) + '.' + std::to_string(field.number);
}

int AddressOf(const TextField& field) {
    return field.address;
}

int SizeOf(const TextField& field) {
    return field.size;
}

std::string LabelOf(const TextField& field, Language language) {
    const std::string label = TextIn(field.label, language);
    return field.number == 0 ? label : label + ' ' + std::to_string(field.number);
}

std::string ShowValue(const TextField& field, const DataImage& image, Language /*language*/) {
    return Utf8Of(LoadCode(image, field));
}

LegalValues LegalValuesOf(const TextField& field, Language /*language*/) {
    return {.mayBeEmpty = field.mayBeEmpty,
            .characters =
                LegalValues::Characters{field.characters, field.leastLength == 0 ? 1 : field.leastLength, field.size}};
}

/// Unlike a dialog's commit it leaves no tail of the text before.
bool ParseValue(const TextField& field, std::string_view text, DataImage& image) {
    const std::u16string typed = Utf16Of(text);
    const auto length = static_cast<int>(typed.size());
    if (!HasItsCharacters(field, text) || length > field.size || !IsLegalLength(field, length)) {
        return false;
    }
    Erase(image, field);
    StoreCode(image, field, typed);
    return true;
}

bool HasItsCharacters(const TextField& field, std::string_view text) {
    const std::u16string typed = Utf16Of(text);
    return Storable(field, typed) == typed;
}

bool HoldsLegalValue(const TextField& field, const DataImage& image) {
    const std::u16string text = LoadCode(image, field);
    return Storable(field, text) == text && IsLegalLength(field, static_cast<int>(text.size()));
}

void StoreBlankValue(const TextField& field, DataImage& image) {
    Erase(image, field);
    StoreCode(image, field, field.blank);
}

} // namespace zelvor
