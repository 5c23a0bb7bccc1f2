#include "channels/ChannelEditForm.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QScopedValueRollback>

#include "channels/CellValues.h"
#include "channels/ChannelEditLists.h"
#include "channels/FrequencyEntry.h"
#include "controls/EnterAsTab.h"
#include "controls/FieldList.h"
#include "controls/FilteredLineEdit.h"
#include "controls/SpinText.h"
#include "data/ChannelRecord.h"
#include "data/Document.h"
#include "data/MemoryMap.h"
#include "data/ToneCodec.h"
#include "help/HelpViewer.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr QSize WindowSize{5640, 6570}; // twips

bool TakesFocus(const QEvent& event) {
    return event.type() == QEvent::FocusIn && static_cast<const QFocusEvent&>(event).reason() != Qt::PopupFocusReason;
}

/// A key that stands for a character; Tab only moves on.
bool IsTypedKey(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    return !key.text().isEmpty() && key.key() != Qt::Key_Tab && key.key() != Qt::Key_Backtab;
}

} // namespace

ChannelEditForm::ChannelEditForm(Document& document, WindowState& windows, Services& services, QWidget* parent)
    : ChildForm(ChildWindow::ChannelEdit, "ChannelEditForm", WindowSize, parent), document_(document),
      windows_(windows), services_(services), editor_(document, windows), fields_(document, windows, *Content()) {
    windows_.SetOpen(ChildWindow::ChannelEdit, true);
    SetCaption(ToQString(windows_.LoadText(Text::ChannelEditTitle)));
    ConnectFields();
    ConnectLists();
    setFocusProxy(fields_.channel);
    GoToChannel(windows_.Cursor.EditChannel());
    document_.Channels.Add(*this);
    windows_.Cursor.Add(*this);
    document_.Priority.Add(*this);
}

ChannelEditForm::~ChannelEditForm() {
    document_.Priority.Remove(*this);
    windows_.Cursor.Remove(*this);
    document_.Channels.Remove(*this);
}

void ChannelEditForm::ConnectFields() {
    connect(&fields_.channel->Box(), &QLineEdit::textChanged, this, &ChannelEditForm::OnChannelText);
    connect(fields_.txtRxFreq, &QLineEdit::textChanged, this, &ChannelEditForm::OnReceiveText);
    connect(fields_.txtRxFreq, &FilteredLineEdit::FocusLeft, this, &ChannelEditForm::OnReceiveLeft);
    connect(fields_.txtRxFreq, &FilteredLineEdit::EnterPressed, this, [this] {
        if (HasReceive()) {
            MoveOn(*fields_.txtRxFreq);
        }
    });
    connect(fields_.txtTxFreq, &QLineEdit::textChanged, this, &ChannelEditForm::OnTransmitText);
    connect(fields_.txtTxFreq, &FilteredLineEdit::FocusLeft, this, &ChannelEditForm::OnTransmitLeft);
    EnterMovesOn(*fields_.txtTxFreq);
    connect(fields_.chkPriorityChannel, &QCheckBox::toggled, this, &ChannelEditForm::StorePriority);
    On(*fields_.cmdOK, [this] { OnClose(); });
    connect(fields_.cmdHelp, &QPushButton::clicked, this, [this] {
        services_.help.Show({windows_.LanguageFlag, HelpPage()});
    });
    const auto stores = [this](QCheckBox* check, void (ChannelEditor::*store)(int, bool)) {
        connect(check, &QCheckBox::toggled, this, [this, store](bool checked) {
            if (IsLive()) {
                (editor_.*store)(channel_, checked);
            }
        });
    };
    stores(fields_.chkShift, &ChannelEditor::StoreBeatShift);
    stores(fields_.chkYaKuo, &ChannelEditor::StoreCompander);
    stores(fields_.chkScanAdd, &ChannelEditor::StoreScanAdd);
    for (QWidget* watched : std::initializer_list<QWidget*>{fields_.txtRxFreq, fields_.comPTTID, fields_.chkScanAdd}) {
        watched->installEventFilter(this);
    }
}

