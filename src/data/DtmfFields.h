#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "data/Fields.h"
#include "text/StringTable.h"

/// The DTMF settings of the image: how the radio sends and decodes digits, its two codes and its autodial memories.
namespace zelvor::dtmf {

[[nodiscard]] std::string ShowSpeed(int index, Language language);
[[nodiscard]] int ReadSpeed(std::string_view text);
[[nodiscard]] std::string ShowTime(int index, Language language);
[[nodiscard]] int ReadTime(std::string_view text);
[[nodiscard]] std::string ShowDelay(int tens, Language language);
[[nodiscard]] int ReadDelay(std::string_view text);
[[nodiscard]] std::string ShowDCode(int seconds, Language language);
[[nodiscard]] int ReadDCode(std::string_view text);
[[nodiscard]] int ReadResetTime(std::string_view text);

// Stored as a place among four texts; any other byte has no text.
inline constexpr NumberField Speed{Text::DtmfSpeed, 0x110,    1, 0, 3, 1, 2, 0, true,
                                   ShowSpeed,       ReadSpeed}; // digits a second
inline constexpr NumberField FirstDigitTime{
    Text::FirstDigitTime, 0x111, 1, 0, 3, 1, 4, 0, true, ShowTime, ReadTime};                                // ms
inline constexpr NumberField Tone{Text::StarAndHashTone, 0x113, 1, 0, 3, 1, 4, 0, true, ShowTime, ReadTime}; // ms

inline constexpr NumberField FirstDigitDelay{
    Text::FirstDigitDelay, 0x112, 1, 10, 100, 5, 4, 10, true, ShowDelay, ReadDelay}; // tens of ms
inline constexpr NumberField DCodeAssignment{
    Text::DCodeAssignment, 0x114, 1, 0, 16, 1, 2, 0, true, ShowDCode, ReadDCode}; // s
inline constexpr NumberField AutoResetTimer{Text::AutoResetTimer, 0x117,        1, 0, 15, 1, 2, 10, true,
                                            ShowNumberOrOff,      ReadResetTime}; // s

/// The next of the texts that a field shows from its first to its last value, round in a circle; nothing where the text
/// is none of them.
[[nodiscard]] std::optional<int> NextText(const NumberField& field, std::string_view text, bool up);

inline constexpr CheckField SideTone{Text::DtmfSideTone, 0x115};
inline constexpr CheckField ClearToTranspond{Text::ClearToTranspond, 0x11A, true};

inline constexpr std::array<FieldWord, 7> GroupCodeWords{{{Text::Off}, {"A"}, {"B"}, {"C"}, {"D"}, {"#"}, {"*"}}};
inline constexpr std::array<std::uint8_t, 7> GroupCodeBytes{0, 'A', 'B', 'C', 'D', '#', '*'};
inline constexpr ListField GroupCode{Text::GroupCode, 0x116, GroupCodeWords, GroupCodeBytes};

inline constexpr std::array<FieldWord, 3> CallAlertWords{{{Text::Off}, {Text::Normal}, {Text::Continuous}}};
inline constexpr std::array<std::uint8_t, 3> CallAlertBytes{2, 0, 1};
inline constexpr ListField CallAlert{Text::CallAlert, 0x118, CallAlertWords, CallAlertBytes};

inline constexpr std::array<FieldWord, 3> TranspondWords{{{Text::Off}, {Text::Alert}, {Text::IdCode}}};
inline constexpr ListField Transpond{Text::Transpond, 0x119, TranspondWords, {}, {}, ListField::NoEntry, BlankByte};

inline constexpr std::array<FieldWord, 2> StunTypeWords{{{"TX Inhibit"}, {"TX/RX Inhibit"}}};
inline constexpr std::array<ListField::Exception, 1> StunTypeExceptions{{{BlankByte, 0}}};
inline constexpr ListField StunType{Text::StunType, 0x1FA, StunTypeWords, {}, StunTypeExceptions};

/// A code: a character a byte, and 0xFF behind the last one.
struct CodeField {
    static constexpr int Size = 10;
    static constexpr int LeastDigits = 3;

    Text label;
    int address;
    bool decimal;    // ends before the first byte that is none of 0-9, not only before a 0xFF
    bool mayBeEmpty; // besides having LeastDigits or more
};
inline constexpr CodeField IdCode{Text::IdCode, 0x120, true, false};
inline constexpr CodeField StunCode{Text::StunCode, 0x1F0, false, true};

/// The code as it stands, legal or not.
[[nodiscard]] std::u16string LoadCode(const DataImage& image, const CodeField& field);
/// Characters outside of Windows-1252 and those beyond the field are left out.
void StoreCode(DataImage& image, const CodeField& field, std::u16string_view code);
[[nodiscard]] bool IsLegalLength(const CodeField& field, int length);

inline constexpr int AutodialCount = 8;
inline constexpr int AutodialSize = 16;
inline constexpr int FirstAutodial = 0x200;

/// The digits of memory n (1 to 8), spaces left out; empty for an unused memory.
[[nodiscard]] std::u16string LoadAutodial(const DataImage& image, int n);
/// Pads the digits with spaces. No digits make the memory an unused one.
void StoreAutodial(DataImage& image, int n, std::u16string_view digits);

} // namespace zelvor::dtmf
