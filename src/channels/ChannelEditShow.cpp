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
#include "data/MemoryMap.h"
#include "data/Session.h"
#include "platform/Toolkit.h"
#include "text/StringTable.h"

namespace zelvor {

void ChannelEditForm::OpenOnEditChannel() {
    GoToChannel(session_.Cursor.EditChannel());
    ShowChannel(channel_);
    channelSpin_->setFocus();
    channelSpin_->Box().selectAll();
}

void ChannelEditForm::GoToChannel(int n) {
    channelSpin_->Put(n);
}

void ChannelEditForm::OnChannelText(const QString& text) {
    const int n = std::clamp(text.toInt(), 1, address::ChannelCount);
    if (text != QString::number(n)) {
        channelSpin_->SetText(QString::number(n));
        if (text.isEmpty()) {
            channelSpin_->Box().selectAll(); // what is typed next takes the place of the 1 that nobody typed
        }
        return;
    }
    ShowChannel(n);
}

void ChannelEditForm::ShowChannel(int n) {
    const QScopedValueRollback<bool> showing(showing_, true);
    channel_ = n;
    channelSpin_->SetValue(n);
    session_.Cursor.ShowInDialog(n);
    session_.Channels.LoadRowIntoFields(session_.Image, session_.LanguageFlag, n);
    if (Texts().RxText.empty()) {
        BlankChannelDialog();
    } else {
        ShowProgrammedChannel();
    }
}

void ChannelEditForm::ShowProgrammedChannel() {
    const ChannelTexts& texts = Texts();
    txtRxFreq_->setText(ToQString(texts.RxText));
    EnableChannelControls();
    txtTxFreq_->setText(ToQString(texts.TxText));
    PutTone(*comDecode_, texts.DecText);
    PutTone(*comEncode_, texts.EncText);
    EnableEncode(!texts.TxText.empty());
    comTxPower_->ShowEntry(texts.PowerText == session_.LoadText(Text::High) ? 0 : 1);
    comWideNarrow_->ShowEntry(texts.WidthText == session_.LoadText(Text::Narrow) ? 0 : 1);
    chkScanAdd_->setChecked(texts.ScanAddText == session_.LoadText(Text::Yes));
    ShowOptSignal();
    ShowPttId();
    EnablePriorityMark();
    ShowRecordFields();
    BuildDependentLists();
}

void ChannelEditForm::ShowOptSignal() {
    comSelSignal_->ShowEntry(comSelSignal_->findText(ToQString(Texts().OptSignalText)));
}

void ChannelEditForm::ShowPttId() {
    const QStringList entries = ToQStrings(CellChoices(column::PttId, session_.Image, session_.LanguageFlag));
    if (comPTTID_->count() != entries.size()) {
        comPTTID_->SetEntries(entries);
    }
    const QString text = ToQString(Texts().PttIdText);
    const bool hasEntry = !text.isEmpty() && !entries.isEmpty();
    comPTTID_->ShowEntry(hasEntry ? std::max(0, static_cast<int>(entries.indexOf(text))) : NoEntry);
}

void ChannelEditForm::ShowRecordFields() {
    chkYaKuo_->setChecked(Texts().CompanderFlag);
    chkShift_->setChecked(Texts().BeatShiftFlag);
    comAutoDial_->ShowEntry(comAutoDial_->findText(ToQString(Texts().AutoDialText)));
}

void ChannelEditForm::EnableChannelControls() {
    if (!IsOpen()) {
        return;
    }
    const std::string none(session_.LoadText(Text::None));
    for (QWidget* control :
         std::initializer_list<QWidget*>{txtTxFreq_, comDecode_, comSelSignal_, comSPMute_, comTxPower_, comWideNarrow_,
                                         comBusyLock_, comPTTID_, comAutoDial_, chkShift_, chkScanAdd_, chkYaKuo_}) {
        control->setEnabled(true);
    }
    if (comDecode_->currentText().isEmpty() && HasReceive()) {
        PutTone(*comDecode_, none);
    }
    if (txtTxFreq_->text().isEmpty() && HasReceive()) {
        EnableEncode(false);
        PutTone(*comEncode_, none);
    } else if (comEncode_->currentText().isEmpty() && HasReceive()) {
        PutTone(*comEncode_, none);
    }
    EnablePriorityMark();
}

void ChannelEditForm::BlankChannelDialog() {
    const QScopedValueRollback<bool> showing(showing_, true);
    txtRxFreq_->clear();
    txtTxFreq_->clear();
    txtTxFreq_->setEnabled(false);
    for (FieldList* list : {comDecode_, comEncode_, comSelSignal_, comSPMute_, comTxPower_, comWideNarrow_,
                            comBusyLock_, comPTTID_, comAutoDial_}) {
        list->ShowEntry(NoEntry);
        list->setEnabled(false);
    }
    PutTone(*comDecode_, {});
    PutTone(*comEncode_, {});
    for (QCheckBox* check : {chkShift_, chkScanAdd_, chkPriorityChannel_, chkYaKuo_}) {
        check->setChecked(false);
        check->setEnabled(false);
    }
}

void ChannelEditForm::EnableEncode(bool enabled) {
    comEncode_->setEnabled(enabled);
}

void ChannelEditForm::PutTone(FieldList& list, const std::string& tone) {
    const QString text = ToQString(tone);
    list.ShowEntry(list.findText(text));
    list.lineEdit()->setText(text);
}

// --- The two lists that depend on others -----------------------------------------------------------------------------

bool ChannelEditForm::HasTone() const {
    return FromQString(comDecode_->currentText()) != session_.LoadText(Text::None);
}

bool ChannelEditForm::HasSignalling() const {
    return FromQString(comSelSignal_->currentText()) != session_.LoadText(Text::None);
}

bool ChannelEditForm::AreDependentListsRight() const {
    const DependentLists right = DependentListsOf(HasTone(), HasSignalling(), session_.LanguageFlag);
    // The first entry tells of the tone, the number of entries of the signalling.
    return comSPMute_->count() == static_cast<int>(right.spMute.size()) &&
           comSPMute_->itemText(0) == ToQString(right.spMute.front());
}

void ChannelEditForm::BuildDependentLists() {
    const DependentLists lists = DependentListsOf(HasTone(), HasSignalling(), session_.LanguageFlag);
    comSPMute_->SetEntries(ToQStrings(lists.spMute));
    comBusyLock_->SetEntries(ToQStrings(lists.busyLock));
    SelectMuteEntries();
}

void ChannelEditForm::SelectMuteEntries() {
    const std::uint8_t byte12 = RecordByte(record::Signalling);
    comSPMute_->ShowEntry(SpMuteEntry(byte12, comSPMute_->count()));
    comBusyLock_->ShowEntry(BusyLockEntry(byte12, comBusyLock_->count()));
    Texts().SpMuteText = FromQString(comSPMute_->currentText());
    Texts().BusyLockText = FromQString(comBusyLock_->currentText());
}

// --- Priority channel ------------------------------------------------------------------------------------------------

void ChannelEditForm::EnablePriorityMark() {
    chkPriorityChannel_->setEnabled(session_.Priority.PriorityFixedMode() && HasReceive());
    ShowPriorityMark(session_.Priority.PriorityChannelNo());
}

void ChannelEditForm::ShowPriorityMark(int n) {
    const QScopedValueRollback<bool> showing(showing_, true);
    chkPriorityChannel_->setChecked(chkPriorityChannel_->isEnabled() && n == channel_);
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

void ChannelEditForm::OnPttIdTypeChosen(bool isOn) {
    if (!IsOpen()) {
        return;
    }
    // Intended: as the list is made anew for each channel, it shows what the last programmed one has.
    comPTTID_->SetEntries(ToQStrings(PttIdTypeEntries(session_.Image, session_.LanguageFlag)));
    comPTTID_->ShowEntry(!HasReceive() ? NoEntry : isOn ? 1 : 0);
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
        Texts().PttIdText = session_.Channels.CellText(channel_, column::PttId);
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
    txtRxFreq_->setText(ToQString(Texts().RxText));
    txtTxFreq_->setText(ToQString(Texts().TxText));
    PutTone(*comDecode_, Texts().DecText);
    PutTone(*comEncode_, Texts().EncText);
    if (!AreDependentListsRight()) {
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
    chkScanAdd_->setChecked(Texts().ScanAddText != session_.LoadText(Text::No));
}

void ChannelEditForm::ShowTransmitCommit() {
    txtTxFreq_->setText(ToQString(Texts().TxText));
    PutTone(*comEncode_, Texts().EncText);
    EnableEncode(!Texts().TxText.empty());
}

void ChannelEditForm::ShowCellChoice(int column) {
    const ChannelTexts& texts = Texts();
    switch (column) {
    case column::Decode:
        PutTone(*comDecode_, texts.DecText);
        break;
    case column::Encode:
        PutTone(*comEncode_, texts.EncText);
        break;
    case column::Power:
        comTxPower_->ShowEntry(texts.PowerText == session_.LoadText(Text::High) ? 0 : 1);
        break;
    case column::Width:
        comWideNarrow_->ShowEntry(texts.WidthText == session_.LoadText(Text::Narrow) ? 0 : 1);
        break;
    case column::ScanAdd:
        chkScanAdd_->setChecked(texts.ScanAddText == session_.LoadText(Text::Yes));
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
    if (!AreDependentListsRight()) {
        BuildDependentLists();
    }
}

} // namespace zelvor