void ChannelEditForm::ConnectLists() {
    // What a list stores, it stores when an entry is chosen and again when the list is left.
    const auto stores = [this](FieldList* list, auto store) {
        connect(list, &FieldList::Selected, this, store);
        connect(list, &FieldList::FocusLeft, this, store);
    };
    stores(fields_.comSPMute, [this] { StoreSpMute(); });
    stores(fields_.comBusyLock, [this] { StoreBusyLock(); });
    stores(fields_.comAutoDial, [this] {
        if (IsLive()) {
            editor_.StoreAutoDial(channel_, fields_.comAutoDial->currentIndex(),
                                  FromQString(fields_.comAutoDial->currentText()));
        }
    });
    stores(fields_.comTxPower, [this] { Choose(*fields_.comTxPower, column::Power); });
    stores(fields_.comWideNarrow, [this] { Choose(*fields_.comWideNarrow, column::Width); });
    stores(fields_.comPTTID, [this] { Choose(*fields_.comPTTID, column::PttId); });
    for (FieldList* list : {fields_.comDecode, fields_.comEncode}) {
        connect(list, &FieldList::Selected, this, [this, list] { OnToneSelected(*list); });
        connect(list, &FieldList::FocusLeft, this, [this, list] { OnToneLeft(*list); });
    }
    connect(fields_.comSelSignal, &FieldList::Selected, this, &ChannelEditForm::OnSignalSelected);
    connect(fields_.comSelSignal, &FieldList::FocusLeft, this, &ChannelEditForm::OnSignalLeft);
}

bool ChannelEditForm::eventFilter(QObject* watched, QEvent* event) {
    if (TakesFocus(*event)) {
        if (watched == fields_.txtRxFreq) {
            WasBlank = !HasReceive();
        } else if (watched == fields_.comPTTID && IsLive()) {
            OnPttIdFocus();
        }
    } else if (watched == fields_.chkScanAdd && IsTypedKey(*event) && IsLive()) {
        CommitDialog();
    }
    return ChildForm::eventFilter(watched, event);
}

bool ChannelEditForm::IsLive() const {
    return IsOpen() && !showing_;
}

bool ChannelEditForm::IsOpen() const {
    return windows_.IsOpen(ChildWindow::ChannelEdit);
}

bool ChannelEditForm::HasReceive() const {
    return !fields_.txtRxFreq->text().isEmpty();
}

ChannelTexts& ChannelEditForm::Texts() {
    return document_.Channels.Texts();
}

// --- Receive frequency -----------------------------------------------------------------------------------------------

void ChannelEditForm::OnReceiveText(const QString& text) {
    if (showing_) {
        return;
    }
    if (text.isEmpty()) {
        BlankChannelDialog();
    } else {
        fields_.txtTxFreq->setEnabled(true); // where Tab leads next
    }
}

std::string ChannelEditForm::Enter(const std::string& text) const {
    return EnterFrequency(document_.Image, text, services_, windows_.LanguageFlag, FrequencyCaution).text;
}

void ChannelEditForm::OnReceiveLeft() {
    if (!IsLive() || !HasReceive()) {
        return;
    }
    const std::string text = FromQString(fields_.txtRxFreq->text());
    const std::string frequency = Enter(text);
    {
        const QScopedValueRollback<bool> showing(showing_, true);
        fields_.txtRxFreq->setText(ToQString(frequency));
        EnableChannelControls();
        fields_.ShowDefaults(WasBlank, document_.Image.At(address::PttIdType) <= record::TypeCorvane);
    }
    // The texts come complete, from what is shown.
    fields_.TakeTexts(Texts());
    editor_.CommitReceive(channel_, {.frequency = frequency,
                                     .completesTexts = false,
                                     .clearsHiddenFields = false,
                                     .record = RecordFollows::WithNextCommit});
    CompleteDependentLists();
    if (WasBlank) {
        CompleteNewChannel();
    }
    CommitDialog();
}

void ChannelEditForm::CompleteNewChannel() {
    WasBlank = false;
    {
        const QScopedValueRollback<bool> showing(showing_, true);
        fields_.comSPMute->ShowEntry(0);
        fields_.comBusyLock->ShowEntry(0);
        fields_.chkScanAdd->setChecked(true);
        fields_.chkShift->setChecked(false);
        fields_.chkYaKuo->setChecked(false);
    }
    StoreSpMute();
    StoreBusyLock();
    if (IsLive()) {
        editor_.StoreBeatShift(channel_, false);
        editor_.StoreCompander(channel_, false);
    }
}

