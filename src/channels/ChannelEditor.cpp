#include "channels/ChannelEditor.h"

#include "channels/ChannelEditLists.h"
#include "data/ChannelRecord.h"
#include "data/MemoryMap.h"
#include "data/Session.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

std::string& TextOf(ChannelTexts& texts, int column) {
    return texts.*GridTexts[static_cast<std::size_t>(column) - 1];
}

} // namespace

ChannelEditor::ChannelEditor(Session& session) : session_(session) {}

void ChannelEditor::CommitReceive(int k, const Receive& receive) {
    Texts().RxText = receive.frequency;
    ChannelTable& table = session_.Channels;
    if (receive.completesTexts) {
        table.CompleteTexts(session_.Image, session_.LanguageFlag, receive.completesSignalling);
    }
    if (receive.clearsHiddenFields) {
        table.ClearHiddenFields(session_.Image, session_.LanguageFlag, k);
    }
    Finish(k, column::Rx, receive.record);
}

void ChannelEditor::CommitTransmit(int k, const Transmit& transmit) {
    Texts().TxText = transmit.frequency;
    if (transmit.frequency.empty() && transmit.emptyTakesEncodeTone) {
        Texts().EncText = session_.LoadText(Text::None);
    }
    Finish(k, column::Tx, transmit.record);
}

std::string ChannelEditor::Choose(int k, const Choice& choice) {
    const bool isDead = choice.encodeNeedsTransmit && choice.column == column::Encode && Texts().TxText.empty();
    std::string text = isDead ? std::string(session_.LoadText(Text::None)) : choice.text;
    if (text.empty()) {
        return text;
    }
    TextOf(Texts(), choice.column) = text;
    const bool cellStays = choice.emptySignallingStays && choice.column == column::OptSignal &&
                           session_.Channels.CellText(k, column::OptSignal).empty();
    if (!cellStays) {
        Finish(k, choice.column, choice.record);
    }
    return text;
}

void ChannelEditor::Blank(int k) {
    session_.Channels.ClearChannelData(session_.Image, k);
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
    session_.Image.SetBits(address::Channel(k) + record::Transmitter, record::BeatShiftBit,
                           on ? record::BeatShiftBit : 0);
}

void ChannelEditor::StoreCompander(int k, bool on) {
    Texts().CompanderFlag = on;
    session_.Image.SetBits(address::Channel(k) + record::Signalling, record::CompanderBit,
                           on ? record::CompanderBit : 0);
}

void ChannelEditor::StoreScanAdd(int k, bool added) {
    if (!session_.Channels.HasFrequency(k)) {
        return;
    }
    Texts().ScanAddText = session_.LoadText(added ? Text::Yes : Text::No);
    SetScanAdd(session_.Image, k, added);
    session_.Channels.SetCellText(k, column::ScanAdd, Texts().ScanAddText);
}

void ChannelEditor::TouchPttId(int k) {
    if (session_.Image.At(address::PttIdType) == record::TypeDtmf) {
        SetRecordByte(k, record::PttId, RecordByte(k, record::PttId) | 1);
    }
}

void ChannelEditor::CommitChannel(int k, const Commit& commit) {
    if (commit.blanksTexts) {
        session_.Channels.ClearTexts();
    }
    const bool added = commit.programmed && commit.scanAdd;
    Texts().ScanAddText =
        commit.programmed ? std::string(session_.LoadText(added ? Text::Yes : Text::No)) : std::string();
    SetScanAdd(session_.Image, k, added);
    Encode(k);
}

void ChannelEditor::Finish(int k, int column, RecordFollows record) {
    switch (record) {
    case RecordFollows::AtOnce:
        session_.Channels.TellEdited(k, column);
        Encode(k);
        break;
    case RecordFollows::WithNextCommit:
        session_.Channels.SetCellText(k, column, TextOf(Texts(), column));
        break;
    }
}

void ChannelEditor::Encode(int k) {
    session_.Channels.EncodeChannelRow(session_.Image, session_.LanguageFlag, k, session_.TxCodeError);
}

ChannelTexts& ChannelEditor::Texts() {
    return session_.Channels.Texts();
}

std::uint8_t ChannelEditor::RecordByte(int k, int j) const {
    return session_.Image.At(address::Channel(k) + j);
}

void ChannelEditor::SetRecordByte(int k, int j, std::uint8_t value) {
    session_.Image.Set(address::Channel(k) + j, value);
}

} // namespace zelvor
