#include "features/OptionalForm.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QMouseEvent>
#include <optional>
#include <utility>

#include "controls/BoundCheck.h"
#include "controls/BoundList.h"
#include "controls/BoundRows.h"
#include "controls/BoundSpin.h"
#include "controls/DtmfFilter.h"
#include "controls/EnterAsTab.h"
#include "controls/FilteredLineEdit.h"
#include "data/ChannelRecord.h"
#include "data/OptionalFields.h"
#include "features/Raster.h"
#include "platform/Toolkit.h"

namespace zelvor {

using namespace optional_features;

namespace {

constexpr QSize WindowSize{6150, 9000}; // twips

QGroupBox* MakeFrame(const char* name, const QString& title, QWidget* parent) {
    auto* frame = new QGroupBox(title, parent);
    frame->setObjectName(name);
    return frame;
}

std::optional<PttIdChoice> ChoiceOf(int value) {
    return value >= 0 && value < static_cast<int>(PttIdWords.size()) ? std::optional(static_cast<PttIdChoice>(value))
                                                                     : std::nullopt;
}

bool IsClick(const QEvent& event) {
    return event.type() == QEvent::MouseButtonRelease &&
           static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
}

} // namespace

OptionalForm::OptionalForm(Document& document, const WindowState& windows, Services& services, QWidget* parent)
    : FieldForm(ChildWindow::OptionalFeatures, "OptionalForm", WindowSize, "picOpt", Text::OptionalFeatures, document,
                windows, services, parent) {
    BoundRows rows(*Panel(), document.Image, windows.LanguageFlag, raster::Margin, raster::RowSpacing);
    BuildGeneral(rows);
    auto* fraPTTID = MakeFrame("fraPTTID", ToQString(PttId.label.In(windows.LanguageFlag)), Panel());
    rows.Add(fraPTTID);
    BuildPttId(*fraPTTID);
    fraVOX_ = MakeFrame("fraVOX", LoadText(Text::Vox), Panel());
    rows.Add(fraVOX_);
    BuildVox(*fraVOX_);
    auto* fraMode = MakeFrame("fraMode", LoadText(Text::Mode), Panel());
    rows.Add(fraMode);
    BoundRows(*fraMode, document.Image, windows.LanguageFlag, raster::FrameMargin, raster::RowSpacing)
        .AddCheck("CloneMode", CloneMode);
    rows.End();
    Connect();
    Load();
    setFocusProxy(tot_);
}

OptionalForm::~OptionalForm() {
    // The controls that still go, give the focus away.
    disconnect(qApp, nullptr, this, nullptr);
}

void OptionalForm::BuildGeneral(BoundRows& rows) {
    tot_ = rows.AddSpin("TOT", TimeOutTimer);
    rows.AddSpin("TOTPreAlert", TimeOutPreAlert);
    rows.AddSpin("SQLevel", SquelchLevel);
    rows.AddList("MICSens", MicSensitivity, "lblMicSens");
    rows.AddList("VoiceAnnu", VoiceAnnunciation);
    auto* chkBattSave = rows.MakeCheck("BattSave", BatterySave);
    rows.AddPair(chkBattSave, rows.MakeCheck("Beep", Beep));
    chkScramblerAct_ = rows.MakeCheck("ScramblerAct", ScramblerActivation);
    chkScramblerBackup_ = rows.MakeCheck("ScramblerBackup", ScramblerBackup);
    rows.AddPair(chkScramblerAct_, chkScramblerBackup_);
}

void OptionalForm::BuildPttId(QWidget& frame) {
    BoundRows rows(frame, TheDocument().Image, CurrentLanguage(), raster::FrameMargin, raster::RowSpacing);
    cboPTTIDType_ = rows.AddList("PTTIDType", PttIdType);
    cboPTTID_ = rows.AddList("PTTID", PttId);
    for (std::size_t code = 0; code < PttCodes.size(); ++code) {
        BuildCode(rows, code);
    }
}

void OptionalForm::BuildCode(BoundRows& rows, std::size_t code) {
    auto* box = new FilteredLineEdit(cboPTTID_->parentWidget());
    box->setObjectName(QStringLiteral("txtPTTCode(%1)").arg(code));
    box->SetFilter(DtmfDigitFilter);
    box->SetLengthLimit(PttCodeLength);
    box->SelectAllOnFocus();
    EnterMovesOn(*box);
    PTTCode[code] = {box, rows.Add(QStringLiteral("lblPTTCode(%1)").arg(code), PttCodes[code].label, box)};
}

void OptionalForm::BuildVox(QWidget& frame) {
    BoundRows rows(frame, TheDocument().Image, CurrentLanguage(), raster::FrameMargin, raster::RowSpacing);
    chkVOXFunc_ = rows.MakeCheck("VOXFunc", VoxFunction);
    rows.AddPair(chkVOXFunc_, rows.MakeCheck("VOXInhibit", VoxInhibit));
    rows.AddSpin("VOXGainLevel", VoxGainLevel);
    rows.AddList("VOXDelayTime", VoxDelayTime);
    auto* chkCancel = rows.MakeCheck("Cancel", CancelOperation);
    rows.AddPair(chkCancel, rows.MakeCheck("VOXProceedTone", VoxProceedTone));
}

void OptionalForm::Connect() {
    connect(chkScramblerAct_, &BoundCheck::toggled, this, &OptionalForm::EnableScramblerBackup);
    connect(chkVOXFunc_, &BoundCheck::toggled, this, &OptionalForm::EnableVox);
    connect(cboPTTID_, &BoundList::Selected, this, &OptionalForm::OnPttIdSelected);
    connect(cboPTTIDType_, &BoundList::Selected, this, &OptionalForm::OnTypeSelected);
    connect(cboPTTIDType_, &BoundList::Committed, this, &OptionalForm::OnTypeLeft);
    for (std::size_t code = 0; code < PTTCode.size(); ++code) {
        connect(PTTCode[code].box, &QLineEdit::textChanged, this, [this, code] { OnCodeChanged(code); });
        PTTCode[code].box->installEventFilter(this);
    }
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*from*/, QWidget* to) { OnFocusMoved(to); });
}