// --- Transmit frequency ----------------------------------------------------------------------------------------------

void ChannelEditForm::OnTransmitText(const QString& text) {
    EnableEncode(!text.isEmpty() && HasReceive());
    if (text.isEmpty() && HasReceive()) {
        ChannelEditPanel::PutTone(*fields_.comEncode, std::string(windows_.LoadText(Text::None)));
        OnToneSelected(*fields_.comEncode);
    }
}

void ChannelEditForm::OnTransmitLeft() {
    if (!IsLive() || !HasReceive()) {
        return;
    }
    std::string frequency = FromQString(fields_.txtTxFreq->text());
    if (!frequency.empty()) {
        frequency = Enter(frequency);
        fields_.txtTxFreq->setText(ToQString(frequency));
    }
    editor_.CommitTransmit(
        channel_, {.frequency = frequency, .emptyTakesEncodeTone = false, .record = RecordFollows::WithNextCommit});
    CommitDialog();
}

// --- Tones and choices -----------------------------------------------------------------------------------------------

void ChannelEditForm::OnToneSelected(FieldList& list) {
    if (!IsLive()) {
        return;
    }
    if (&list == fields_.comDecode) {
        RebuildDependentLists();
    }
    Choose(list, ToneColumn(list));
}

void ChannelEditForm::OnToneLeft(FieldList& list) {
    if (!IsLive() || !HasReceive()) {
        return;
    }
    windows_.Cursor.SetCurrentChannel(channel_);
    // An empty box becomes "None" by the same rule.
    ChannelEditPanel::PutTone(list, NormaliseTone(FromQString(list.currentText()), windows_.LanguageFlag));
    if (&list == fields_.comDecode && !fields_.AreDependentListsRight()) {
        RebuildDependentLists();
    }
    Choose(list, ToneColumn(list));
    CommitDialog();
}

void ChannelEditForm::OnSignalSelected() {
    if (IsLive()) {
        RebuildDependentLists();
        Choose(*fields_.comSelSignal, column::OptSignal);
    }
}

void ChannelEditForm::OnSignalLeft() {
    if (IsLive() && !fields_.comSelSignal->currentText().isEmpty()) {
        CommitDialog();
    }
}

int ChannelEditForm::ToneColumn(const FieldList& list) const {
    return &list == fields_.comDecode ? column::Decode : column::Encode;
}

void ChannelEditForm::Choose(const FieldList& list, int column) {
    if (IsLive()) {
        editor_.Choose(channel_, {.column = column,
                                  .text = FromQString(list.currentText()),
                                  .emptySignallingStays = true,
                                  .record = RecordFollows::WithNextCommit});
    }
}

void ChannelEditForm::RebuildDependentLists() {
    BuildDependentLists();
    // A stored place that the new list does not have is shown as its first entry, and stored as what is shown. Where
    // nothing is selected, nothing was chosen, and the byte stays.
    if (fields_.comSPMute->currentIndex() != NoEntry) {
        StoreSpMute();
    }
    StoreBusyLock();
}

void ChannelEditForm::StoreSpMute() {
    if (IsLive()) {
        editor_.StoreSpMute(channel_, fields_.comSPMute->currentIndex(), FromQString(fields_.comSPMute->currentText()));
    }
}

void ChannelEditForm::StoreBusyLock() {
    if (IsLive()) {
        editor_.StoreBusyLock(channel_, fields_.comBusyLock->currentIndex(),
                              FromQString(fields_.comBusyLock->currentText()));
    }
}

void ChannelEditForm::StorePriority(bool checked) {
    if (!IsLive()) {
        return;
    }
    // The image's byte is the scan window's to write, when its box is left.
    document_.Priority.Mark(checked ? channel_ : 0);
}

// --- Commit ----------------------------------------------------------------------------------------------------------

void ChannelEditForm::CommitDialog(bool blanksTexts) {
    if (!HasReceive()) {
        const QScopedValueRollback<bool> showing(showing_, true);
        fields_.chkScanAdd->setChecked(false);
    }
    editor_.CommitChannel(
        channel_, {.programmed = HasReceive(), .scanAdd = fields_.chkScanAdd->isChecked(), .blanksTexts = blanksTexts});
}

void ChannelEditForm::OnClose() {
    CommitDialog(!HasReceive());
    emit UnloadRequested();
}

} // namespace zelvor
