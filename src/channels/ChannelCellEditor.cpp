#include "channels/ChannelCellEditor.h"

#include <QKeyEvent>
#include <QScopedValueRollback>

#include "channels/CellValues.h"
#include "channels/FrequencyEntry.h"
#include "channels/ToneKeys.h"
#include "controls/CellListEditor.h"
#include "controls/CellTextEditor.h"
#include "controls/EditGrid.h"
#include "controls/WindowState.h"
#include "data/Document.h"
#include "platform/Toolkit.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr int FrequencyLength = 9; // "000.00000"
constexpr int HelpContextBase = 4100;

} // namespace

ChannelCellEditor::ChannelCellEditor(Document& document, WindowState& windows, Services& services, EditGrid& grid,
                                     QWidget* panel, ToneLists tones)
    : QObject(panel), document_(document), windows_(windows), services_(services), editor_(document, windows),
      grid_(grid), tones_(tones), txtInputBox_(new CellTextEditor(panel)), comInputStep_(new CellListEditor(panel)) {
    txtInputBox_->setObjectName("txtInputBox");
    txtInputBox_->setMaxLength(FrequencyLength);
    txtInputBox_->SetFilter(DigitOrPoint);
    // The lower-case letter ends an edit like Enter, on purpose.
    txtInputBox_->SetEnterLetter(u'l');
    comInputStep_->setObjectName("comInputStep");
    TakeToneKeys(*static_cast<FilteredLineEdit*>(comInputStep_->lineEdit()));
    comInputStep_->SetEnterLetter(u'l');

    connect(&grid_, &EditGrid::CellClicked, this, &ChannelCellEditor::OnCellClicked);
    connect(&grid_, &EditGrid::KeyPressed, this, &ChannelCellEditor::OnGridKey);
    connect(&grid_, &EditGrid::Scrolled, this, &ChannelCellEditor::OnGridScrolled);
    connect(txtInputBox_, &QLineEdit::textChanged, this, &ChannelCellEditor::OnTextChanged);
    connect(txtInputBox_, &FilteredLineEdit::EnterPressed, this, [this] { OnTextEnded(false); });
    connect(txtInputBox_, &FilteredLineEdit::EscapePressed, this, [this] { OnTextEnded(true); });
    connect(txtInputBox_, &FilteredLineEdit::FocusLeft, this, &ChannelCellEditor::LeaveText);
    connect(comInputStep_, &CellListEditor::Chosen, this,
            [this](const QString& text) { OnSelected(FromQString(text)); });
    connect(comInputStep_, &CellListEditor::Stepped, this, &ChannelCellEditor::OnStepped);
    connect(comInputStep_, &CellListEditor::EditEnded, this, &ChannelCellEditor::OnListEnded);
    connect(comInputStep_, &CellListEditor::FocusLeft, this, &ChannelCellEditor::LeaveList);
}

void ChannelCellEditor::OnCellClicked() {
    const int row = grid_.Row();
    if (IsRowBlank(row)) {
        grid_.MoveTo(row, column::Rx);
    } else if (grid_.Column() == column::Encode && !HasTransmit(row)) {
        grid_.MoveTo(row, column::Tx);
    }
    ShowCellEditor();
}

void ChannelCellEditor::OnGridKey(QKeyEvent* event) {
    if (IsEnterKey(*event)) {
        OnCellClicked(); // Enter moves the cursor by the same two rules
        event->accept();
        return;
    }
    const QChar character = TypedCharacter(*event).toUpper();
    if (!DigitOrPoint(character).isNull() || IsToneLetter(character.unicode())) {
        OnGridCharacter(character);
        event->accept();
    }
}

