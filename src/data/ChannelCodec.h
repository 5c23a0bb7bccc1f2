#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/ChannelWords.h"
#include "data/DataImage.h"
#include "data/ToneCodec.h"
#include "text/Language.h"

namespace zelvor {

/// The working texts: one channel's values as grid and dialogs show them, in the current language.
struct ChannelTexts {
    std::string RxText; // "000.00000"; in a blank grid row empty
    std::string TxText; // the same, or empty: receive only
    std::string DecText;
    std::string EncText;
    std::string PowerText;
    std::string WidthText;
    std::string ScanAddText;
    std::string OptSignalText;
    std::string PttIdText;
    std::string SpMuteText;
    std::string BusyLockText;
    std::string AutoDialText;
    bool BeatShiftFlag = false;
    bool CompanderFlag = false;
};

/// The nine texts that the grid shows, in the order of its columns 1 to 9.
inline constexpr std::array<std::string ChannelTexts::*, 9> GridTexts{
    &ChannelTexts::RxText,      &ChannelTexts::TxText,        &ChannelTexts::DecText,
    &ChannelTexts::EncText,     &ChannelTexts::PowerText,     &ChannelTexts::WidthText,
    &ChannelTexts::ScanAddText, &ChannelTexts::OptSignalText, &ChannelTexts::PttIdText};

/// The receive text of a channel without a frequency, as the decoder gives it.
inline constexpr std::string_view NoFrequencyText = "000.00000";

/// The byte that holds the Scan Add bit of channel k (1 to 16).
[[nodiscard]] int ScanAddAddress(int k);
[[nodiscard]] bool IsScanAdded(const DataImage& image, int k);
/// Sets or clears the Scan Add bit of channel k (1 to 16).
void SetScanAdd(DataImage& image, int k, bool added);

/// Channel records to texts and back. The object carries what the routines keep between calls: the working texts of the
/// channel being edited, the table of record bytes, and the encoder's working bytes 12, 13 and 14, whose bits survive
/// from one call to the next wherever a text says nothing about them. That carrying-over is intended: documents in the
/// field were made with it.
class ChannelCodec {
public:
    /// The shared working texts, one set for the whole program.
    ChannelTexts Texts;

    /// Entry [k - 1][j]: byte j of channel k's record, as read by the last RefreshChannelBytes. DecodeAll then sets the
    /// four bytes of a frequency that counts as none to zero.
    std::array<std::array<std::int16_t, 16>, 16> ChannelBytes{};

    void RefreshChannelBytes(const DataImage& image);

    /// Decodes channels 1 to 16, each into Texts, and returns them in order; Texts ends with those of channel 16 and
    /// the working bytes with its bytes. RxText of a channel without a frequency is NoFrequencyText.
    [[nodiscard]] std::vector<ChannelTexts> DecodeAll(const DataImage& image, Language language);

    /// Reads the values that have no grid column (SP Unmute, Busy Channel Lockout, Autodial Memory, Beat Shift,
    /// Compander) of channel k (1 to 16) from the image into Texts.
    void LoadHiddenFields(const DataImage& image, Language language, int k);

    /// Writes Texts into the record of channel k (1 to 16) and its Scan Add bit.
    /// Sets txCodeError where a PTT ID "On" asks for the PTT ID codes to be checked before a write; never clears it.
    void EncodeChannel(DataImage& image, Language language, int k, bool& txCodeError);

    /// Completes Texts of channel k that has just got the receive frequency rxText, and clears Compander, Beat Shift
    /// and Autodial Memory of the channel in the image.
    void CompleteChannelDefaults(DataImage& image, Language language, int k, std::string_view rxText);

    // The parts of it.

    /// Gives the texts that are empty, those of SP Unmute and Busy Channel Lockout apart, the values of a new channel;
    /// the option signalling only if wanted.
    void CompleteTexts(const DataImage& image, Language language, bool signalling);
    /// Gives Compander, Beat Shift and Autodial Memory, in Texts and in the image, the values of a new channel, and so
    /// the texts of SP Unmute and Busy Channel Lockout where they are empty.
    void ClearHiddenFields(DataImage& image, Language language, int k);

private:
    void DecodeChannel(const DataImage& image, Language language, int k);
    void EncodeSignalling(const DataImage& image, Language language, int k);        // byte 12
    void EncodeTransmitter(Language language);                                      // byte 13
    void EncodePttId(std::uint8_t pttIdType, Language language, bool& txCodeError); // byte 14

    ToneEncoder toneEncoder_;
    std::uint8_t workingByte12_ = 0;
    std::uint8_t workingByte13_ = 0;
    std::uint8_t workingByte14_ = 0;
};

} // namespace zelvor
