#include "channels/ScanForm.h"

#include <algorithm>

#include "controls/EnterAsTab.h"
#include "controls/FieldList.h"
#include "controls/FilteredLineEdit.h"
#include "controls/SpinText.h"
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

constexpr int PriorityChannelDigits = 2;

constexpr TextPair ErrorText{"Channel must be selected\nfrom the programmed Channel's",
                             "必须从已编程的信道中\n选择信道。"};

int Number(const QString& text) {
    return LeadingNumber(FromQString(text));
}

} // namespace

// The window list names this window by another text, which begins with a blank.
ScanForm::ScanForm(Session& session, Services& services, QWidget* parent)
    : FieldForm(ChildWindow::Scan, "ScanForm", WindowSize, "picScanInfo", Text::ScanInformation, session, services,
                parent) {
    BuildControls();
    LayOut();
    LoadFields();
    Load();
    setFocusProxy(cboPriority_);
    session.Priority.Add(*this);
}

ScanForm::~ScanForm() {
    TheSession().Priority.Remove(*this);
}

void ScanForm::BuildControls() {
    const auto list = [this](const char* name) {
        auto* made = new FieldList(Panel());
        made->setObjectName(name);
        return made;
    };
    cboPriority_ = list("cboPriority");
    txtPriorityCH_ = new FilteredLineEdit(Panel());
    txtPriorityCH_->setObjectName("txtPriorityCH");
    txtPriorityCH_->SetFilter(Digit);
    txtPriorityCH_->SetLengthLimit(PriorityChannelDigits);
    txtPriorityCH_->SelectAllOnFocus();
    lookBackTimeA_ = MakeTime("LookBackTimeA", scan::LookBackTimeA);
    lookBackTimeB_ = MakeTime("LookBackTimeB", scan::LookBackTimeB);
    cboRevertCH_ = list("cboRevertCH");
    dropoutDelayTime_ = MakeTime("DropoutDelayTime", scan::DropoutDelayTime);
    txDwellTime_ = MakeTime("TXDwellTime", scan::TxDwellTime);

    EnterMovesOn(*txtPriorityCH_);
    connect(cboPriority_, &FieldList::Selected, this, &ScanForm::OnModeSelected);
    connect(cboPriority_, &FieldList::FocusLeft, this, &ScanForm::CommitMode);
    connect(txtPriorityCH_, &FilteredLineEdit::FocusLeft, this, &ScanForm::CommitPriorityChannel);
    connect(cboRevertCH_, &FieldList::Selected, this, [this] { RevertText = cboRevertCH_->currentText(); });
    connect(cboRevertCH_, &FieldList::FocusLeft, this, &ScanForm::CommitRevertChannel);
}

SpinText* ScanForm::MakeTime(const QString& name, const scan::TimeField& field) {
    SpinTextRules rules;
    rules.first = field.first;
    rules.last = field.last;
    rules.lengthLimit = field.lengthLimit;
    rules.filter = field.decimals > 0 ? DigitOrPoint : Digit;
    rules.show = [&field](int value) { return ToQString(scan::Show(field, value)); };
    rules.read = [&field](const QString& text) -> std::optional<int> {
        if (text.isEmpty()) {
            return std::nullopt;
        }
        return scan::Read(field, FromQString(text));
    };
    auto* made = new SpinText("txt" + name, "upd" + name, rules, Panel());
    connect(&made->Box(), &FilteredLineEdit::FocusLeft, this, [this, made, &field] { CommitTime(*made, field); });
    return made;
}

void ScanForm::LayOut() {
    constexpr int margin = 12;
    constexpr int spacing = 20;
    FieldRows rows(*Panel(), TheSession().LanguageFlag, margin, spacing);
    rows.Add("lblPriority", scan::PriorityMode.label, cboPriority_);
    rows.Add("lblPriorityCH", scan::PriorityChannel.label, txtPriorityCH_);
    rows.Add("lblLookBackTimeA", scan::LookBackTimeA.label, lookBackTimeA_);
    rows.Add("lblLookBackTimeB", scan::LookBackTimeB.label, lookBackTimeB_);
    rows.Add("lblRevertCH", scan::RevertChannel.label, cboRevertCH_);
    rows.Add("lblDropoutDelayTime", scan::DropoutDelayTime.label, dropoutDelayTime_);
    rows.Add("lblTXDwellTime", scan::TxDwellTime.label, txDwellTime_);
    rows.End();
}