void ChannelCellEditor::OnGridCharacter(QChar character) {
    const int row = grid_.Row();
    const int cursor = grid_.Column();
    const bool hasRx = !IsRowBlank(row);
    const bool hasTx = HasTransmit(row);
    if (IsFrequencyColumn(cursor)) {
        if (IsToneLetter(character.unicode())) {
            return;
        }
        if (!hasRx) {
            grid_.MoveTo(row, column::Rx);
        }
        ShowCellEditor();
        txtInputBox_->setText(character);
    } else if (IsToneColumn(cursor)) {
        const bool takesTone = hasRx && (cursor == column::Decode || hasTx);
        if (!takesTone) {
            grid_.MoveTo(row, hasRx ? column::Tx : column::Rx);
        }
        ShowCellEditor();
        if (takesTone) {
            comInputStep_->PutText(character);
        }
    }
}

void ChannelCellEditor::OnGridScrolled() {
    // An editor does not travel with its cell: scrolling cancels the edit.
    if (state_ == State::TextEditing) {
        OnTextEnded(true);
    } else if (state_ == State::ListEditing) {
        OnListEnded();
    }
}

bool ChannelCellEditor::IsRowBlank(int row) const {
    return !document_.Channels.IsProgrammed(row);
}

bool ChannelCellEditor::HasTransmit(int row) const {
    return !document_.Channels.CellText(row, column::Tx).empty();
}

bool ChannelCellEditor::IsDialogOpen() const {
    return windows_.IsOpen(ChildWindow::ChannelEdit);
}

void ChannelCellEditor::ShowCellEditor() {
    if (state_ != State::Idle) {
        return;
    }
    const int row = grid_.Row();
    const int cursor = grid_.Column();
    windows_.Cursor.GoToCell(row, cursor);
    CellUndoText = grid_.Text(row, cursor);
    document_.Channels.OpenRow(document_.Image, windows_.LanguageFlag, row);
    if (cursor != column::Rx && IsRowBlank(row)) {
        return;
    }
    const int helpContext = HelpContextBase + cursor;
    if (IsFrequencyColumn(cursor)) {
        const QScopedValueRollback<bool> loading(loading_, true);
        state_ = State::TextEditing;
        txtInputBox_->setProperty("HelpContextID", helpContext);
        txtInputBox_->ShowOver(grid_, CellUndoText);
        return;
    }
    state_ = State::ListEditing;
    CycleActive = false;
    const QStringList entries = cursor == column::Decode ? ToQStrings(tones_.decode)
                                : cursor == column::Encode
                                    ? ToQStrings(tones_.encode)
                                    : ToQStrings(CellChoices(cursor, document_.Image, windows_.LanguageFlag));
    comInputStep_->setProperty("HelpContextID", helpContext);
    comInputStep_->ShowOver(grid_, entries, CellUndoText, IsToneColumn(cursor));
}

void ChannelCellEditor::HideEditors() {
    state_ = State::Idle;
    if (txtInputBox_->hasFocus() || comInputStep_->hasFocus()) {
        grid_.setFocus(); // before hiding, which would hand the focus on to the next control for a moment
    }
    txtInputBox_->hide();
    comInputStep_->hide();
    grid_.CatchFocus();
}

void ChannelCellEditor::Leave() {
    LeaveText();
    LeaveList();
}

// --- Frequencies -----------------------------------------------------------------------------------------------------

void ChannelCellEditor::OnTextChanged(const QString& text) {
    if (loading_ || state_ != State::TextEditing) {
        return;
    }
    document_.Channels.SetCellText(windows_.Cursor.CurrentChannel(), windows_.Cursor.CurrentCol(), FromQString(text));
    if (text.size() == FrequencyLength) {
        CommitText();
    }
}

void ChannelCellEditor::OnTextEnded(bool restore) {
    if (restore) {
        const QScopedValueRollback<bool> loading(loading_, true);
        txtInputBox_->setText(CellUndoText);
        document_.Channels.SetCellText(windows_.Cursor.CurrentChannel(), windows_.Cursor.CurrentCol(),
                                       FromQString(CellUndoText));
    }
    LeaveText();
    grid_.setFocus();
    grid_.MoveRight();
}

