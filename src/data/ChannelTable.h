#pragma once

#include <array>
#include <string>

#include "data/ChannelCodec.h"
#include "data/MemoryMap.h"
#include "data/ObserverList.h"

namespace zelvor {

/// Columns of the channel table.
namespace column {
inline constexpr int Rx = 1;
inline constexpr int Tx = 2;
inline constexpr int Decode = 3;
inline constexpr int Encode = 4;
inline constexpr int Power = 5;
inline constexpr int Width = 6;
inline constexpr int ScanAdd = 7;
inline constexpr int OptSignal = 8;
inline constexpr int PttId = 9;
inline constexpr int Count = 9;
} // namespace column

[[nodiscard]] constexpr bool IsFrequencyColumn(int column) {
    return column == column::Rx || column == column::Tx;
}
[[nodiscard]] constexpr bool IsToneColumn(int column) {
    return column == column::Decode || column == column::Encode;
}

/// What the views of the channel table are told. k: 1 to 16; column: 1 to 9.
class ChannelTableObserver {
public:
    virtual ~ChannelTableObserver() = default;
    /// All rows were filled from the image.
    virtual void OnDecoded() {}
    /// The words of all rows, and of the program, are of another language.
    virtual void OnTranslated() {}
    /// A text was set, be it the same or another one.
    virtual void OnCellSet(int /*k*/, int /*column*/) {}

    // What one window does with the working texts, for another one that shows them.

    virtual void OnRowOpened(int /*k*/) {}
    virtual void OnRowCleared(int /*k*/) {}
    /// Before row and record follow.
    virtual void OnTextEdited(int /*k*/, int /*column*/) {}

    // After the ninth column.

    /// isOn: whether the last programmed channel has a PTT ID.
    virtual void OnPttIdTypeChosen(bool /*isOn*/) {}
    virtual void OnPttIdsRefreshed() {}
};

/// The working copy of the 16 channels: the nine texts of each in the current language, beside what the codec carries
/// over and the working texts of the channel that is being edited. A blank channel has nine empty texts. Windows are
/// views of it: they listen, and keep no channel values of their own.
///
/// Channels are numbered 1 to 16, columns 1 to 9.
class ChannelTable {
public:
    [[nodiscard]] const std::string& CellText(int k, int column) const;
    /// Neither the working texts nor the image follow.
    void SetCellText(int k, int column, std::string text);
    [[nodiscard]] bool IsProgrammed(int k) const { return !CellText(k, column::Rx).empty(); }
    /// Whether its receive frequency has a value other than zero.
    [[nodiscard]] bool HasFrequency(int k) const;
    /// The bytes of the channel block that the channels without a frequency leave.
    [[nodiscard]] int FreeBytes() const;

    /// The working texts, one set for the whole program.
    [[nodiscard]] ChannelTexts& Texts() { return codec_.Texts; }
    [[nodiscard]] const ChannelTexts& Texts() const { return codec_.Texts; }

    /// Fills all rows from the image; the working texts become those of channel 16.
    void DecodeImageToGrid(const DataImage& image, Language language);
    /// Copies the texts of a row into the working texts, and reads those without a column from the image.
    void LoadRowIntoFields(const DataImage& image, Language language, int k);
    /// The same for an edit that begins in the grid; tells OnRowOpened.
    void OpenRow(const DataImage& image, Language language, int k);
    /// Writes the working texts into row and record of channel k and its Scan Add bit. Sets txCodeError where a PTT ID
    /// asks for the PTT ID codes to be checked before a write; never clears it.
    void EncodeChannelRow(DataImage& image, Language language, int k, bool& txCodeError);
    /// Blanks the working texts, and row and record of a channel. Its Scan Add bit stays.
    void ClearChannelData(DataImage& image, int k);
    /// Blanks the nine working texts that have a column.
    void ClearTexts();
    // The two parts of ChannelCodec::CompleteChannelDefaults.

    void CompleteTexts(const DataImage& image, Language language, bool signalling) {
        codec_.CompleteTexts(image, language, signalling);
    }
    void ClearHiddenFields(DataImage& image, Language language, int k) { codec_.ClearHiddenFields(image, language, k); }
    /// Tells OnTextEdited.
    void TellEdited(int k, int column) const;

    /// Brings the words of all programmed rows into a language.
    void Translate(const DataImage& image, Language language);

    // The ninth column of the programmed rows under the image's PTT ID Type. Working texts and records stay.

    /// After a choice of the type: "On" (DTMF) or "Own" (Corvane) where the record's low nibble is 1 to 10, else "Off".
    void ShowPttIdsOfType(const DataImage& image, Language language);
    /// By the record: "Off" for a low nibble of 0, else "On" (DTMF), "Own" or the entry of the fleet list (Corvane);
    /// left alone where it is neither.
    void RefreshPttIds(const DataImage& image, Language language);

    void Add(ChannelTableObserver& observer) { observers_.Add(observer); }
    void Remove(ChannelTableObserver& observer) { observers_.Remove(observer); }

private:
    using Row = std::array<std::string, column::Count>;

    ChannelCodec codec_;
    std::array<Row, address::ChannelCount> rows_;
    ObserverList<ChannelTableObserver> observers_;
};

/// Whether the record of a channel (1 to 16) counts as one in use for the priority channel and the printed report. The
/// rows of the table tell it by the receive frequency instead.
[[nodiscard]] bool IsRecordInUse(const DataImage& image, int k);

} // namespace zelvor
