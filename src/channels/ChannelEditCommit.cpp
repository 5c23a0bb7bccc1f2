// Frequencies, tones and the commit of the channel edit dialog.

#include <QCheckBox>
#include <QScopedValueRollback>

#include "channels/CellValues.h"
#include "channels/ChannelEditForm.h"
#include "channels/ChannelEditLists.h"
#include "channels/FrequencyEntry.h"
#include "controls/FieldList.h"
#include "controls/FilteredLineEdit.h"
#include "controls/PendingEdit.h"
#include "data/ChannelRecord.h"
#include "data/MemoryMap.h"
#include "data/Session.h"
#include "platform/Toolkit.h"
#include "text/StringTable.h"

namespace zelvor {

// --- Receive frequency -----------------------------------------------------------------------------------------------

void ChannelEditForm::OnReceiveText(const QString& text) {
    if (showing_) {
        return;
    }
    if (text.isEmpty()) {
        BlankChannelDialog();
    } else {
        txtTxFreq_->setEnabled(true); // where Tab leads next
    }
}

void ChannelEditForm::OnReceiveLeft() {
    if (!IsLive() || !HasReceive()) {
        return;
    }
    const std::string text = FromQString(txtRxFreq_->text());
    Texts().RxText = EnterFrequency(session_, services_, text, FrequencyCaution).text;
    Texts().TxText = FromQString(txtTxFreq_->text());
    {
        const QScopedValueRollback<bool> showing(showing_, true);
        txtRxFreq_->setText(ToQString(Texts().RxText));
        EnableChannelControls();
        CompleteFields();
    }
    CompleteDependentLists();
    CompleteNewChannel();
    CommitDialog();
}

void ChannelEditForm::CompleteFields() {
    const auto complete = [](FieldList& list, int entry) {
        if (list.currentText().isEmpty()) {
            list.ShowEntry(entry);
        }
        return FromQString(list.currentText());
    };
    ChannelTexts& texts = Texts();
    texts.DecText = complete(*comDecode_, 0);
    texts.EncText = complete(*comEncode_, 0);
    if (WasBlank) {
        comSelSignal_->ShowEntry(0);
    }
    texts.OptSignalText = FromQString(comSelSignal_->currentText());
    texts.PowerText = complete(*comTxPower_, 0);
    texts.WidthText = complete(*comWideNarrow_, 1);
    const bool hasPttId = session_.Image.At(address::PttIdType) <= record::TypeCorvane;
    texts.PttIdText = complete(*comPTTID_, hasPttId ? 0 : NoEntry);
    texts.AutoDialText = complete(*comAutoDial_, 0);
}

void ChannelEditForm::CompleteDependentLists() {
    const bool nothingShown = comSPMute_->currentIndex() == NoEntry && comBusyLock_->currentIndex() == NoEntry;
    if (!AreDependentListsRight()) {
        BuildDependentLists();
    } else if (nothingShown) {
        SelectMuteEntries();
    }
}

void ChannelEditForm::CompleteNewChannel() {
    if (!WasBlank) {
        return;
    }
    WasBlank = false;
    {
        const QScopedValueRollback<bool> showing(showing_, true);
        comSPMute_->ShowEntry(0);
        comBusyLock_->ShowEntry(0);
        chkScanAdd_->setChecked(true);
        chkShift_->setChecked(false);
        chkYaKuo_->setChecked(false);
    }
    StoreSpMute();
    StoreBusyLock();
    StoreShift();
    StoreCompander();
}

// --- Transmit frequency ----------------------------------------------------------------------------------------------

void ChannelEditForm::OnTransmitText(const QString& text) {
    EnableEncode(!text.isEmpty() && HasReceive());
    if (text.isEmpty() && HasReceive()) {
        PutTone(*comEncode_, std::string(session_.LoadText(Text::None)));
        OnToneSelected(*comEncode_);
    }
}

void ChannelEditForm::OnTransmitLeft() {
    if (!IsLive() || !HasReceive()) {
        return;
    }
    std::string text = FromQString(txtTxFreq_->text());
    if (!text.empty()) {
        text = EnterFrequency(session_, services_, text, FrequencyCaution).text;
        txtTxFreq_->setText(ToQString(text));
    }
    Texts().TxText = text;
    CommitDialog();
}

// --- Tones and signalling --------------------------------------------------------------------------------------------

void ChannelEditForm::OnToneLeft(FieldList& list) {
    if (!IsLive() || !HasReceive()) {
        return;
    }
    session_.Cursor.SetCurrentChannel(channel_);
    // An empty box becomes "None" by the same rule.
    PutTone(list, NormaliseTone(FromQString(list.currentText()), session_.LanguageFlag));
    if (&list == comDecode_ && !AreDependentListsRight()) {
        RebuildDependentLists();
    }
    const bool decode = &list == comDecode_;
    StoreCell(list, decode ? &ChannelTexts::DecText : &ChannelTexts::EncText, decode ? column::Decode : column::Encode);
    CommitDialog();
}

void ChannelEditForm::OnSignalLeft() {
    if (IsLive() && !comSelSignal_->currentText().isEmpty()) {
        CommitDialog();
    }
}

// --- Commit ----------------------------------------------------------------------------------------------------------

void ChannelEditForm::CommitDialog() {
    if (!HasReceive()) {
        const QScopedValueRollback<bool> showing(showing_, true);
        chkScanAdd_->setChecked(false);
    }
    const bool added = chkScanAdd_->isChecked();
    Texts().ScanAddText = HasReceive() ? std::string(session_.LoadText(added ? Text::Yes : Text::No)) : std::string();
    SetScanAdd(session_.Image, channel_, added);
    session_.Channels.EncodeChannelRow(session_.Image, session_.LanguageFlag, channel_, session_.TxCodeError);
}

void ChannelEditForm::OnClose() {
    CommitPendingEdit();
    if (!HasReceive()) {
        session_.Channels.ClearTexts();
    }
    CommitDialog();
    emit UnloadRequested();
}

} // namespace zelvor
