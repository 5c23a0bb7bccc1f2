#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "data/DataImage.h"
#include "text/Language.h"
#include "text/Text.h"

/// How a field of the image is described: once, for the windows that edit it, the report that prints it and the tests.
/// The tables are in OptionalFields.h, KeyFields.h, DtmfFields.h and
/// CorvaneFields.h.
namespace zelvor {

/// What 0xFF stands for in most fields: nothing was ever stored.
inline constexpr std::uint8_t BlankByte = 0xFF;

/// A label, or a word of a list: an entry of the string table, or a text that is the same in both languages.
class FieldWord {
public:
    constexpr FieldWord(Text name) : name_(name) {}
    constexpr FieldWord(const char* text) : text_(text) {}

    [[nodiscard]] std::string_view In(Language language) const;

private:
    std::optional<Text> name_;
    std::string_view text_;
};

/// A byte that is one of a list of words.
struct ListField {
    static constexpr int NoEntry = -1;

    /// A byte that no entry stores, and the entry it shows all the same, or NoEntry.
    struct Exception {
        std::uint8_t byte;
        int entry;
    };

    FieldWord label;
    int address;
    std::span<const FieldWord> words;         // in list order
    std::span<const std::uint8_t> codes = {}; // the byte of each word; empty: its place in the list
    std::span<const Exception> exceptions = {};
    int otherwise = NoEntry;               // the entry that any other byte shows
    std::optional<std::uint8_t> none = {}; // stored while no entry is selected; nothing: the byte stays
};

/// The entry that a byte shows, or NoEntry.
[[nodiscard]] int EntryOf(const ListField& field, std::uint8_t byte);
/// The byte that an entry (or NoEntry) stores; nothing where the image's byte is to stay.
[[nodiscard]] std::optional<std::uint8_t> ByteOf(const ListField& field, int entry);

/// A byte that is 0 for off and stored as 0 or 1; any other byte reads as on.
struct CheckField {
    Text label;
    int address;
    bool blankIsOff = false; // 0xFF reads as off
};
[[nodiscard]] bool IsOn(const CheckField& field, std::uint8_t byte);

/// A number in one byte or in two, low byte first, that is shown as a text.
struct NumberField {
    Text label;
    int address;
    int bytes; // 1 or 2
    int first; // legal values
    int last;
    int increment;   // of a step by key or button
    int lengthLimit; // characters that can be typed
    int blank;       // the value where the byte, or the high byte of two, is 0xFF
    bool showsBlank; // whether such a field shows the text of that value; otherwise it shows none
    /// The text of any stored value, legal or not; empty for one that has none.
    std::string (*show)(int value, Language language);
    /// The value that a typed text is brought to when its box is left.
    int (*read)(std::string_view text);
    std::optional<std::uint8_t> zeroByte = {}; // a field of one byte stores this for the value 0
};

struct NumberOnShow {
    int value; // of the image, or the field's blank
    std::string text;
};
[[nodiscard]] NumberOnShow LoadNumber(const DataImage& image, const NumberField& field, Language language);
void StoreNumber(DataImage& image, const NumberField& field, int value);

/// The whole number at the start of a text; 0 where there is none.
[[nodiscard]] int LeadingNumber(std::string_view text);
[[nodiscard]] std::string ShowNumber(int value, Language language);
/// The same, with the word "Off" for 0.
[[nodiscard]] std::string ShowNumberOrOff(int value, Language language);

/// A DTMF digit (0-9, A-D, * and #) as it is stored, small letters turned into capitals; 0 for any other character.
[[nodiscard]] char DtmfDigit(char32_t character);

} // namespace zelvor
