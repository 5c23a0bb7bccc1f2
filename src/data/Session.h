#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/ChannelCursor.h"
#include "data/ChannelPriority.h"
#include "data/ChannelTable.h"
#include "data/DataImage.h"
#include "data/TestFrequencies.h"
#include "data/TuneItems.h"
#include "text/Language.h"
#include "text/Text.h"

namespace zelvor {

/// The child windows, in the order of Session::ChildOpen.
enum class ChildWindow {
    Channels,
    OptionalFeatures,
    KeyAssignment,
    Scan,
    Dtmf,
    Corvane,
    TestFrequency,
    EmbeddedMessage,
    Navigator,
    ChannelEdit,
};
inline constexpr int ChildWindowCount = 10;

/// SentState of a link on which no command was sent yet; also forces the next send tick.
inline constexpr int NothingSent = 55;

/// State that every exchange with the radio shares.
struct LinkState {
    std::uint8_t CommState = 0;
    int SentState = NothingSent;
    int StepCount = 0;
    int TransferMode = 0; // 0 reading, 1 writing, 55 the last send of a transfer is done
    int AddrHigh = 0;
    int AddrLow = 0;
    std::vector<std::uint8_t> TxBuffer;
};

/// State of the radio's service mode, shared by the exchange that enters it, test mode and the tuning dialogs.
struct ServiceState {
    int TuneItem = 1;      // 1 to 15
    int TestChannelNo = 1; // 1 to 16
    bool NarrowMode = false;
    bool TestAborted = false; // the user gave up at the connection prompt: nothing more is sent to the radio
    /// What the radio told of its test channels on entry; "0" for an unused one.
    std::array<TestFrequencyTexts, TestChannelCount> TestFrequencyText;
    TuneValues Values;
    /// The radio's manufacturing record, by the index of its bytes.
    std::array<std::uint8_t, 34> RadioInfoRecord{};
};

/// What the windows share: the one document and the state round it. Owned by the application, handed on by reference.
class Session {
public:
    DataImage Image;
    DataImage SavedImage; // Image as it was when the document last became clean

    std::string CurrentFileName = std::string(DefaultFileName); // full path, or the bare default name; UTF-8
    std::string CurrentDirectory;                               // for the file dialogs; empty until an Open or Save As

    Language LanguageFlag = Language::English;
    bool ExitConfirmed = false; // Yes was said to the exit question; stays set when the close is then cancelled
    bool SaveCancelled = false;

    ChannelCursor Cursor;

    bool OwnIdError = false;
    bool TxCodeError = false;
    int TxCodeErrorKind = 0; // 1 begin code, 2 end code, 3 both

    ChannelPriority Priority;

    int CommPortNumber = 1; // 1 to 20, in memory only
    LinkState Link;
    ServiceState Service;
    ChannelTable Channels;

    static constexpr std::string_view DefaultFileName = "Zelvor.dat";

    [[nodiscard]] bool IsOpen(ChildWindow window) const { return ChildOpen[static_cast<std::size_t>(window)]; }
    void SetOpen(ChildWindow window, bool open) { ChildOpen[static_cast<std::size_t>(window)] = open; }
    [[nodiscard]] bool IsAnyChildOpen() const;

    [[nodiscard]] std::string_view LoadText(Text name) const;

    void TakeSnapshot() { SavedImage = Image; }

    /// Whether the image differs from the snapshot. The PTT ID Type is first copied into the snapshot: a change of that
    /// byte alone never counts, and the copy stays.
    [[nodiscard]] bool IsDocumentChanged();

    /// Whether the document has a file: its name holds a directory.
    [[nodiscard]] bool HasFile() const;
    [[nodiscard]] std::string BaseName() const;

    std::array<bool, ChildWindowCount> ChildOpen{};
};

/// The texts of the grid window's caption for channel n: the form used everywhere but after New and Open.
[[nodiscard]] std::string ChannelCaption(Language language, int n);

/// The form for channel 1 that New and Open use; in English it has no blanks round the dash. Both forms are intended.
[[nodiscard]] std::string NewDocumentChannelCaption(Language language);

} // namespace zelvor
