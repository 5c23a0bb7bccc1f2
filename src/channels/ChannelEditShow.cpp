// How the channel edit dialog shows a channel.

#include <QCheckBox>
#include <QScopedValueRollback>
#include <algorithm>

#include "channels/CellValues.h"
#include "channels/ChannelEditForm.h"
#include "channels/ChannelEditLists.h"
#include "channels/ChannelForm.h"
#include "controls/FieldList.h"
#include "controls/SpinText.h"
#include "data/ChannelRecord.h"
#include "data/MemoryMap.h"
#include "platform/Toolkit.h"
#include "text/StringTable.h"

namespace zelvor {

void ChannelEditForm::OpenOnEditChannel() {
    GoToChannel(session_.EditChannel);
    Reload();
    channelSpin_->setFocus();
    channelSpin_->Box().selectAll();
}

void ChannelEditForm::GoToChannel(int n) {
    channelSpin_->Put(n);
}

void ChannelEditForm::Reload() {
    ShowChannel(channel_);
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
    session_.EditChannel = n;
    channelSpin_->SetValue(n);
    if (windows_.grid) {
        windows_.grid->ShowChannelInCaption(n);
    }
    LoadFields(n);
    if (Texts().RxText.empty()) {
        BlankChannelDialog();
    } else {
        ShowProgrammedChannel();
    }
}

void ChannelEditForm::LoadFields(int n) {
    for (int column = 1; column <= column::Count; ++column) {
        Texts().*GridTexts[static_cast<std::size_t>(column) - 1] =
            windows_.grid ? FromQString(windows_.grid->CellText(n, column)) : std::string();
    }
    session_.Channels.LoadHiddenFields(session_.Image, session_.LanguageFlag, n);
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
    if (!session_.IsOpen(ChildWindow::ChannelEdit)) {
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
    chkPriorityChannel_->setEnabled(session_.PriorityFixedMode && HasReceive());
    ShowPriorityMark(session_.PriorityChannelNo);
}

void ChannelEditForm::ShowPriorityMark(int n) {
    const QScopedValueRollback<bool> showing(showing_, true);
    chkPriorityChannel_->setChecked(chkPriorityChannel_->isEnabled() && n == channel_);
}

// --- PTT ID ----------------------------------------------------------------------------------------------------------

void ChannelEditForm::OfferPttIds(const QStringList& entries, int entry) {
    comPTTID_->SetEntries(entries);
    comPTTID_->ShowEntry(HasReceive() ? entry : NoEntry);
}

void ChannelEditForm::TakePttId() {
    if (windows_.grid && HasReceive()) {
        Texts().PttIdText = FromQString(windows_.grid->CellText(channel_, column::PttId));
    }
}

// --- What the grid tells ---------------------------------------------------------------------------------------------

void ChannelEditForm::ShowLoadedRow() {
    const QScopedValueRollback<bool> showing(showing_, true);
    txtRxFreq_->setText(ToQString(Texts().RxText));
    txtTxFreq_->setText(ToQString(Texts().TxText));
    PutTone(*comDecode_, Texts().DecText);
    PutTone(*comEncode_, Texts().EncText);
    if (!AreDependentListsRight()) {
        BuildDependentLists();
    }
}

void ChannelEditForm::ShowReceiveCommit(bool hasSignal, bool asTyped) {
    const QScopedValueRollback<bool> showing(showing_, true);
    ChannelTexts& texts = Texts();
    if (!hasSignal) {
        texts.OptSignalText = asTyped ? std::string() : std::string(session_.LoadText(Text::None));
    }
    ShowProgrammedChannel();
    chkScanAdd_->setChecked(texts.ScanAddText != session_.LoadText(Text::No));
}

void ChannelEditForm::ShowTransmitCommit() {
    const QScopedValueRollback<bool> showing(showing_, true);
    txtTxFreq_->setText(ToQString(Texts().TxText));
    PutTone(*comEncode_, Texts().EncText);
    EnableEncode(!Texts().TxText.empty());
}

void ChannelEditForm::ShowCellChoice(int column) {
    const QScopedValueRollback<bool> showing(showing_, true);
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
