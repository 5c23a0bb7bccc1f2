// What the lists and check boxes of the channel edit dialog store.

#include <QCheckBox>

#include "channels/CellValues.h"
#include "channels/ChannelEditForm.h"
#include "channels/ChannelEditLists.h"
#include "controls/FieldList.h"
#include "controls/FilteredLineEdit.h"
#include "data/ChannelRecord.h"
#include "data/MemoryMap.h"
#include "data/Session.h"
#include "platform/Toolkit.h"
#include "text/StringTable.h"

namespace zelvor {

bool ChannelEditForm::IsLive() const {
    return IsOpen() && !showing_;
}

bool ChannelEditForm::IsOpen() const {
    return session_.IsOpen(ChildWindow::ChannelEdit);
}

bool ChannelEditForm::HasReceive() const {
    return !txtRxFreq_->text().isEmpty();
}

ChannelTexts& ChannelEditForm::Texts() {
    return session_.Channels.Texts();
}

std::uint8_t ChannelEditForm::RecordByte(int j) const {
    return session_.Image.At(address::Channel(channel_) + j);
}

void ChannelEditForm::SetRecordByte(int j, std::uint8_t value) {
    session_.Image.Set(address::Channel(channel_) + j, value);
}

// --- Tones and signalling --------------------------------------------------------------------------------------------

void ChannelEditForm::OnToneSelected(FieldList& list) {
    if (!IsLive()) {
        return;
    }
    const bool decode = &list == comDecode_;
    if (decode) {
        RebuildDependentLists();
    }
    StoreCell(list, decode ? &ChannelTexts::DecText : &ChannelTexts::EncText, decode ? column::Decode : column::Encode);
}

void ChannelEditForm::OnSignalSelected() {
    if (!IsLive()) {
        return;
    }
    RebuildDependentLists();
    const std::string text = FromQString(comSelSignal_->currentText());
    if (!session_.Channels.CellText(channel_, column::OptSignal).empty()) {
        session_.Channels.SetCellText(channel_, column::OptSignal, text);
    }
    Texts().OptSignalText = text;
}

void ChannelEditForm::RebuildDependentLists() {
    BuildDependentLists();
    // A stored place that the new list does not have is shown as its first entry, and stored as what is shown. Where
    // nothing is selected, nothing was chosen, and the byte stays.
    if (comSPMute_->currentIndex() != NoEntry) {
        StoreSpMute();
    }
    StoreBusyLock();
}

// --- Byte 12 to 15 of the record -------------------------------------------------------------------------------------

void ChannelEditForm::StoreSpMute() {
    if (IsLive()) {
        SetRecordByte(record::Signalling, WithSpMuteEntry(RecordByte(record::Signalling), comSPMute_->currentIndex()));
        Texts().SpMuteText = FromQString(comSPMute_->currentText());
    }
}

void ChannelEditForm::StoreBusyLock() {
    if (IsLive()) {
        SetRecordByte(record::Signalling,
                      WithBusyLockEntry(RecordByte(record::Signalling), comBusyLock_->currentIndex()));
        Texts().BusyLockText = FromQString(comBusyLock_->currentText());
    }
}

void ChannelEditForm::StoreAutoDial() {
    if (IsLive()) {
        SetRecordByte(record::AutoDial, AutoDialByte(comAutoDial_->currentIndex()));
        Texts().AutoDialText = FromQString(comAutoDial_->currentText());
    }
}

void ChannelEditForm::StoreShift() {
    if (IsLive()) {
        Texts().BeatShiftFlag = chkShift_->isChecked();
        session_.Image.SetBits(address::Channel(channel_) + record::Transmitter, record::BeatShiftBit,
                               Texts().BeatShiftFlag ? record::BeatShiftBit : 0);
    }
}

void ChannelEditForm::StoreCompander() {
    if (IsLive()) {
        Texts().CompanderFlag = chkYaKuo_->isChecked();
        session_.Image.SetBits(address::Channel(channel_) + record::Signalling, record::CompanderBit,
                               Texts().CompanderFlag ? record::CompanderBit : 0);
    }
}

// --- What the grid shows too -----------------------------------------------------------------------------------------

void ChannelEditForm::StoreScanAdd() {
    if (!IsLive() || !session_.Channels.HasFrequency(channel_)) {
        return;
    }
    Texts().ScanAddText = session_.LoadText(chkScanAdd_->isChecked() ? Text::Yes : Text::No);
    SetScanAdd(session_.Image, channel_, chkScanAdd_->isChecked());
    session_.Channels.SetCellText(channel_, column::ScanAdd, Texts().ScanAddText);
}

void ChannelEditForm::StoreCell(const FieldList& list, std::string ChannelTexts::*field, int column) {
    const std::string text = FromQString(list.currentText());
    if (IsLive() && !text.empty()) {
        Texts().*field = text;
        session_.Channels.SetCellText(channel_, column, text);
    }
}

void ChannelEditForm::OnPttIdFocus() {
    const std::uint8_t type = session_.Image.At(address::PttIdType);
    const QStringList entries = ToQStrings(CellChoices(column::PttId, session_.Image, session_.LanguageFlag));
    if (type == record::TypeDtmf) {
        const bool wasEmpty = comPTTID_->currentText().isEmpty();
        if (wasEmpty) {
            comPTTID_->SetEntries(entries);
        }
        // Intended: taking the focus sets the bit, whatever is selected.
        SetRecordByte(record::PttId, RecordByte(record::PttId) | 1);
        if (wasEmpty && HasReceive()) {
            comPTTID_->setCurrentIndex(1);
        }
        return;
    }
    comPTTID_->SetEntries(entries);
    if (type == record::TypeCorvane) {
        comPTTID_->setCurrentIndex(CorvanePttIdEntry(RecordByte(record::PttId)));
    }
}

// --- Priority channel ------------------------------------------------------------------------------------------------

void ChannelEditForm::StorePriority(bool checked) {
    if (!IsLive()) {
        return;
    }
    // The image's byte is the scan window's to write, when its box is left.
    session_.Priority.Mark(checked ? channel_ : 0);
}

} // namespace zelvor
