#include "channels/ChannelEditor.h"

#include "channels/ChannelEditLists.h"
#include "controls/WindowState.h"
#include "data/ChannelRecord.h"
#include "data/Document.h"
#include "data/MemoryMap.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

std::string& TextOf(ChannelTexts& texts, int column) {
    return texts.*GridTexts[static_cast<std::size_t>(column) - 1];
}

} // namespace

ChannelEditor::ChannelEditor(Document& document, const WindowState& windows) : document_(document), windows_(windows) {}

void ChannelEditor::CommitReceive(int k, const Receive& receive) {
    Texts().RxText = receive.frequency;
    ChannelTable& table = document_.Channels;
    if (receive.completesTexts) {
        table.CompleteTexts(document_.Image, windows_.LanguageFlag, receive.completesSignalling);
    }
    if (receive.clearsHiddenFields) {
        table.ClearHiddenFields(document_.Image, windows_.LanguageFlag, k);
    }
    Finish(k, column::Rx, receive.record);
}

void ChannelEditor::CommitTransmit(int k, const Transmit& transmit) {
    Texts().TxText = transmit.frequency;
    if (transmit.frequency.empty() && transmit.emptyTakesEncodeTone) {
        Texts().EncText = windows_.LoadText(Text::None);
    }
    Finish(k, column::Tx, transmit.record);
}

std::string ChannelEditor::Choose(int k, const Choice& choice) {
    const bool isDead = choice.encodeNeedsTransmit && choice.column == column::Encode && Texts().TxText.empty();
    std::string text = isDead ? std::string(windows_.LoadText(Text::None)) : choice.text;
    if (text.empty()) {
        return text;
    }
    TextOf(Texts(), choice.column) = text;
    const bool cellStays = choice.emptySignallingStays && choice.column == column::OptSignal &&
                           document_.Channels.CellText(k, column::OptSignal).empty();
    if (!cellStays) {
        Finish(k, choice.column, choice.record);
    }
    return text;
}

void ChannelEditor::Blank(int k) {
    document_.Channels.ClearChannelData(document_.Image, k);
}

void ChannelEditor::StoreSpMute(int k, int entry, const std::string& text) {
    SetRecordByte(k, record::Signalling, WithSpMuteEntry(RecordByte(k, record::Signalling), entry));
    Texts().SpMuteText = text;
}

void ChannelEditor::StoreBusyLock(int k, int entry, const std::string& text) {
    SetRecordByte(k, record::Signalling, WithBusyLockEntry(RecordByte(k, record::Signalling), entry));
    Texts().BusyLockText = text;
}

void ChannelEditor::StoreAutoDial(int k, int entry, const std::string& text) {
    SetRecordByte(k, record::AutoDial, AutoDialByte(entry));
    Texts().AutoDialText = text;
}

void ChannelEditor::StoreBeatShift(int k, bool on) {
    Texts().BeatShiftFlag = on;
    document_.Image.SetBits(address::Channel(k) + record::Transmitter, record::BeatShiftBit,
                            on ? record::BeatShiftBit : 0);
}

void ChannelEditor::StoreCompander(int k, bool on) {
    Texts().CompanderFlag = on;
    document_.Image.SetBits(address::Channel(k) + record::Signalling, record::CompanderBit,
                            on ? record::CompanderBit : 0);
}

void ChannelEditor::StoreScanAdd(int k, bool added) {
    if (!document_.Channels.HasFrequency(k)) {
        return;
    }
    Texts().ScanAddText = windows_.LoadText(added ? Text::Yes : Text::No);
    SetScanAdd(document_.Image, k, added);
    document_.Channels.SetCellText(k, column::ScanAdd, Texts().ScanAddText);
}

void ChannelEditor::TouchPttId(int k) {
    if (document_.Image.At(address::PttIdType) == record::TypeDtmf) {
        SetRecordByte(k, record::PttId, RecordByte(k, record::PttId) | 1);
    }
}

void ChannelEditor::CommitChannel(int k, const Commit& commit) {
    if (commit.blanksTexts) {
        document_.Channels.ClearTexts();
    }
    const bool added = commit.programmed && commit.scanAdd;
    Texts().ScanAddText =
        commit.programmed ? std::string(windows_.LoadText(added ? Text::Yes : Text::No)) : std::string();
    SetScanAdd(document_.Image, k, added);
    Encode(k);
}

void ChannelEditor::Finish(int k, int column, RecordFollows record) {
    switch (record) {
    case RecordFollows::AtOnce:
        document_.Channels.TellEdited(k, column);
        Encode(k);
        break;
    case RecordFollows::WithNextCommit:
        document_.Channels.SetCellText(k, column, TextOf(Texts(), column));
        break;
    }
}

void ChannelEditor::Encode(int k) {
    document_.Channels.EncodeChannelRow(document_.Image, windows_.LanguageFlag, k, document_.Flags.TxCodeError);
}

ChannelTexts& ChannelEditor::Texts() {
    return document_.Channels.Texts();
}

std::uint8_t ChannelEditor::RecordByte(int k, int j) const {
    return document_.Image.At(address::Channel(k) + j);
}

void ChannelEditor::SetRecordByte(int k, int j, std::uint8_t value) {
    document_.Image.Set(address::Channel(k) + j, value);
}

} // namespace zelvor
