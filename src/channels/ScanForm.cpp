#include "channels/ScanForm.h"

#include <algorithm>
#include <utility>

#include "controls/BoundList.h"
#include "controls/BoundRows.h"
#include "controls/BoundSpin.h"
#include "controls/EnterAsTab.h"
#include "controls/FieldList.h"
#include "controls/FilteredLineEdit.h"
#include "data/ChannelTable.h"
#include "data/Fields.h"
#include "data/MemoryMap.h"
#include "platform/MessageBoxes.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "text/CommonTexts.h"

namespace zelvor {

namespace {

constexpr QSize WindowSize{5175, 5895}; // twips

constexpr int Margin = 12; // pixels
constexpr int Spacing = 20;

constexpr TextPair ErrorText{"Channel must be selected\nfrom the programmed Channel's",
                             "必须从已编程的信道中\n选择信道。"};

int Number(const QString& text) {
    return LeadingNumber(FromQString(text));
}

/// A step starts from what was typed.
SpinTextRules TimeRules(const NumberField& field, FilteredLineEdit::Filter filter) {
    SpinTextRules rules;
    rules.filter = std::move(filter);
    rules.read = [&field](const QString& text) {
        return text.isEmpty() ? std::nullopt : std::optional(field.read(FromQString(text)));
    };
    return rules;
}

} // namespace

// The window list names this window by another text, which begins with a blank.
ScanForm::ScanForm(Document& document, const WindowState& windows, Services& services, QWidget* parent)
    : FieldForm(ChildWindow::Scan, "ScanForm", WindowSize, "picScanInfo", Text::ScanInformation, document, windows,
                services, parent) {
    BuildControls();
    Connect();
    // Showing the mode overwrites the revert channel and, but for Fixed, the priority channel.
    const std::uint8_t revertChannel = document.Image.At(scan::RevertChannel.address);
    LoadFields();
    if (cboPriority_->currentIndex() < 0) {
        ShowMode(std::nullopt);
    }
    LoadRevertChannel(revertChannel);
    txtPriorityCH_->setText(ToQString(LoadNumber(document.Image, scan::PriorityChannel, windows.LanguageFlag).text));
    PriorityChText = txtPriorityCH_->text();
    setFocusProxy(cboPriority_);
    document.Priority.Add(*this);
}

ScanForm::~ScanForm() {
    TheDocument().Priority.Remove(*this);
}

void ScanForm::BuildControls() {
    BoundRows rows(*Panel(), TheDocument().Image, CurrentLanguage(), Margin, Spacing);
    cboPriority_ = rows.AddList("Priority", scan::PriorityMode);
    txtPriorityCH_ = new FilteredLineEdit(Panel());
    txtPriorityCH_->setObjectName("txtPriorityCH");
    txtPriorityCH_->SetFilter(Digit);
    txtPriorityCH_->SetLengthLimit(scan::PriorityChannel.lengthLimit);
    txtPriorityCH_->SelectAllOnFocus();
    EnterMovesOn(*txtPriorityCH_);
    rows.Add("lblPriorityCH", scan::PriorityChannel.label, txtPriorityCH_);
    const auto time = [&rows](const QString& name, const NumberField& field, FilteredLineEdit::Filter filter) {
        return rows.AddSpin(name, field, TimeRules(field, std::move(filter)));
    };
    lookBackTimeA_ = time("LookBackTimeA", scan::LookBackTimeA, DigitOrPoint);
    lookBackTimeB_ = time("LookBackTimeB", scan::LookBackTimeB, DigitOrPoint);
    cboRevertCH_ = new FieldList(Panel());
    cboRevertCH_->setObjectName("cboRevertCH");
    rows.Add("lblRevertCH", scan::RevertChannel.label, cboRevertCH_);
    time("DropoutDelayTime", scan::DropoutDelayTime, Digit);
    time("TXDwellTime", scan::TxDwellTime, Digit);
    rows.End();
}

void ScanForm::Connect() {
    connect(cboPriority_, &FieldList::Selected, this, &ScanForm::OnModeSelected);
    connect(txtPriorityCH_, &FilteredLineEdit::FocusLeft, this, &ScanForm::CommitPriorityChannel);
    connect(cboRevertCH_, &FieldList::Selected, this, [this] { RevertText = cboRevertCH_->currentText(); });
    connect(cboRevertCH_, &FieldList::FocusLeft, this, &ScanForm::CommitRevertChannel);
}

/// The byte is stored as it was: showing the mode has overwritten it. A list of two entries shows both meanings, with
/// priority and without, by the same entry.
void ScanForm::LoadRevertChannel(std::uint8_t byte) {
    TheDocument().Image.Set(scan::RevertChannel.address, byte);
    const bool legal = byte < scan::RevertChannel.words.size();
    cboRevertCH_->ShowEntry(legal ? byte % cboRevertCH_->count() : -1);
    RevertText = cboRevertCH_->currentText();
}

std::optional<scan::Mode> ScanForm::ShownMode() const {
    const int index = cboPriority_->currentIndex();
    return index < 0 ? std::nullopt : std::optional(static_cast<scan::Mode>(index));
}

void ScanForm::OnModeSelected(int index) {
    if (index < 0) {
        return;
    }
    const auto mode = static_cast<scan::Mode>(index);
    if (mode != scan::Mode::Fixed) {
        txtPriorityCH_->clear();
        TheDocument().Image.Set(scan::PriorityChannel.address, scan::NoChannel);
    }
    ShowMode(mode);
    CommitRevertChannel();
}

/// Without a legal mode the image's bytes stay and are shown, and what only Fixed has is off.
void ScanForm::ShowMode(std::optional<scan::Mode> mode) {
    const bool fixed = mode == scan::Mode::Fixed;
    TheDocument().Priority.SetMode(fixed, TheDocument().Image);
    txtPriorityCH_->setEnabled(fixed);
    lookBackTimeA_->setEnabled(mode != scan::Mode::None);
    lookBackTimeB_->setEnabled(mode != scan::Mode::None);
    RebuildRevertList();
}

/// RevertText stays, so that a later mode that has it among its entries finds it again.
void ScanForm::RebuildRevertList() {
    QStringList entries;
    for (const std::uint8_t value : scan::RevertChannelsOf(ShownMode())) {
        entries.append(ToQString(scan::RevertChannel.words[value].In(CurrentLanguage())));
    }
    cboRevertCH_->SetEntries(entries);
    const auto found = static_cast<int>(entries.indexOf(RevertText));
    cboRevertCH_->ShowEntry(found < 0 ? static_cast<int>(entries.size()) - 1 : found);
}

void ScanForm::CommitRevertChannel() {
    const int index = cboRevertCH_->currentIndex();
    if (index >= 0) {
        const std::uint8_t value = scan::RevertChannelsOf(ShownMode())[static_cast<std::size_t>(index)];
        TheDocument().Image.Set(scan::RevertChannel.address, value);
    }
}

void ScanForm::CommitPriorityChannel() {
    ChannelPriority& priority = TheDocument().Priority;
    priority.SetError(false);
    const int n = AcceptedPriorityChannel();
    ShowPriorityChannel(n);
    TheDocument().Image.Set(scan::PriorityChannel.address, n == 0 ? scan::NoChannel : static_cast<std::uint8_t>(n));
    PriorityChText = txtPriorityCH_->text();
    priority.Enter(n);
}

/// The channel that the box's text ends up as; 0 for none.
int ScanForm::AcceptedPriorityChannel() {
    const QString text = txtPriorityCH_->text();
    if (text.isEmpty()) {
        return 0;
    }
    const int typed = Number(text);
    const int n = std::clamp(typed, 1, address::ChannelCount);
    if (IsRecordInUse(TheDocument().Image, n)) {
        return n;
    }
    ShowError();
    return typed == 0 ? 0 : Number(PriorityChText);
}

void ScanForm::ShowError() {
    TheServices().messages.Show({std::string(commontexts::Error.In(CurrentLanguage())),
                                 std::string(ErrorText.In(CurrentLanguage())), MessageIcon::Critical,
                                 MessageButtons::Ok});
}

void ScanForm::ShowPriorityChannel(int n) {
    txtPriorityCH_->setText(n == 0 ? QString() : QString::number(n));
}

void ScanForm::OnPriorityChannel(int n) {
    if (TheWindows().IsOpen(ChildWindow::Scan)) {
        ShowPriorityChannel(n);
    }
}

} // namespace zelvor
