#pragma once

#include <string>
#include <string_view>

#include "data/ChannelPriority.h"
#include "data/ChannelTable.h"
#include "data/DataImage.h"

namespace zelvor {

/// What the editors complain of, beside the missing priority channel that ChannelPriority knows: while one of them is
/// set, the document may not be written to a radio.
struct WriteFlags {
    bool OwnIdError = false;
    bool TxCodeError = false;
    int TxCodeErrorKind = 0; // 1 begin code, 2 end code, 3 both

    /// TxCodeErrorKind stays as it was: a channel's PTT ID can raise TxCodeError again without setting it. Intended.
    void Clear() { OwnIdError = TxCodeError = false; }
};

/// The one document: the radio's memory, what its windows share of it, the file that it is kept in, and whether it
/// differs from that. Owned by the program, handed on by reference.
class Document {
public:
    static constexpr std::string_view DefaultFileName = "Zelvor.dat";

    DataImage Image;
    ChannelTable Channels;
    ChannelPriority Priority;
    WriteFlags Flags;

    /// No editor's complaint is left, the missing priority channel included.
    void ClearWriteFlags();

    /// The full path, or a bare name where the document has no file yet; UTF-8.
    [[nodiscard]] const std::string& FileName() const { return CurrentFileName; }
    /// Whether the document has a file: its name holds a directory.
    [[nodiscard]] bool HasFile() const;
    /// The name without its directory.
    [[nodiscard]] std::string BaseName() const;
    void Rename(std::string fileName);
    /// The document has no file any more.
    void RenameToDefault() { Rename(std::string(DefaultFileName)); }

    /// The image counts as saved as it is.
    void TakeSnapshot() { SavedImage = Image; }
    /// The image as it was when the document last became clean.
    [[nodiscard]] const DataImage& Snapshot() const { return SavedImage; }
    /// Whether the image differs from the snapshot. The PTT ID Type is first copied into the snapshot: a change of that
    /// byte alone never counts, and the copy stays.
    [[nodiscard]] bool IsDocumentChanged();

private:
    DataImage SavedImage;
    std::string CurrentFileName = std::string(DefaultFileName);
};

} // namespace zelvor
