#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "data/Fields.h"
#include "data/MemoryMap.h"

/// The optional features of the image: 0x12C to 0x13E and the two PTT ID codes, described once for all that show or
/// store them.
namespace zelvor::optional_features {

inline constexpr CheckField ScramblerActivation{Text::ScramblerActivation, 0x12C};
inline constexpr CheckField ScramblerBackup{Text::ScramblerBackup, 0x12D};
inline constexpr CheckField BatterySave{Text::BatterySave, 0x135};
inline constexpr CheckField Beep{Text::Beep, 0x136};
inline constexpr CheckField CancelOperation{Text::CancelOperation, 0x137};
inline constexpr CheckField VoxInhibit{Text::VoxInhibitOnReceive, 0x138};
inline constexpr CheckField VoxFunction{Text::VoxFunction, 0x139};
inline constexpr CheckField VoxProceedTone{Text::VoxProceedTone, 0x13C};
inline constexpr CheckField CloneMode{Text::CloneMode, 0x13E};

inline constexpr std::array<FieldWord, 3> VoiceWords{{{Text::Off}, {Text::English}, {Text::Chinese}}};
inline constexpr std::array<std::uint8_t, 3> VoiceCodes{0, 2, 1}; // not in the order of the list
inline constexpr std::array<FieldWord, 3> PttIdWords{{{Text::Bot}, {Text::Eot}, {Text::Both}}};
inline constexpr std::array<FieldWord, 2> PttIdTypeWords{{{Text::DtmfExplained}, {Text::CorvaneExplained}}};
inline constexpr std::array<FieldWord, 2> MicSensitivityWords{{{Text::Normal}, {Text::High}}};
inline constexpr std::array<FieldWord, 6> VoxDelayWords{{{"0.3"}, {"0.5"}, {"1"}, {"1.5"}, {"2"}, {"3"}}};
inline constexpr std::array<ListField::Exception, 1> BlankShowsNoEntry{{{BlankByte, ListField::NoEntry}}};

inline constexpr ListField VoiceAnnunciation{Text::VoiceAnnunciation, 0x12F, VoiceWords, VoiceCodes};
inline constexpr ListField PttId{.label = "PTT ID", .address = 0x132, .words = PttIdWords, .none = BlankByte};
inline constexpr ListField PttIdType{
    .label = Text::PttIdType, .address = address::PttIdType, .words = PttIdTypeWords, .none = BlankByte};
inline constexpr ListField VoxDelayTime{.label = Text::VoxDelayTime,
                                        .address = 0x13B,
                                        .words = VoxDelayWords,
                                        .exceptions = BlankShowsNoEntry,
                                        .otherwise = 0,
                                        .none = BlankByte};
inline constexpr ListField MicSensitivity{
    .label = Text::MicSensitivity, .address = 0x13D, .words = MicSensitivityWords, .none = BlankByte};

/// Seconds of a time-out step; a stored number of steps, also an illegal one, shows as this many times its value.
inline constexpr int TimeOutStep = 15;
[[nodiscard]] std::string ShowTimeOut(int steps, Language language);
/// Rounded up to a whole step, 15 to 600 s.
[[nodiscard]] int ReadTimeOut(std::string_view text);
/// 0, which also "Off" reads as, to 10.
[[nodiscard]] int ReadUpToTen(std::string_view text);
/// The number as it is, since a level beyond 9 is not corrected; 9 where it is none that fits into the byte.
[[nodiscard]] int ReadSquelchLevel(std::string_view text);

inline constexpr NumberField TimeOutTimer{.label = Text::TimeOutTimer,
                                          .address = 0x130,
                                          .bytes = 1,
                                          .first = 1,
                                          .last = 40,
                                          .increment = 1,
                                          .lengthLimit = 3,
                                          .blank = BlankByte,
                                          .showsBlank = true,
                                          .show = ShowTimeOut,
                                          .read = ReadTimeOut};
inline constexpr NumberField TimeOutPreAlert{.label = Text::TimeOutPreAlert,
                                             .address = 0x131,
                                             .bytes = 1,
                                             .first = 0,
                                             .last = 10,
                                             .increment = 1,
                                             .lengthLimit = 2,
                                             .blank = 0,
                                             .showsBlank = false,
                                             .show = ShowNumberOrOff,
                                             .read = ReadUpToTen};
inline constexpr NumberField SquelchLevel{.label = Text::SquelchLevel,
                                          .address = 0x134,
                                          .bytes = 1,
                                          .first = 0,
                                          .last = 9,
                                          .increment = 1,
                                          .lengthLimit = 1,
                                          .blank = 0,
                                          .showsBlank = true,
                                          .show = ShowNumber,
                                          .read = ReadSquelchLevel};
inline constexpr NumberField VoxGainLevel{.label = Text::VoxGainLevel,
                                          .address = 0x13A,
                                          .bytes = 1,
                                          .first = 0,
                                          .last = 10,
                                          .increment = 1,
                                          .lengthLimit = 2,
                                          .blank = 0,
                                          .showsBlank = false,
                                          .show = ShowNumberOrOff,
                                          .read = ReadUpToTen};

/// The code that a transmission begins or ends with: up to 16 characters, one to a byte in code page Windows-1252; 0xFF
/// is no character.
struct PttCode {
    Text label;
    int address;
};
inline constexpr int PttCodeLength = 16;
inline constexpr std::array<PttCode, 2> PttCodes{{{Text::BeginOfTx, 0x140}, {Text::EndOfTx, 0x150}}};

/// All characters of the code's bytes; 0xFF between them is passed over.
[[nodiscard]] std::u16string LoadCode(const DataImage& image, const PttCode& code);
/// Stores a code over the first of its bytes. Intended: the bytes behind it keep what they held, so that only an empty
/// text clears a code. Radios in the field hold tails left by shortened codes.
void StoreCode(DataImage& image, const PttCode& code, std::u16string_view text);

/// The entries of PttId.
enum class PttIdChoice : std::uint8_t { Bot, Eot, Both };

/// Which codes a choice has the radio send.
[[nodiscard]] constexpr bool Sends(PttIdChoice choice, std::size_t code) {
    return choice == PttIdChoice::Both || static_cast<std::size_t>(choice) == code;
}

/// A value of Session::TxCodeErrorKind: bit 0 for a begin code that is to be sent and is missing, bit 1 for an end
/// code.
using CodeErrorKind = int;
[[nodiscard]] constexpr CodeErrorKind MissingCodes(PttIdChoice choice, std::array<bool, 2> missing) {
    return (Sends(choice, 0) && missing[0] ? 1 : 0) | (Sends(choice, 1) && missing[1] ? 2 : 0);
}
/// By the image, in which a code is missing when its first byte is 0xFF.
[[nodiscard]] CodeErrorKind MissingCodes(PttIdChoice choice, const DataImage& image);

} // namespace zelvor::optional_features
