#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "data/DataImage.h"
#include "text/Language.h"
#include "text/Text.h"

/// How a field of the image is described: once, for the windows that edit it, the report that prints it, the blank
/// image and the tests. The tables are in OptionalFields.h, KeyFields.h, ScanFields.h, DtmfFields.h, CorvaneFields.h,
/// TestFrequencies.h and EmbeddedMessage.h; FieldRegistry.h lists them all.
///
/// A field's key, such as "optional.time-out-timer", names it for good: scripts may rely on it. It is made of small
/// letters, digits and hyphens, in parts with points between them, of which the first is the field's section.
///
/// Erased is what was never stored: 0xFF. Blank is what a new document holds.
namespace zelvor {

inline constexpr std::uint8_t ErasedByte = 0xFF;

/// A label, or a word of a list: an entry of the string table, or a text of the field's own.
class FieldWord {
public:
    constexpr FieldWord(Text name) : name_(name) {}
    constexpr FieldWord(TextPair text) : text_(text) {}
    /// The same in both languages.
    constexpr FieldWord(const char* text) : text_{text, text} {}

    [[nodiscard]] std::string_view In(Language language) const;

private:
    std::optional<Text> name_;
    TextPair text_;
};

/// A byte that is one of a list of words.
struct ListField {
    static constexpr int NoEntry = -1;

    /// A byte that no entry stores, and the entry it shows all the same, or NoEntry.
    struct Exception {
        std::uint8_t byte;
        int entry;
    };

    std::string_view key;
    FieldWord label;
    int address;
    std::span<const FieldWord> words;         // in list order
    std::span<const std::uint8_t> codes = {}; // the byte of each word; empty: its place in the list
    std::span<const Exception> exceptions = {};
    int otherwise = NoEntry;               // the entry that any other byte shows
    std::optional<std::uint8_t> none = {}; // stored while no entry is selected; nothing: the byte stays
    int blank = 0;                         // an entry
};

/// The entry that a byte shows, or NoEntry.
[[nodiscard]] int EntryOf(const ListField& field, std::uint8_t byte);
/// The byte that an entry (or NoEntry) stores; nothing where the image's byte is to stay.
[[nodiscard]] std::optional<std::uint8_t> ByteOf(const ListField& field, int entry);

/// A byte that is 0 for off and stored as 0 or 1; any other byte reads as on.
struct CheckField {
    std::string_view key;
    FieldWord label;
    int address;
    bool erasedIsOff = false; // an erased byte reads as off
    bool blank = false;
};
[[nodiscard]] bool IsOn(const CheckField& field, std::uint8_t byte);

/// A number in one byte or in two, low byte first, that is shown as a text.
struct NumberField {
    std::string_view key;
    FieldWord label;
    int address;
    int bytes = 1; // or 2
    int first;     // legal values
    int last;
    int increment = 1;        // of a step by key or button
    int lengthLimit;          // characters that can be typed
    int erased = 0;           // the value where the byte, or the high byte of two, is erased
    bool showsErased = false; // whether such a field shows the text of that value; otherwise it shows none
    int blank = 0;
    /// The text of any stored value, legal or not; empty for one that has none.
    std::string (*show)(int value, Language language);
    /// The value that a typed text is brought to when its box is left.
    int (*read)(std::string_view text);
    std::optional<std::uint8_t> zeroByte = {}; // a field of one byte stores this for the value 0
};

struct NumberOnShow {
    int value; // of the image, or the field's erased one
    std::string text;
};
[[nodiscard]] NumberOnShow LoadNumber(const DataImage& image, const NumberField& field, Language language);
void StoreNumber(DataImage& image, const NumberField& field, int value);

/// A text, one character to a byte.
struct TextField {
    enum class Characters : std::uint8_t { Digits, Dtmf, Windows1252 };
    enum class Layout : std::uint8_t {
        EndsAtErased,  // the rest of the field is erased; a field of Digits ends before any other byte, too
        SkipsErased,   // erased bytes between the characters are passed over, and a shorter text leaves the tail
        PaddedByBlanks // a field that is in use is filled up with blanks, which are no characters of it
    };

    std::string_view key;
    FieldWord label;
    int number = 0; // 1, 2, ... among fields of one key and label; 0: it is the only one
    int address;
    int size; // bytes
    Characters characters = Characters::Dtmf;
    Layout layout = Layout::EndsAtErased;
    int leastLength = 0; // of a text that is not empty
    bool mayBeEmpty = true;
    std::u16string_view blank = {};
};

/// The text as it stands, legal or not.
[[nodiscard]] std::u16string LoadCode(const DataImage& image, const TextField& field);
/// Characters beyond the field are left out.
void StoreCode(DataImage& image, const TextField& field, std::u16string_view text);
/// Whether a text of that length is neither too short nor missing.
[[nodiscard]] bool IsLegalLength(const TextField& field, int length);

/// The whole number at the start of a text; 0 where there is none.
[[nodiscard]] int LeadingNumber(std::string_view text);
[[nodiscard]] std::string ShowNumber(int value, Language language);
/// The same, with the word "Off" for 0.
[[nodiscard]] std::string ShowNumberOrOff(int value, Language language);

/// A DTMF digit (0-9, A-D, * and #) as it is stored, small letters turned into capitals; 0 for any other character.
[[nodiscard]] char DtmfDigit(char32_t character);

} // namespace zelvor
