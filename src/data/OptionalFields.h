#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "data/Field.h"
#include "data/MemoryMap.h"

/// The optional features of the image: 0x12C to 0x13E and the two PTT ID codes, described once for all that show or
/// store them.
namespace zelvor::optional_features {

inline constexpr CheckField ScramblerActivation{
    .key = "optional.scrambler-activation", .label = Text::ScramblerActivation, .address = 0x12C, .blank = false};
inline constexpr CheckField ScramblerBackup{
    .key = "optional.scrambler-backup", .label = Text::ScramblerBackup, .address = 0x12D, .blank = false};
inline constexpr CheckField BatterySave{
    .key = "optional.battery-save", .label = Text::BatterySave, .address = 0x135, .blank = false};
inline constexpr CheckField Beep{.key = "optional.beep", .label = Text::Beep, .address = 0x136, .blank = true};
inline constexpr CheckField CancelOperation{
    .key = "optional.cancel-operation", .label = Text::CancelOperation, .address = 0x137, .blank = false};
inline constexpr CheckField VoxInhibit{
    .key = "optional.vox-inhibit-on-receive", .label = Text::VoxInhibitOnReceive, .address = 0x138, .blank = false};
inline constexpr CheckField VoxFunction{
    .key = "optional.vox-function", .label = Text::VoxFunction, .address = 0x139, .blank = false};
inline constexpr CheckField VoxProceedTone{
    .key = "optional.vox-proceed-tone", .label = Text::VoxProceedTone, .address = 0x13C, .blank = false};
inline constexpr CheckField CloneMode{
    .key = "optional.clone-mode", .label = Text::CloneMode, .address = 0x13E, .blank = false};

inline constexpr std::array<FieldWord, 3> VoiceWords{{Text::Off, Text::English, Text::Chinese}};
inline constexpr std::array<std::uint8_t, 3> VoiceCodes{0, 2, 1}; // not in the order of the list
inline constexpr ListField VoiceAnnunciation{.key = "optional.voice-annunciation",
                                             .label = Text::VoiceAnnunciation,
                                             .address = 0x12F,
                                             .words = VoiceWords,
                                             .codes = VoiceCodes,
                                             .blank = 0};

inline constexpr std::array<FieldWord, 3> PttIdWords{{Text::Bot, Text::Eot, Text::Both}};
inline constexpr ListField PttId{
    .key = "optional.ptt-id", .label = "PTT ID", .address = 0x132, .words = PttIdWords, .none = ErasedByte, .blank = 0};

inline constexpr std::array<FieldWord, 2> PttIdTypeWords{{Text::DtmfExplained, Text::CorvaneExplained}};
inline constexpr ListField PttIdType{.key = "optional.ptt-id-type",
                                     .label = Text::PttIdType,
                                     .address = address::PttIdType,
                                     .words = PttIdTypeWords,
                                     .none = ErasedByte,
                                     .blank = 0};

inline constexpr std::array<FieldWord, 6> VoxDelayWords{{"0.3", "0.5", "1", "1.5", "2", "3"}};
inline constexpr std::array<ListField::Exception, 1> ErasedShowsNoEntry{{{ErasedByte, ListField::NoEntry}}};
inline constexpr ListField VoxDelayTime{.key = "optional.vox-delay-time",
                                        .label = Text::VoxDelayTime,
                                        .address = 0x13B,
                                        .words = VoxDelayWords,
                                        .exceptions = ErasedShowsNoEntry,
                                        .otherwise = 0,
                                        .none = ErasedByte,
                                        .blank = 1};

inline constexpr std::array<FieldWord, 2> MicSensitivityWords{{Text::Normal, Text::High}};
inline constexpr ListField MicSensitivity{.key = "optional.mic-sensitivity",
                                          .label = Text::MicSensitivity,
                                          .address = 0x13D,
                                          .words = MicSensitivityWords,
                                          .none = ErasedByte,
                                          .blank = 0};

/// Seconds of a time-out step; a stored number of steps, also an illegal one, shows as this many times its value.
inline constexpr int TimeOutStep = 15;
[[nodiscard]] std::string ShowTimeOut(int steps, Language language);
/// Rounded up to a whole step, 15 to 600 s.
[[nodiscard]] int ReadTimeOut(std::string_view text);
/// 0, which also "Off" reads as, to 10.
[[nodiscard]] int ReadUpToTen(std::string_view text);
/// The number as it is, since a level beyond 9 is not corrected; 9 where it is none that fits into the byte.
[[nodiscard]] int ReadSquelchLevel(std::string_view text);

inline constexpr NumberField TimeOutTimer{.key = "optional.time-out-timer",
                                          .label = Text::TimeOutTimer,
                                          .address = 0x130,
                                          .first = 1,
                                          .last = 40,
                                          .lengthLimit = 3,
                                          .erased = ErasedByte,
                                          .showsErased = true,
                                          .blank = 4,
                                          .show = ShowTimeOut,
                                          .read = ReadTimeOut};
inline constexpr NumberField TimeOutPreAlert{.key = "optional.time-out-pre-alert",
                                             .label = Text::TimeOutPreAlert,
                                             .address = 0x131,
                                             .first = 0,
                                             .last = 10,
                                             .lengthLimit = 2,
                                             .blank = 0,
                                             .show = ShowNumberOrOff,
                                             .read = ReadUpToTen};
inline constexpr NumberField SquelchLevel{.key = "optional.squelch-level",
                                          .label = Text::SquelchLevel,
                                          .address = 0x134,
                                          .first = 0,
                                          .last = 9,
                                          .lengthLimit = 1,
                                          .showsErased = true,
                                          .blank = 5,
                                          .show = ShowNumber,
                                          .read = ReadSquelchLevel};
inline constexpr NumberField VoxGainLevel{.key = "optional.vox-gain-level",
                                          .label = Text::VoxGainLevel,
                                          .address = 0x13A,
                                          .first = 0,
                                          .last = 10,
                                          .lengthLimit = 2,
                                          .blank = 5,
                                          .show = ShowNumberOrOff,
                                          .read = ReadUpToTen};

/// The code that a transmission begins or ends with. Intended: a code is stored over the first of its bytes and those
/// behind it keep what they held, so that only an empty text clears a code. Radios in the field hold tails left by
/// shortened codes.
inline constexpr int PttCodeLength = 16;
inline constexpr std::array<TextField, 2> PttCodes{TextField{.key = "optional.begin-of-tx",
                                                             .label = Text::BeginOfTx,
                                                             .address = 0x140,
                                                             .size = PttCodeLength,
                                                             .layout = TextField::Layout::SkipsErased,
                                                             .blank = u"12345"},
                                                   TextField{.key = "optional.end-of-tx",
                                                             .label = Text::EndOfTx,
                                                             .address = 0x150,
                                                             .size = PttCodeLength,
                                                             .layout = TextField::Layout::SkipsErased,
                                                             .blank = u""}};

/// The entries of PttId.
enum class PttIdChoice : std::uint8_t { Bot, Eot, Both };

/// Which codes a choice has the radio send.
[[nodiscard]] constexpr bool Sends(PttIdChoice choice, std::size_t code) {
    return choice == PttIdChoice::Both || static_cast<std::size_t>(choice) == code;
}

/// A value of TxCodeErrorKind: bit 0 for a begin code that is to be sent and is missing, bit 1 for an end
/// code.
using CodeErrorKind = int;
[[nodiscard]] constexpr CodeErrorKind MissingCodes(PttIdChoice choice, std::array<bool, 2> missing) {
    return (Sends(choice, 0) && missing[0] ? 1 : 0) | (Sends(choice, 1) && missing[1] ? 2 : 0);
}
/// By the image, in which a code is missing when its first byte is 0xFF.
[[nodiscard]] CodeErrorKind MissingCodes(PttIdChoice choice, const DataImage& image);

/// In the order of the report.
inline constexpr std::array Fields = std::to_array<Field>(
    {TimeOutTimer,        TimeOutPreAlert, SquelchLevel,    MicSensitivity, BatterySave, Beep,        VoiceAnnunciation,
     ScramblerActivation, ScramblerBackup, PttIdType,       PttId,          PttCodes[0], PttCodes[1], VoxFunction,
     VoxGainLevel,        VoxDelayTime,    CancelOperation, VoxProceedTone, VoxInhibit,  CloneMode});

} // namespace zelvor::optional_features