void OptionalForm::Load() {
    Document& document = TheDocument();
    const DataImage& image = document.Image;
    LoadFields();
    // A time-out without a number of steps shows its seconds all the same, and is stepped from 0.
    const int steps = image.At(TimeOutTimer.address);
    tot_->Buttons().SetValue(steps > TimeOutTimer.last ? 0 : steps);
    for (std::size_t code = 0; code < PTTCode.size(); ++code) {
        PTTCode[code].box->setText(QString::fromStdU16String(LoadCode(image, PttCodes[code])));
    }
    if (TheWindows().IsOpen(ChildWindow::Channels)) {
        document.Channels.RefreshPttIds(image, CurrentLanguage());
    }
    OnPttIdSelected();
    EnableVox();
}

// --- Enabled states --------------------------------------------------------------------------------------------------

void OptionalForm::EnableScramblerBackup() {
    // Intended: the backup can be chosen only while the scrambler is not activated.
    chkScramblerBackup_->setEnabled(!chkScramblerAct_->isChecked());
}

void OptionalForm::EnableVox() {
    for (QWidget* part : fraVOX_->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        part->setEnabled(part == chkVOXFunc_ || chkVOXFunc_->isChecked());
    }
}

void OptionalForm::EnableCode(std::size_t code, bool enabled) {
    PTTCode[code].box->setEnabled(enabled);
    PTTCode[code].label->setEnabled(enabled);
}

// --- PTT ID ----------------------------------------------------------------------------------------------------------

