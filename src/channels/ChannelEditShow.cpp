// How the channel edit dialog shows a channel.

#include <QCheckBox>
#include <QScopedValueRollback>
#include <algorithm>

#include "channels/CellValues.h"
#include "channels/ChannelEditForm.h"
#include "channels/ChannelEditLists.h"
#include "controls/FieldList.h"
#include "controls/SpinText.h"
#include "data/ChannelRecord.h"
#include "data/Document.h"
#include "data/MemoryMap.h"
#include "platform/Toolkit.h"
#include "text/StringTable.h"

namespace zelvor {

void ChannelEditForm::OpenOnEditChannel() {
    GoToChannel(windows_.Cursor.EditChannel());
    ShowChannel(channel_);
    fields_.channel->setFocus();
    fields_.channel->Box().selectAll();
}

void ChannelEditForm::GoToChannel(int n) {
    fields_.channel->Put(n);
}

void ChannelEditForm::OnChannelText(const QString& text) {
    const int n = std::clamp(text.toInt(), 1, address::ChannelCount);
    if (text != QString::number(n)) {
        fields_.channel->SetText(QString::number(n));
        if (text.isEmpty()) {
            fields_.channel->Box().selectAll(); // what is typed next takes the place of the 1 that nobody typed
        }
        return;
    }
    ShowChannel(n);
}

void ChannelEditForm::ShowChannel(int n) {
    const QScopedValueRollback<bool> showing(showing_, true);
    channel_ = n;
    fields_.channel->SetValue(n);
    windows_.Cursor.ShowInDialog(n);
    document_.Channels.LoadRowIntoFields(document_.Image, windows_.LanguageFlag, n);
    if (Texts().RxText.empty()) {
        BlankChannelDialog();
    } else {
        ShowProgrammedChannel();
    }
}

void ChannelEditForm::ShowProgrammedChannel() {
    const ChannelTexts& texts = Texts();
    fields_.txtRxFreq->setText(ToQString(texts.RxText));
    EnableChannelControls();
    fields_.txtTxFreq->setText(ToQString(texts.TxText));
    ChannelEditPanel::PutTone(*fields_.comDecode, texts.DecText);
    ChannelEditPanel::PutTone(*fields_.comEncode, texts.EncText);
    EnableEncode(!texts.TxText.empty());
    fields_.comTxPower->ShowEntry(texts.PowerText == windows_.LoadText(Text::High) ? 0 : 1);
    fields_.comWideNarrow->ShowEntry(texts.WidthText == windows_.LoadText(Text::Narrow) ? 0 : 1);
    fields_.chkScanAdd->setChecked(texts.ScanAddText == windows_.LoadText(Text::Yes));
    ShowOptSignal();
    ShowPttId();
    EnablePriorityMark();
    ShowRecordFields();
    BuildDependentLists();
}

void ChannelEditForm::ShowOptSignal() {
    fields_.comSelSignal->ShowEntry(fields_.comSelSignal->findText(ToQString(Texts().OptSignalText)));
}

void ChannelEditForm::ShowPttId() {
    const QStringList entries = ToQStrings(CellChoices(column::PttId, document_.Image, windows_.LanguageFlag));
    if (fields_.comPTTID->count() != entries.size()) {
        fields_.comPTTID->SetEntries(entries);
    }
    const QString text = ToQString(Texts().PttIdText);
    const bool hasEntry = !text.isEmpty() && !entries.isEmpty();
    fields_.comPTTID->ShowEntry(hasEntry ? std::max(0, static_cast<int>(entries.indexOf(text))) : NoEntry);
}

void ChannelEditForm::ShowRecordFields() {
    fields_.chkYaKuo->setChecked(Texts().CompanderFlag);
    fields_.chkShift->setChecked(Texts().BeatShiftFlag);
    fields_.comAutoDial->ShowEntry(fields_.comAutoDial->findText(ToQString(Texts().AutoDialText)));
}

void ChannelEditForm::CompleteDependentLists() {
    const bool nothingShown =
        fields_.comSPMute->currentIndex() == NoEntry && fields_.comBusyLock->currentIndex() == NoEntry;
    if (!fields_.AreDependentListsRight()) {
        BuildDependentLists();
    } else if (nothingShown) {
        SelectMuteEntries();
    }
}

void ChannelEditForm::EnableChannelControls() {
    if (!IsOpen()) {
        return;
    }
    const std::string none(windows_.LoadText(Text::None));
    for (QWidget* control : std::initializer_list<QWidget*>{
             fields_.txtTxFreq, fields_.comDecode, fields_.comSelSignal, fields_.comSPMute, fields_.comTxPower,
             fields_.comWideNarrow, fields_.comBusyLock, fields_.comPTTID, fields_.comAutoDial, fields_.chkShift,
             fields_.chkScanAdd, fields_.chkYaKuo}) {
        control->setEnabled(true);
    }
    if (fields_.comDecode->currentText().isEmpty() && HasReceive()) {
        ChannelEditPanel::PutTone(*fields_.comDecode, none);
    }
    if (fields_.txtTxFreq->text().isEmpty() && HasReceive()) {
        EnableEncode(false);
        ChannelEditPanel::PutTone(*fields_.comEncode, none);
    } else if (fields_.comEncode->currentText().isEmpty() && HasReceive()) {
        ChannelEditPanel::PutTone(*fields_.comEncode, none);
    }
    EnablePriorityMark();
}

void ChannelEditForm::BlankChannelDialog() {
    const QScopedValueRollback<bool> showing(showing_, true);
    fields_.txtRxFreq->clear();
    fields_.txtTxFreq->clear();
    fields_.txtTxFreq->setEnabled(false);
    for (FieldList* list :
         {fields_.comDecode, fields_.comEncode, fields_.comSelSignal, fields_.comSPMute, fields_.comTxPower,
          fields_.comWideNarrow, fields_.comBusyLock, fields_.comPTTID, fields_.comAutoDial}) {
        list->ShowEntry(NoEntry);
        list->setEnabled(false);
    }
    ChannelEditPanel::PutTone(*fields_.comDecode, {});
    ChannelEditPanel::PutTone(*fields_.comEncode, {});
    for (QCheckBox* check : {fields_.chkShift, fields_.chkScanAdd, fields_.chkPriorityChannel, fields_.chkYaKuo}) {
        check->setChecked(false);
        check->setEnabled(false);
    }
}

void ChannelEditForm::EnableEncode(bool enabled) {
    fields_.comEncode->setEnabled(enabled);
}

// --- The two lists that depend on others -----------------------------------------------------------------------------

void ChannelEditForm::BuildDependentLists() {
    const DependentLists lists = fields_.DependentListsNow();
    fields_.comSPMute->SetEntries(ToQStrings(lists.spMute));
    fields_.comBusyLock->SetEntries(ToQStrings(lists.busyLock));
    SelectMuteEntries();
}

void ChannelEditForm::SelectMuteEntries() {
    const std::uint8_t byte12 = document_.Image.At(address::Channel(channel_) + record::Signalling);
    fields_.comSPMute->ShowEntry(SpMuteEntry(byte12, fields_.comSPMute->count()));
    fields_.comBusyLock->ShowEntry(BusyLockEntry(byte12, fields_.comBusyLock->count()));
    Texts().SpMuteText = FromQString(fields_.comSPMute->currentText());
    Texts().BusyLockText = FromQString(fields_.comBusyLock->currentText());
}

// --- Priority channel ------------------------------------------------------------------------------------------------

void ChannelEditForm::EnablePriorityMark() {
    fields_.chkPriorityChannel->setEnabled(document_.Priority.PriorityFixedMode() && HasReceive());
    ShowPriorityMark(document_.Priority.PriorityChannelNo());
}

void ChannelEditForm::ShowPriorityMark(int n) {
    const QScopedValueRollback<bool> showing(showing_, true);
    fields_.chkPriorityChannel->setChecked(fields_.chkPriorityChannel->isEnabled() && n == channel_);
}

void ChannelEditForm::OnPriorityMode() {
    if (IsOpen()) {
        EnablePriorityMark();
    }
}

void ChannelEditForm::OnPriorityChannel(int n) {
    // Intended: emptying the scan window's box leaves the mark until the channel is shown anew.
    if (IsOpen() && n != 0) {
        ShowPriorityMark(n);
    }
}

// --- PTT ID ----------------------------------------------------------------------------------------------------------

void ChannelEditForm::OnPttIdFocus() {
    const std::uint8_t type = document_.Image.At(address::PttIdType);
    const QStringList entries = ToQStrings(CellChoices(column::PttId, document_.Image, windows_.LanguageFlag));
    editor_.TouchPttId(channel_);
    if (type == record::TypeDtmf) {
        if (fields_.comPTTID->currentText().isEmpty()) {
            fields_.comPTTID->SetEntries(entries);
            if (HasReceive()) {
                fields_.comPTTID->setCurrentIndex(1);
            }
        }
        return;
    }
    fields_.comPTTID->SetEntries(entries);
    if (type == record::TypeCorvane) {
        fields_.comPTTID->setCurrentIndex(
            CorvanePttIdEntry(document_.Image.At(address::Channel(channel_) + record::PttId)));
    }
}

void ChannelEditForm::OnPttIdTypeChosen(bool isOn) {
    if (!IsOpen()) {
        return;
    }
    // Intended: as the list is made anew for each channel, it shows what the last programmed one has.
    fields_.comPTTID->SetEntries(ToQStrings(PttIdTypeEntries(document_.Image, windows_.LanguageFlag)));
    fields_.comPTTID->ShowEntry(!HasReceive() ? NoEntry : isOn ? 1 : 0);
    TakePttId();
}

void ChannelEditForm::OnPttIdsRefreshed() {
    if (IsOpen()) {
        TakePttId();
    }
}

/// The working texts take the PTT ID of the row, where the channel is programmed.
void ChannelEditForm::TakePttId() {
    if (HasReceive()) {
        Texts().PttIdText = document_.Channels.CellText(channel_, column::PttId);
    }
}

// --- What the grid tells, after it changed the working texts
// -----------------------------------------------------------

void ChannelEditForm::OnDecoded() {
    if (IsOpen()) {
        ShowChannel(channel_);
    }
}

void ChannelEditForm::OnGridChannel(int n) {
    if (IsOpen()) {
        GoToChannel(n);
    }
}

void ChannelEditForm::OnRowCleared(int /*k*/) {
    if (IsOpen()) {
        BlankChannelDialog();
    }
}

void ChannelEditForm::OnRowOpened(int /*k*/) {
    if (!IsOpen()) {
        return;
    }
    if (Texts().RxText.empty()) {
        BlankChannelDialog();
        return;
    }
    const QScopedValueRollback<bool> showing(showing_, true);
    fields_.txtRxFreq->setText(ToQString(Texts().RxText));
    fields_.txtTxFreq->setText(ToQString(Texts().TxText));
    ChannelEditPanel::PutTone(*fields_.comDecode, Texts().DecText);
    ChannelEditPanel::PutTone(*fields_.comEncode, Texts().EncText);
    if (!fields_.AreDependentListsRight()) {
        BuildDependentLists();
    }
}

void ChannelEditForm::OnTextEdited(int /*k*/, int column) {
    if (!IsOpen()) {
        return;
    }
    const QScopedValueRollback<bool> showing(showing_, true);
    switch (column) {
    case column::Rx:
        ShowReceiveCommit();
        break;
    case column::Tx:
        ShowTransmitCommit();
        break;
    default:
        ShowCellChoice(column);
        break;
    }
}

void ChannelEditForm::ShowReceiveCommit() {
    ShowProgrammedChannel();
    fields_.chkScanAdd->setChecked(Texts().ScanAddText != windows_.LoadText(Text::No));
}

void ChannelEditForm::ShowTransmitCommit() {
    fields_.txtTxFreq->setText(ToQString(Texts().TxText));
    ChannelEditPanel::PutTone(*fields_.comEncode, Texts().EncText);
    EnableEncode(!Texts().TxText.empty());
}

void ChannelEditForm::ShowCellChoice(int column) {
    const ChannelTexts& texts = Texts();
    switch (column) {
    case column::Decode:
        ChannelEditPanel::PutTone(*fields_.comDecode, texts.DecText);
        break;
    case column::Encode:
        ChannelEditPanel::PutTone(*fields_.comEncode, texts.EncText);
        break;
    case column::Power:
        fields_.comTxPower->ShowEntry(texts.PowerText == windows_.LoadText(Text::High) ? 0 : 1);
        break;
    case column::Width:
        fields_.comWideNarrow->ShowEntry(texts.WidthText == windows_.LoadText(Text::Narrow) ? 0 : 1);
        break;
    case column::ScanAdd:
        fields_.chkScanAdd->setChecked(texts.ScanAddText == windows_.LoadText(Text::Yes));
        break;
    case column::OptSignal:
        ShowOptSignal();
        break;
    case column::PttId:
        ShowPttId();
        break;
    default:
        break;
    }
    if (!fields_.AreDependentListsRight()) {
        BuildDependentLists();
    }
}

} // namespace zelvor