void ChannelCellEditor::LeaveText() {
    if (state_ != State::TextEditing || committing_) {
        return;
    }
    CommitText();
    HideEditors();
    emit FrequencyLeft();
}

void ChannelCellEditor::CommitText() {
    const QScopedValueRollback<bool> committing(committing_, true);
    windows_.Cursor.SetEditChannel(windows_.Cursor.CurrentChannel());
    if (windows_.Cursor.CurrentCol() == column::Rx) {
        CommitReceive(txtInputBox_->text());
    } else {
        CommitTransmit(txtInputBox_->text());
    }
}

void ChannelCellEditor::CommitReceive(const QString& text) {
    const int k = windows_.Cursor.CurrentChannel();
    if (text.isEmpty()) {
        editor_.Blank(k);
        return;
    }
    const NormalisedFrequency entered = Enter(text);
    if (!entered.outOfRange) {
        CellUndoText = ToQString(entered.text);
    }
    // Retyping a complete frequency leaves the row's other columns alone: defaults come only with a completed one, or
    // with the dialog beside, which then shows no option signalling where there was none.
    const bool isCompleted = entered.text != FromQString(text);
    const bool hasDefaults = isCompleted || IsDialogOpen(); // behind the message, which may outlive the dialog
    editor_.CommitReceive(k, {.frequency = entered.text,
                              .completesTexts = hasDefaults,
                              .completesSignalling = isCompleted,
                              .clearsHiddenFields = hasDefaults});
}

NormalisedFrequency ChannelCellEditor::Enter(const QString& text) const {
    return EnterFrequency(document_.Image, FromQString(text), services_, windows_.LanguageFlag, FrequencyCaution);
}

void ChannelCellEditor::CommitTransmit(const QString& text) {
    const std::string frequency = text.isEmpty() ? std::string() : Enter(text).text;
    editor_.CommitTransmit(windows_.Cursor.CurrentChannel(), {.frequency = frequency});
}

// --- Tones and choices -----------------------------------------------------------------------------------------------

void ChannelCellEditor::OnStepped(int direction) {
    const std::string before = FromQString(comInputStep_->currentText());
    CycledText = StepCellValue(windows_.Cursor.CurrentCol(), before, direction, document_.Image, windows_.LanguageFlag,
                               tones_.decode);
    if (CycledText != before) {
        CycleActive = true;
        OnSelected(before);
    }
}

void ChannelCellEditor::OnSelected(const std::string& text) {
    if (state_ != State::ListEditing) {
        return;
    }
    const std::string value = editor_.Choose(
        windows_.Cursor.CurrentChannel(),
        {.column = windows_.Cursor.CurrentCol(), .text = CycleActive ? CycledText : text, .encodeNeedsTransmit = true});
    comInputStep_->PutText(ToQString(value));
    CycledText = value;
    CellUndoText = ToQString(CycledText);
    CycleActive = false;
}

void ChannelCellEditor::CommitTone() {
    CycledText = NormaliseTone(FromQString(comInputStep_->currentText()), windows_.LanguageFlag);
    editor_.Choose(windows_.Cursor.CurrentChannel(), {.column = windows_.Cursor.CurrentCol(), .text = CycledText});
}

void ChannelCellEditor::LeaveList() {
    if (state_ != State::ListEditing) {
        return;
    }
    if (IsToneColumn(windows_.Cursor.CurrentCol())) {
        CommitTone();
    }
    HideEditors();
}

void ChannelCellEditor::OnListEnded() {
    const int row = windows_.Cursor.CurrentChannel();
    const int edited = windows_.Cursor.CurrentCol();
    LeaveList();
    grid_.setFocus();
    if (edited < column::Count) {
        const bool skipsDeadEncode = edited == column::Decode && !HasTransmit(row);
        grid_.MoveTo(row, edited + (skipsDeadEncode ? 2 : 1));
    } else if (row < grid_.rowCount()) {
        grid_.MoveTo(row + 1, column::Rx);
        grid_.scrollToItem(grid_.currentItem());
    }
}

} // namespace zelvor