void OptionalForm::OnPttIdSelected() {
    const int type = cboPTTIDType_->currentIndex();
    const auto choice = ChoiceOf(cboPTTID_->currentIndex());
    if (type == record::TypeCorvane) {
        EnableCode(0, false);
        EnableCode(1, false);
    } else if (type == record::TypeDtmf && choice) {
        EnableCode(0, Sends(*choice, 0));
        EnableCode(1, Sends(*choice, 1));
        TheDocument().Flags.TxCodeErrorKind = MissingCodes(*choice, TheDocument().Image);
    }
}

void OptionalForm::OnTypeSelected() {
    const int type = cboPTTIDType_->currentIndex();
    if (type == ListField::NoEntry) {
        return;
    }
    if (type == record::TypeCorvane) {
        ChooseCorvane();
    } else {
        ChooseDtmf();
    }
    TheDocument().Image.Set(PttIdType.address, static_cast<std::uint8_t>(type));
    if (TheWindows().IsOpen(ChildWindow::Channels)) {
        TheDocument().Channels.ShowPttIdsOfType(TheDocument().Image, CurrentLanguage());
    }
}

void OptionalForm::ChooseCorvane() {
    TheDocument().Flags.TxCodeError = false;
    EnableCode(0, false);
    EnableCode(1, false);
}

void OptionalForm::ChooseDtmf() {
    Document& document = TheDocument();
    document.Flags.OwnIdError = false;
    document.Flags.TxCodeError = true;
    const auto choice = ChoiceOf(cboPTTID_->currentIndex());
    if (!choice) {
        return;
    }
    for (std::size_t code = 0; code < PTTCode.size(); ++code) {
        if (Sends(*choice, code)) {
            EnableCode(code, true);
        }
    }
    // Unlike a choice of the PTT ID, this one does not take back a complaint: codes that are there leave it as it was.
    if (const CodeErrorKind missing = MissingCodes(*choice, document.Image); missing != 0) {
        document.Flags.TxCodeErrorKind = missing;
    }
}

void OptionalForm::OnTypeLeft() {
    if (cboPTTIDType_->currentIndex() != ListField::NoEntry) {
        TheDocument().Flags.TxCodeError = cboPTTIDType_->currentIndex() == record::TypeDtmf;
    }
}

// --- PTT ID codes ----------------------------------------------------------------------------------------------------

bool OptionalForm::eventFilter(QObject* watched, QEvent* event) {
    for (std::size_t code = 0; code < PTTCode.size(); ++code) {
        // A filter is told of the clicks into a disabled box, too.
        if (watched == PTTCode[code].box && PTTCode[code].box->isEnabled() && IsClick(*event)) {
            OnCodeChanged(code);
        }
    }
    return FieldForm::eventFilter(watched, event);
}

/// A code box takes the focus from another control only: one that has it back from the menu, a message, another program
/// or a command that commits what is being edited does not, or it would disarm the check of a write just before it.
void OptionalForm::OnFocusMoved(QWidget* to) {
    if (to == nullptr || to->window() != window() || qobject_cast<QMenuBar*>(to) != nullptr) {
        return;
    }
    const QPointer<QWidget> before = std::exchange(focused_, to);
    for (const CodeBox& code : PTTCode) {
        if (code.box == to && before != to) {
            TheDocument().Flags.TxCodeError = code.box->text().isEmpty();
        }
    }
}

/// A click into a box does the same as a change of it.
void OptionalForm::OnCodeChanged(std::size_t code) {
    Document& document = TheDocument();
    const std::array missing{PTTCode[0].box->text().isEmpty(), PTTCode[1].box->text().isEmpty()};
    document.Flags.TxCodeError = document.Flags.TxCodeError || missing[0] || missing[1];
    // By the image, where a choice that has not been left yet is not stored.
    const auto choice = ChoiceOf(document.Image.At(PttId.address));
    document.Flags.TxCodeErrorKind = choice ? MissingCodes(*choice, missing) : 0;
    StoreCode(document.Image, PttCodes[code], PTTCode[code].box->text().toStdU16String());
}

} // namespace zelvor
