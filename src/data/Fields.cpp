#include "data/Fields.h"

#include <algorithm>
#include <vector>

#include "data/Windows1252.h"
#include "text/Decimal.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr std::uint8_t Padding = ' ';

bool IsDecimalDigit(std::uint8_t byte) {
    return byte >= '0' && byte <= '9';
}

/// The bytes of a text's characters; a character outside the code page has none.
std::vector<std::uint8_t> BytesOf(std::u16string_view text) {
    std::vector<std::uint8_t> bytes;
    for (const char16_t character : text) {
        if (const auto byte = Windows1252Byte(character)) {
            bytes.push_back(*byte);
        }
    }
    return bytes;
}

/// Writes the bytes at the start of a field, and fills the rest of it.
void Fill(DataImage& image, const TextField& field, std::span<const std::uint8_t> bytes, std::uint8_t rest) {
    for (int i = 0; i < field.size; ++i) {
        const auto place = static_cast<std::size_t>(i);
        image.Set(field.address + i, place < bytes.size() ? bytes[place] : rest);
    }
}

/// A character outside the code page erases its byte.
void StoreOver(DataImage& image, const TextField& field, std::u16string_view text) {
    for (int i = 0; i < field.size && static_cast<std::size_t>(i) < text.size(); ++i) {
        image.Set(field.address + i, Windows1252Byte(text[static_cast<std::size_t>(i)]).value_or(ErasedByte));
    }
}

/// Whether the text ends before this byte of its field.
bool IsEnd(const TextField& field, std::uint8_t byte, int place) {
    switch (field.layout) {
    case TextField::Layout::EndsAtErased:
        return byte == ErasedByte || (field.characters == TextField::Characters::Digits && !IsDecimalDigit(byte));
    case TextField::Layout::SkipsErased:
        return false;
    case TextField::Layout::PaddedByBlanks:
        return place == 0 && byte == ErasedByte;
    }
    return true;
}

bool IsCharacter(const TextField& field, std::uint8_t byte) {
    switch (field.layout) {
    case TextField::Layout::EndsAtErased:
        return true;
    case TextField::Layout::SkipsErased:
        return byte != ErasedByte;
    case TextField::Layout::PaddedByBlanks:
        return byte != Padding;
    }
    return true;
}

} // namespace

std::string_view FieldWord::In(Language language) const {
    return name_ ? TableText(language, *name_) : text_.In(language);
}

int EntryOf(const ListField& field, std::uint8_t byte) {
    for (const ListField::Exception& exception : field.exceptions) {
        if (exception.byte == byte) {
            return exception.entry;
        }
    }
    if (field.codes.empty()) {
        return byte < field.words.size() ? byte : field.otherwise;
    }
    const auto found = std::find(field.codes.begin(), field.codes.end(), byte);
    return found == field.codes.end() ? field.otherwise : static_cast<int>(found - field.codes.begin());
}

std::optional<std::uint8_t> ByteOf(const ListField& field, int entry) {
    if (entry == ListField::NoEntry) {
        return field.none;
    }
    return field.codes.empty() ? static_cast<std::uint8_t>(entry) : field.codes[static_cast<std::size_t>(entry)];
}

bool IsOn(const CheckField& field, std::uint8_t byte) {
    return byte != 0 && !(field.erasedIsOff && byte == ErasedByte);
}

NumberOnShow LoadNumber(const DataImage& image, const NumberField& field, Language language) {
    const int low = image.At(field.address);
    const int high = field.bytes == 2 ? image.At(field.address + 1) : low;
    if (high == ErasedByte) {
        return {field.erased, field.showsErased ? field.show(field.erased, language) : std::string()};
    }
    const int value = field.bytes == 2 ? high * 256 + low : low;
    return {value, field.show(value, language)};
}

void StoreNumber(DataImage& image, const NumberField& field, int value) {
    if (field.bytes == 2) {
        image.Set(field.address, static_cast<std::uint8_t>(value % 256));
        image.Set(field.address + 1, static_cast<std::uint8_t>(value / 256));
        return;
    }
    image.Set(field.address, value == 0 && field.zeroByte ? *field.zeroByte : static_cast<std::uint8_t>(value));
}

std::u16string LoadCode(const DataImage& image, const TextField& field) {
    std::u16string text;
    for (int i = 0; i < field.size; ++i) {
        const std::uint8_t byte = image.At(field.address + i);
        if (IsEnd(field, byte, i)) {
            break;
        }
        if (IsCharacter(field, byte)) {
            text += Windows1252Character(byte);
        }
    }
    return text;
}

void StoreCode(DataImage& image, const TextField& field, std::u16string_view text) {
    switch (field.layout) {
    case TextField::Layout::EndsAtErased:
        Fill(image, field, BytesOf(text), ErasedByte);
        break;
    case TextField::Layout::SkipsErased:
        if (text.empty()) {
            Fill(image, field, {}, ErasedByte);
        }
        StoreOver(image, field, text);
        break;
    case TextField::Layout::PaddedByBlanks:
        Fill(image, field, BytesOf(text), text.empty() ? ErasedByte : Padding);
        break;
    }
}

bool IsLegalLength(const TextField& field, int length) {
    return length == 0 ? field.mayBeEmpty : length >= field.leastLength;
}

int LeadingNumber(std::string_view text) {
    return static_cast<int>(Decimal::Leading(text).Rounded());
}

std::string ShowNumber(int value, Language /*language*/) {
    return std::to_string(value);
}

std::string ShowNumberOrOff(int value, Language language) {
    return value == 0 ? std::string(TableText(language, Text::Off)) : std::to_string(value);
}

char DtmfDigit(char32_t character) {
    if (character >= U'a' && character <= U'd') {
        return static_cast<char>(character - U'a' + U'A');
    }
    const bool legal = (character >= U'0' && character <= U'9') || (character >= U'A' && character <= U'D') ||
                       character == U'*' || character == U'#';
    return legal ? static_cast<char>(character) : '\0';
}

} // namespace zelvor