void ScanForm::Load() {
    QStringList modes;
    for (const Text word : scan::PriorityMode.words) {
        modes.append(LoadText(word));
    }
    cboPriority_->SetEntries(modes);

    const DataImage& image = TheSession().Image;
    const std::uint8_t revertChannel = image.At(scan::RevertChannel.address);
    if (const auto mode = scan::EntryOf(scan::PriorityMode, image.At(scan::PriorityMode.address))) {
        cboPriority_->setCurrentIndex(*mode);
    } else {
        ShowMode(std::nullopt);
    }
    const std::uint8_t channel = image.At(scan::PriorityChannel.address);
    txtPriorityCH_->setText(channel == scan::NoChannel ? QString() : QString::number(channel));
    PriorityChText = txtPriorityCH_->text();
    LoadTime(*lookBackTimeA_, scan::LookBackTimeA);
    LoadTime(*lookBackTimeB_, scan::LookBackTimeB);
    LoadRevertChannel(revertChannel);
    LoadTime(*dropoutDelayTime_, scan::DropoutDelayTime);
    LoadTime(*txDwellTime_, scan::TxDwellTime);
}

void ScanForm::LoadTime(SpinText& control, const scan::TimeField& field) {
    const std::optional<int> value = scan::Load(TheSession().Image, field);
    control.SetValue(value.value_or(field.first));
    control.SetText(value ? ToQString(scan::Show(field, *value)) : QString());
}

/// The byte is stored as it was: showing the mode has overwritten it. A list of two entries shows both meanings, with
/// priority and without, by the same entry.
void ScanForm::LoadRevertChannel(std::uint8_t byte) {
    TheSession().Image.Set(scan::RevertChannel.address, byte);
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
        TheSession().Image.Set(scan::PriorityChannel.address, scan::NoChannel);
    }
    ShowMode(mode);
    CommitRevertChannel();
}

/// Without a legal mode the image's bytes stay and are shown, and what only Fixed has is off.
void ScanForm::ShowMode(std::optional<scan::Mode> mode) {
    const bool fixed = mode == scan::Mode::Fixed;
    TheSession().Priority.SetMode(fixed, TheSession().Image);
    txtPriorityCH_->setEnabled(fixed);
    lookBackTimeA_->setEnabled(mode != scan::Mode::None);
    lookBackTimeB_->setEnabled(mode != scan::Mode::None);
    RebuildRevertList();
}

/// RevertText stays, so that a later mode that has it among its entries finds it again.
void ScanForm::RebuildRevertList() {
    QStringList entries;
    for (const std::uint8_t value : scan::RevertChannelsOf(ShownMode())) {
        entries.append(ToQString(TheSession().LoadText(scan::RevertChannel.words[value])));
    }
    cboRevertCH_->SetEntries(entries);
    const auto found = static_cast<int>(entries.indexOf(RevertText));
    cboRevertCH_->ShowEntry(found < 0 ? static_cast<int>(entries.size()) - 1 : found);
}

void ScanForm::CommitMode() {
    if (const auto mode = ShownMode()) {
        TheSession().Image.Set(scan::PriorityMode.address, static_cast<std::uint8_t>(*mode));
    }
}

void ScanForm::CommitRevertChannel() {
    const int index = cboRevertCH_->currentIndex();
    if (index >= 0) {
        const std::uint8_t value = scan::RevertChannelsOf(ShownMode())[static_cast<std::size_t>(index)];
        TheSession().Image.Set(scan::RevertChannel.address, value);
    }
}

void ScanForm::CommitTime(SpinText& control, const scan::TimeField& field) {
    const int value = scan::Read(field, FromQString(control.Box().text()));
    control.Put(value);
    scan::Store(TheSession().Image, field, value);
}

void ScanForm::CommitPriorityChannel() {
    ChannelPriority& priority = TheSession().Priority;
    priority.SetError(false);
    const int n = AcceptedPriorityChannel();
    ShowPriorityChannel(n);
    TheSession().Image.Set(scan::PriorityChannel.address, n == 0 ? scan::NoChannel : static_cast<std::uint8_t>(n));
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
    if (IsRecordInUse(TheSession().Image, n)) {
        return n;
    }
    ShowError();
    return typed == 0 ? 0 : Number(PriorityChText);
}

void ScanForm::ShowError() {
    TheServices().messages.Show({std::string(commontexts::Error.In(TheSession().LanguageFlag)),
                                 std::string(ErrorText.In(TheSession().LanguageFlag)), MessageIcon::Critical,
                                 MessageButtons::Ok});
}

void ScanForm::ShowPriorityChannel(int n) {
    txtPriorityCH_->setText(n == 0 ? QString() : QString::number(n));
}

void ScanForm::OnPriorityChannel(int n) {
    if (TheSession().IsOpen(ChildWindow::Scan)) {
        ShowPriorityChannel(n);
    }
}

} // namespace zelvor
