#pragma once

#include <cstdint>
#include <string>

namespace zelvor {

class Document;
class WindowState;
struct ChannelTexts;

/// When the record of a channel follows its working texts: at once, and what is edited is told to the other window
/// before; or with the next commit, and only the row of the table shows it until then.
enum class RecordFollows { AtOnce, WithNextCommit };

/// What a value that was committed does to the working texts, the channel table and the image. Both channel windows
/// call it, with what each of them does differently as named arguments; it knows neither. Channels k: 1 to 16.
class ChannelEditor {
public:
    /// Texts are in the language of the windows.
    ChannelEditor(Document& document, const WindowState& windows);

    /// A receive frequency as NormaliseFrequency gives it.
    struct Receive {
        std::string frequency;
        bool completesTexts = true;      // what the channel has no text for gets its default
        bool completesSignalling = true; // with them, the option signalling
        bool clearsHiddenFields = true;  // Compander, Beat Shift and Autodial Memory become those of a new channel
        RecordFollows record = RecordFollows::AtOnce;
    };
    void CommitReceive(int k, const Receive& receive);

    /// A transmit frequency as NormaliseFrequency gives it, or none.
    struct Transmit {
        std::string frequency;
        bool emptyTakesEncodeTone = true; // a channel that only receives gets the encode tone "None"
        RecordFollows record = RecordFollows::AtOnce;
    };
    void CommitTransmit(int k, const Transmit& transmit);

    /// A text for one of the columns 3 to 9; an empty one is none. A tone comes normalised.
    struct Choice {
        int column;
        std::string text;
        bool encodeNeedsTransmit = false;  // without a transmit frequency an encode tone becomes "None"
        bool emptySignallingStays = false; // a row without an option signalling goes on showing none
        RecordFollows record = RecordFollows::AtOnce;
    };
    /// Returns the text that was taken.
    std::string Choose(int k, const Choice& choice);

    /// The grid's way to blank a channel: row and record are erased, the Scan Add bit stays.
    void Blank(int k);

    // What has no column of the table: stored in the record at once. entry: the place in the list of the dialog, -1
    // for none; text: what the list shows there.

    void StoreSpMute(int k, int entry, const std::string& text);
    void StoreBusyLock(int k, int entry, const std::string& text);
    void StoreAutoDial(int k, int entry, const std::string& text);
    void StoreBeatShift(int k, bool on);
    void StoreCompander(int k, bool on);
    /// Bit and column at once; a channel without a frequency has none.
    void StoreScanAdd(int k, bool added);
    /// The list of the PTT IDs took the keyboard. Intended: under the type DTMF that alone sets the low bit.
    void TouchPttId(int k);

    /// The dialog's commit: the working texts and the Scan Add mark go into row and record.
    struct Commit {
        bool programmed = false; // the dialog shows a receive frequency; else there is no mark
        bool scanAdd = false;
        bool blanksTexts = false; // the nine texts are emptied before
    };
    void CommitChannel(int k, const Commit& commit);

private:
    void Finish(int k, int column, RecordFollows record);
    void Encode(int k);
    [[nodiscard]] ChannelTexts& Texts();
    [[nodiscard]] std::uint8_t RecordByte(int k, int j) const;
    void SetRecordByte(int k, int j, std::uint8_t value);

    Document& document_;
    const WindowState& windows_;
};

} // namespace zelvor
