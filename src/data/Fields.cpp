#include "data/Fields.h"

#include <algorithm>

#include "text/Decimal.h"
#include "text/StringTable.h"

namespace zelvor {

std::string_view FieldWord::In(Language language) const {
    return name_ ? TableText(language, *name_) : text_;
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
    return byte != 0 && !(field.blankIsOff && byte == BlankByte);
}

NumberOnShow LoadNumber(const DataImage& image, const NumberField& field, Language language) {
    const int low = image.At(field.address);
    const int high = field.bytes == 2 ? image.At(field.address + 1) : low;
    if (high == BlankByte) {
        return {field.blank, field.showsBlank ? field.show(field.blank, language) : std::string()};
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
